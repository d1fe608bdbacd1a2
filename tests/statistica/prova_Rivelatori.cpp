// The instruments themselves, on values known beforehand.

#include "Rivelatori.h"
#include "Statistica.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

using namespace statistica;

namespace {

// The codes in order, starting with this one and going round.
std::vector<std::int16_t> Ruotato(int primo)
{
    std::vector<std::int16_t> mazzo(modCarte::CarteTaglia);
    for (int i = 0; i < modCarte::CarteTaglia; ++i) {
        mazzo[static_cast<std::size_t>(i)] =
            static_cast<std::int16_t>((primo - 1 + i) % modCarte::CarteTaglia + 1);
    }
    return mazzo;
}

void Guarda(Rivelatori& rivelatori, const std::vector<std::int16_t>& mazzo)
{
    rivelatori.Guarda(Taglia(mazzo.data(), modCarte::CarteTaglia));
}

} // namespace

TEST(ZConteggio, ContaLeDeviazioniDalValoreAtteso)
{
    EXPECT_EQ(ZConteggio(500'000, 1'000'000, 0.5), 0);
    EXPECT_NEAR(ZConteggio(501'000, 1'000'000, 0.5), 2, 1e-5);
    EXPECT_NEAR(ZConteggio(498'500, 1'000'000, 0.5), -3, 1e-5);
}

TEST(ZConteggio, ValeAncheDoveNonSiVedeNulla)
{
    // No event where 50 are expected: the chance is e^-50, a log-likelihood ratio of 50.
    EXPECT_NEAR(ZConteggio(0, 100'000'000, 5e-7), -10, 1e-5);
    EXPECT_NEAR(ZConteggio(10, 10, 0.5), std::sqrt(20 * std::log(2)), 1e-12);
}

TEST(ZChiQuadro, SegueLeTavole)
{
    // Upper five per cent, z 1.645, and upper one in a thousand, z 3.090.
    EXPECT_NEAR(ZChiQuadro(18.307, 10), 1.645, 0.01);
    EXPECT_NEAR(ZChiQuadro(149.449, 100), 3.090, 0.01);
    EXPECT_NEAR(ZChiQuadro(3.940, 10), -1.645, 0.02);
}

TEST(ZDistribuzione, UnisceLeClassiPiccole)
{
    // Of the classes 50, 42, 6 and 2 expected the last two become one, and it joins the one
    // before: 2 degrees would be too many. (60-50)^2/50 + (40-50)^2/50 is 4 with one degree.
    const std::array<std::int64_t, 4> visti = {60, 40, 0, 0};
    const std::array<double, 4> probabilita = {0.50, 0.42, 0.06, 0.02};
    EXPECT_NEAR(ZDistribuzione(visti, probabilita), ZChiQuadro(4, 1), 1e-12);
}

TEST(ZDelMassimo, FraCentomilaCelleQuattroENormale)
{
    EXPECT_EQ(ZDelMassimo(4, 1e5), 0);
    EXPECT_LT(std::abs(ZDelMassimo(-6, 1e5)), 4);
    EXPECT_GT(ZDelMassimo(8, 1e5), Limite);
    EXPECT_NEAR(ZDelMassimo(-3, 1), -3, 1e-9);
    EXPECT_EQ(ZDelMassimo(1000, 1e5), 1000);
}

TEST(Rivelatori, ColgonoAncheITroppoUguali)
{
    // Every card once in every place: no chance would be that even. All successions alike.
    Rivelatori rivelatori;
    for (int primo = 1; primo <= modCarte::CarteTaglia; ++primo) {
        Guarda(rivelatori, Ruotato(primo));
    }
    const Misure misure = rivelatori.Misura();
    EXPECT_NEAR(misure.Posti, -std::sqrt(311.0 * 312.0 / 2), 1e-9);
    EXPECT_EQ(misure.CellaPosti, 0);
    EXPECT_GT(misure.Successioni, 1000);
    EXPECT_EQ(misure.Ripetute, 0);
    EXPECT_TRUE(misure.Sospette());
}

TEST(Rivelatori, ContanoLeTaglieGiaViste)
{
    Rivelatori rivelatori;
    for (const int primo : {1, 2, 1, 3, 1, 2}) Guarda(rivelatori, Ruotato(primo));
    EXPECT_EQ(rivelatori.Misura().Ripetute, 3);
}
