// A test of the tests: well-known ways to spoil a shuffle, each of which the detectors must catch
// with the shoes that the real one is given without a seed. They do not catch a right one.

#include "Rivelatori.h"
#include "Statistica.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

using namespace modCarte;
using namespace statistica;

namespace {

constexpr std::uint64_t Seme = 52;

std::array<std::int16_t, CarteTaglia> InOrdine()
{
    std::array<std::int16_t, CarteTaglia> mazzo{};
    std::iota(mazzo.begin(), mazzo.end(), std::int16_t{1});
    return mazzo;
}

// An index from 0 up to, not including, n.
std::size_t Indice(std::size_t n)
{
    return static_cast<std::size_t>(Casuale(0, static_cast<std::int16_t>(n + 1))) - 1;
}

// Draws the cards out of an ordered list; posto(rimasti) tells the index of the next one.
template <typename Posto>
void EstraiDallaLista(Posto posto)
{
    const auto codici = InOrdine();
    std::vector<std::int16_t> lista(codici.begin(), codici.end());
    for (auto& carta : Mazzo) {
        const auto scelta = lista.begin() + static_cast<std::ptrdiff_t>(posto(lista.size()));
        carta = *scelta;
        lista.erase(scelta);
    }
}

// Exchanges every place, from the last one down, with the one that altro(place) tells.
template <typename Altro>
void ScambiaOgniPosto(Altro altro)
{
    Mazzo = InOrdine();
    for (std::size_t i = Mazzo.size(); i-- > 0;) std::swap(Mazzo[i], Mazzo[altro(i)]);
}

// Sixteen bits that no order in the numbers shows through.
std::uint64_t SemeDiSediciBit(std::uint64_t numero)
{
    constexpr int scarto = 48;
    std::uint64_t x = (numero + 1) * 0x9E3779B97F4A7C15u;
    x = (x ^ (x >> 32)) * 0xD6E8FEB86659FD93u;
    return (x ^ (x >> 32)) * 0xD6E8FEB86659FD93u >> scarto;
}

template <typename Mescola>
Misure MisuraSbagliata(Mescola mescola)
{
    const Misure misure = MisuraMazzi(Quante(200'000), mescola);
    const auto annota = [](const char* nome, double valore) {
        ::testing::Test::RecordProperty(nome, std::to_string(valore));
    };
    annota("Posti", misure.Posti);
    annota("Successioni", misure.Successioni);
    annota("CellaPosti", misure.CellaPosti);
    annota("CellaSuccessioni", misure.CellaSuccessioni);
    annota("Ripetute", static_cast<double>(misure.Ripetute));
    return misure;
}

} // namespace

TEST(MescolataGiusta, PerEstrazioneNonDestaSospetti)
{
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        AvviaSeme(Seme, i);
        EstraiDallaLista([](std::size_t rimasti) { return Indice(rimasti); });
    });
    EXPECT_FALSE(misure.Sospette());
}

TEST(MescolataGiusta, PerScambiNonDestaSospetti)
{
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        AvviaSeme(Seme, i);
        ScambiaOgniPosto([](std::size_t posto) { return Indice(posto + 1); });
    });
    EXPECT_FALSE(misure.Sospette());
}

TEST(MescolataSbagliata, ScambiareConUnPostoQualunqueSiNota)
{
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        AvviaSeme(Seme, i);
        ScambiaOgniPosto([](std::size_t) { return Indice(CarteTaglia); });
    });
    EXPECT_TRUE(misure.Sospette());
}

TEST(MescolataSbagliata, UnPostoInMenoNellaListaSiNota)
{
    // The last card left in the list is never drawn while there is another.
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        AvviaSeme(Seme, i);
        EstraiDallaLista(
            [](std::size_t rimasti) { return Indice(std::max<std::size_t>(rimasti - 1, 1)); });
    });
    EXPECT_TRUE(misure.Sospette());
}

TEST(MescolataSbagliata, UnPostoInMenoNegliScambiSiNota)
{
    // No card may stay where it is: only one shuffle in 312 can come.
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        AvviaSeme(Seme, i);
        ScambiaOgniPosto([](std::size_t posto) { return posto > 0 ? Indice(posto) : 0; });
    });
    EXPECT_TRUE(misure.Sospette());
}

TEST(MescolataSbagliata, OrologioCheRiavviaIlFlussoAdOgniTagliaSiNota)
{
    constexpr std::uint64_t tagliePerScatto = 2;
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        AvviaSeme(Seme, i / tagliePerScatto);
        EstraiDallaLista([](std::size_t rimasti) { return Indice(rimasti); });
    });
    EXPECT_TRUE(misure.Sospette());
}

TEST(MescolataSbagliata, OrologioCheRiavviaIlFlussoAdOgniEstrazioneSiNota)
{
    // Within a tick every random number is the same, so that one number makes the whole shoe.
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        EstraiDallaLista([i](std::size_t rimasti) {
            AvviaSeme(Seme, i);
            return Indice(rimasti);
        });
    });
    EXPECT_TRUE(misure.Sospette());
}

TEST(MescolataSbagliata, SediciBitDiSemeSiNotano)
{
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        AvviaSeme(SemeDiSediciBit(i), 0);
        EstraiDallaLista([](std::size_t rimasti) { return Indice(rimasti); });
    });
    EXPECT_TRUE(misure.Sospette());
}

TEST(MescolataSbagliata, UnSoloScambioSulMazzoDiPrimaSiNota)
{
    const Misure misure = MisuraSbagliata([](std::uint64_t i) {
        if (i == 0) Mazzo = InOrdine();
        AvviaSeme(Seme, i);
        const std::size_t posto = Indice(CarteTaglia);
        std::swap(Mazzo[posto], Mazzo[Indice(CarteTaglia)]);
    });
    EXPECT_TRUE(misure.Sospette());
}
