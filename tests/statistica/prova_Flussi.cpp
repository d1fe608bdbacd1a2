// The repeatable streams: a shoe is given by seed and number alone, and neighbours are strangers.

#include "Statistica.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <future>
#include <string>
#include <vector>

using namespace modCarte;
using namespace statistica;

namespace {

using Codici = std::array<std::int16_t, CarteTaglia>;

constexpr std::uint64_t Seme = 7'000'000'019;
constexpr std::uint64_t TaglieDiConfronto = 100;

Codici Taglia(std::uint64_t seme, std::uint64_t numero)
{
    AvviaSeme(seme, numero);
    MescolaMazzo();
    return Mazzo;
}

std::vector<Codici> TaglieInOrdine()
{
    std::vector<Codici> taglie;
    for (std::uint64_t i = 0; i < TaglieDiConfronto; ++i) taglie.push_back(Taglia(Seme, i));
    return taglie;
}

// Places where both shoes have the same card: 1 on average, with variance 1.
std::int64_t PostiUguali(const Codici& a, const Codici& b)
{
    std::int64_t uguali = 0;
    for (std::size_t i = 0; i < a.size(); ++i) uguali += a[i] == b[i] ? 1 : 0;
    return uguali;
}

// Measures pairs of shoes that are unrelated unless the streams are.
class Parentele
{
public:
    void Guarda(const Codici& a, const Codici& b)
    {
        const std::int64_t scarto = PostiUguali(a, b) - 1;
        ++m_coppie;
        m_scarti += scarto;
        m_quadrati += scarto * scarto;
    }

    void Controlla(const std::string& nome) const
    {
        const auto coppie = static_cast<double>(m_coppie);
        ControllaZ(nome + ".Media", static_cast<double>(m_scarti) / std::sqrt(coppie));
        // The squares show what the mean hides: a few pairs that are much alike. Their variance
        // is 3, the fourth moment of the count being 4.
        ControllaZ(nome + ".Quadrati",
                   (static_cast<double>(m_quadrati) - coppie) / std::sqrt(3 * coppie));
    }

private:
    std::int64_t m_coppie = 0;
    std::int64_t m_scarti = 0;
    std::int64_t m_quadrati = 0;
};

} // namespace

TEST(Flussi, LaTagliaNonDipendeDaCioCheSiEEstrattoPrima)
{
    const auto attese = TaglieInOrdine();
    AvviaEntropia();
    for (std::uint64_t i = 0; i < TaglieDiConfronto; ++i) {
        EstraiNumeri(1000, 1, static_cast<std::int16_t>(i), Falso);
        if (i % 3 == 0) SimulaTaglia();
        if (i % 7 == 0) AvviaEntropia();
        ASSERT_TRUE(Taglia(Seme, i) == attese[i]) << i;
    }
}

TEST(Flussi, LaTagliaNonDipendeDallOrdine)
{
    const auto attese = TaglieInOrdine();
    for (std::uint64_t i = TaglieDiConfronto; i-- > 0;) {
        ASSERT_TRUE(Taglia(Seme, i) == attese[i]) << i;
    }
    constexpr std::uint64_t passo = 37; // visits all of them, each once
    for (std::uint64_t i = 0; i < TaglieDiConfronto; ++i) {
        const std::uint64_t numero = i * passo % TaglieDiConfronto;
        ASSERT_TRUE(Taglia(Seme, numero) == attese[numero]) << numero;
    }
}

TEST(Flussi, LaTagliaNonDipendeDalFilo)
{
    const auto attese = TaglieInOrdine();
    std::vector<Codici> ottenute(attese.size());
    const auto ognuna = [&](std::uint64_t primo) {
        for (std::uint64_t i = primo; i < TaglieDiConfronto; i += 2) ottenute[i] = Taglia(Seme, i);
    };
    auto pari = std::async(std::launch::async, ognuna, 0);
    auto dispari = std::async(std::launch::async, ognuna, 1);
    pari.get();
    dispari.get();
    for (std::uint64_t i = 0; i < TaglieDiConfronto; ++i) {
        ASSERT_TRUE(ottenute[i] == attese[i]) << i;
    }
}

TEST(Flussi, LaTagliaNonDipendeDallOrologio)
{
    const auto attese = TaglieInOrdine();
    ImpostaOrologio([]() -> double { return 86'399.99; });
    const auto ottenute = TaglieInOrdine();
    ImpostaOrologio(nullptr);
    EXPECT_TRUE(ottenute == attese);
}

TEST(Flussi, SemiENumeriViciniDannoTaglieSenzaParentela)
{
    constexpr std::uint64_t bitAlto = std::uint64_t{1} << 63;
    Parentele numeri;
    Parentele semi;
    Parentele entrambi;
    Parentele bit;
    Parentele scambiati;
    const auto coppie = static_cast<std::uint64_t>(Quante(20'000));
    for (std::uint64_t i = 0; i < coppie; ++i) {
        const auto taglia = Taglia(Seme, i);
        numeri.Guarda(taglia, Taglia(Seme, i + 1));
        semi.Guarda(taglia, Taglia(Seme + 1, i));
        entrambi.Guarda(taglia, Taglia(Seme + 1, i + 1));
        bit.Guarda(taglia, Taglia(Seme ^ bitAlto, i));
        scambiati.Guarda(taglia, Taglia(i, Seme));
    }
    numeri.Controlla("NumeriVicini");
    semi.Controlla("SemiVicini");
    entrambi.Controlla("SemiENumeriVicini");
    bit.Controlla("UnBitDelSeme");
    scambiati.Controlla("SemeENumeroScambiati");
}

TEST(Flussi, ISemiPiccoliDannoTaglieSenzaParentela)
{
    // The seeds that people choose: 0, 1, 2 and so on, all with shoe 0.
    Parentele vicini;
    auto prima = Taglia(0, 0);
    const auto coppie = static_cast<std::uint64_t>(Quante(20'000));
    for (std::uint64_t seme = 1; seme <= coppie; ++seme) {
        const auto taglia = Taglia(seme, 0);
        vicini.Guarda(prima, taglia);
        prima = taglia;
    }
    vicini.Controlla("SemiInFila");
}
