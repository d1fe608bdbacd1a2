// The shuffle is uniform, with a seed and without.

#include "Rivelatori.h"
#include "Statistica.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <future>

using namespace modCarte;
using namespace statistica;

namespace {

constexpr std::uint64_t Seme = 312;

// A clock that stands still while it lives.
class OrologioFermo
{
public:
    OrologioFermo()
    {
        ImpostaOrologio([]() -> double { return 43'200.25; });
    }
    ~OrologioFermo() { ImpostaOrologio(nullptr); }
    OrologioFermo(const OrologioFermo&) = delete;
    OrologioFermo& operator=(const OrologioFermo&) = delete;
    OrologioFermo(OrologioFermo&&) = delete;
    OrologioFermo& operator=(OrologioFermo&&) = delete;
};

// Shoes that nobody can repeat: with the two hundred thousand cells looked at, the largest of them
// would pass Limite by mere chance in one run of some thousands, hence the restatement.
void ControllaSenzaSeme(const Misure& misure)
{
    ControllaZ("Posti", misure.Posti);
    ControllaZ("Successioni", misure.Successioni);
    ControllaZ("CellaPosti", ZDelMassimo(misure.CellaPosti, CellePosti));
    ControllaZ("CellaSuccessioni", ZDelMassimo(misure.CellaSuccessioni, CelleSuccessioni));
    EXPECT_EQ(misure.Ripetute, 0);
}

std::array<std::int16_t, CarteTaglia> NuovaTaglia()
{
    MescolaMazzo();
    return Mazzo;
}

} // namespace

TEST(Mescolata, OgniCartaStaOvunqueEDopoOgniAltraUgualmenteSpesso)
{
    const Misure misure = MisuraMazzi(Quante(1'000'000), [](std::uint64_t i) {
        AvviaSeme(Seme, i);
        MescolaMazzo();
    });
    ControllaZ("Posti", misure.Posti);
    ControllaZ("Successioni", misure.Successioni);
    ControllaZ("CellaPosti", misure.CellaPosti);
    ControllaZ("CellaSuccessioni", misure.CellaSuccessioni);
    EXPECT_EQ(misure.Ripetute, 0);
}

TEST(MescolataSenzaSeme, ConLOrologioVeroEUniforme)
{
    // A new thread, since there the module starts by itself at the first draw.
    auto filo = std::async(std::launch::async, [] {
        return MisuraMazzi(Quante(200'000), [](std::uint64_t) { MescolaMazzo(); });
    });
    ControllaSenzaSeme(filo.get());
}

TEST(MescolataSenzaSeme, ConLOrologioFermoEUniforme)
{
    const OrologioFermo fermo;
    AvviaEntropia();
    ControllaSenzaSeme(MisuraMazzi(Quante(200'000), [](std::uint64_t) { MescolaMazzo(); }));
}

TEST(MescolataSenzaSeme, AvviataDaCapoPerOgniTagliaEUniforme)
{
    // As for people who start the program, take one shoe and close it, all at the same moment.
    const OrologioFermo fermo;
    ControllaSenzaSeme(MisuraMazzi(Quante(20'000), [](std::uint64_t) {
        AvviaEntropia();
        MescolaMazzo();
    }));
}

TEST(MescolataSenzaSeme, DueTaglieNelloStessoScattoSonoDiverse)
{
    const OrologioFermo fermo;
    AvviaEntropia();
    const auto prima = NuovaTaglia();
    const auto seconda = NuovaTaglia();
    AvviaEntropia();
    const auto daCapo = NuovaTaglia();
    auto filo = std::async(std::launch::async, [] {
        const OrologioFermo ancheQui;
        return NuovaTaglia();
    });
    const auto altroFilo = filo.get();
    EXPECT_FALSE(prima == seconda);
    EXPECT_FALSE(prima == daCapo);
    EXPECT_FALSE(seconda == daCapo);
    EXPECT_FALSE(prima == altroFilo);
    EXPECT_FALSE(daCapo == altroFilo);
}
