// How numbers look in the reports.

#include "ErroreRuntime.h"
#include "FormatiNumero.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Stampe;

namespace {

const Separatori Italiani{",", "."};
const Separatori Inglesi{".", ","};
const Separatori DelC{".", ""};
const Separatori Francesi{",", "\u202F"};

std::string Quota(std::int64_t dividendo, std::int64_t divisore)
{
    return Percento(Rapporto(dividendo, divisore), Italiani);
}

} // namespace

TEST(Migliaia, ZeroEVuotoOZero)
{
    EXPECT_EQ(Migliaia(0, Italiani), "");
    EXPECT_EQ(MigliaiaConZero(0, Italiani), "0");
}

TEST(Migliaia, GruppiDiTreDaDestra)
{
    EXPECT_EQ(Migliaia(1, Italiani), "1");
    EXPECT_EQ(Migliaia(999, Italiani), "999");
    EXPECT_EQ(Migliaia(1000, Italiani), "1.000");
    EXPECT_EQ(Migliaia(12345, Italiani), "12.345");
    EXPECT_EQ(Migliaia(123456, Italiani), "123.456");
    EXPECT_EQ(MigliaiaConZero(1234567, Inglesi), "1,234,567");
    EXPECT_EQ(Migliaia(std::int64_t{1} << 53, Italiani), "9.007.199.254.740.992");
    EXPECT_EQ(Migliaia(-1234, Italiani), "-1.234");
    EXPECT_EQ(Migliaia(-123, Italiani), "-123");
}

TEST(Migliaia, SenzaSeparatoreNessunGruppo)
{
    EXPECT_EQ(Migliaia(1234567, DelC), "1234567");
    EXPECT_EQ(Migliaia(1234, Francesi), "1\u202F234");
}

TEST(Percento, LeMetaEsatteSiAllontananoDaZero)
{
    EXPECT_EQ(Quota(1, 32), "3,13%");    // 3.125
    EXPECT_EQ(Quota(13, 32), "40,63%");  // 40.625
    EXPECT_EQ(Quota(1, 20000), "0,01%"); // 0.005
    EXPECT_EQ(Quota(-1, 32), "-3,13%");
    EXPECT_EQ(Quota(1, -32), "-3,13%");
    EXPECT_EQ(Quota(-1, -32), "3,13%");
}

TEST(Percento, ProprioSottoLaMetaSiResta)
{
    EXPECT_EQ(Quota(4999, 100000000), "0,00%");
    EXPECT_EQ(Quota(31249, 1000000), "3,12%");
    // A hair below and above a half, where a product of doubles cannot tell.
    EXPECT_EQ(Quota(2814749767106559, std::int64_t{1} << 53), "31,25%");
    EXPECT_EQ(Quota(281474976710656, std::int64_t{9007199254740993}), "3,12%");
    EXPECT_EQ(Quota(281474976710656, std::int64_t{9007199254740991}), "3,13%");
}

TEST(Percento, ZeroEIntero)
{
    EXPECT_EQ(Quota(0, 28), "0,00%");
    EXPECT_EQ(Quota(28, 28), "100,00%");
    EXPECT_EQ(Quota(308, 312), "98,72%");
    EXPECT_EQ(Quota(1, 3), "33,33%");
    EXPECT_EQ(Quota(2, 3), "66,67%");
    EXPECT_EQ(Percento(Rapporto(1, std::int64_t{3}), Inglesi), "33.33%");
}

TEST(Percento, NonRaggruppaLeMigliaia)
{
    EXPECT_EQ(Quota(20, 1), "2000,00%");
}

TEST(DueDecimali, RaggruppaEArrotonda)
{
    EXPECT_EQ(DueDecimali(Rapporto(229, std::int64_t{8}), Italiani), "28,63"); // 28.625
    EXPECT_EQ(DueDecimali(Rapporto(0, std::int64_t{8}), Italiani), "0,00");
    EXPECT_EQ(DueDecimali(Rapporto(123456789, std::int64_t{100}), Italiani), "1.234.567,89");
    EXPECT_EQ(DueDecimali(Rapporto(28, std::int64_t{1}), DelC), "28.00");
    EXPECT_EQ(DueDecimali(Rapporto(-229, std::int64_t{8}), Italiani), "-28,63");
}

TEST(DueDecimali, IlDivisoreRealeContaEsatto)
{
    EXPECT_EQ(DueDecimali(Rapporto(229, 8.0), Italiani), "28,63");
    EXPECT_EQ(DueDecimali(Rapporto(10, 2.5), Italiani), "4,00");
    EXPECT_EQ(DueDecimali(Rapporto(1, 1.5), Italiani), "0,67");
    EXPECT_EQ(DueDecimali(Rapporto(7, 9007199254740992.0), Italiani), "0,00");
    EXPECT_EQ(Percento(Rapporto(308, 1.0, 312), Italiani), "98,72%");
    EXPECT_EQ(Percento(Rapporto(770, 2.5, 312), Italiani), "98,72%");
    EXPECT_EQ(DueDecimali(Rapporto(1, -8.0), Italiani), "-0,13"); // -0.125
    // The smallest number above 1: the quotient lies a hair below the half.
    EXPECT_EQ(DueDecimali(Rapporto(1, std::nextafter(8.0, 9.0)), Italiani), "0,12");
    EXPECT_EQ(DueDecimali(Rapporto(1, std::nextafter(8.0, 7.0)), Italiani), "0,13");
}

TEST(Quoziente, DivisoreNulloEDivisionePerZero)
{
    const auto numero = [](const Quoziente& quoziente) {
        try {
            Percento(quoziente, Italiani);
        } catch (const ErroreRuntime& errore) {
            return static_cast<int>(errore.Numero());
        }
        return 0;
    };
    EXPECT_EQ(numero(Rapporto(1, std::int64_t{0})), 11);
    EXPECT_EQ(numero(Rapporto(0, std::int64_t{0})), 11);
    EXPECT_EQ(numero(Rapporto(1, 0.0)), 11);
    EXPECT_THROW(DueDecimali(Rapporto(1, 0.0), Italiani), ErroreRuntime);
}

TEST(Quoziente, CioCheNonSiPuoScrivereEOverflow)
{
    EXPECT_THROW(Rapporto(1, std::numeric_limits<double>::infinity()), ErroreRuntime);
    EXPECT_THROW(Rapporto(1, std::nan("")), ErroreRuntime);
    EXPECT_THROW(Rapporto(1, 1e300), ErroreRuntime);
    EXPECT_THROW(Rapporto(1, 1e-300), ErroreRuntime);
    EXPECT_THROW(
        Percento(Rapporto(std::numeric_limits<std::int64_t>::max(), std::int64_t{1}), Italiani),
        ErroreRuntime);
}

TEST(Quoziente, DaQualeGrandezzaInPoiIlDivisoreEOverflow)
{
    EXPECT_EQ(DueDecimali(Rapporto(1, std::ldexp(1.0, 112)), Italiani), "0,00");
    EXPECT_THROW(Rapporto(1, std::ldexp(1.0, 113)), ErroreRuntime);
    EXPECT_EQ(DueDecimali(Rapporto(0, std::ldexp(1.0, -60)), Italiani), "0,00");
    EXPECT_THROW(Rapporto(0, std::ldexp(1.0, -61)), ErroreRuntime);
}

TEST(Quoziente, CioCheNonEntraIn128BitEOverflow)
{
    constexpr std::int64_t massimo = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t minimo = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(Percento(Rapporto(massimo, massimo), Italiani), "100,00%");
    EXPECT_EQ(Percento(Rapporto(minimo, minimo), Italiani), "100,00%");
    EXPECT_EQ(Percento(Rapporto(minimo, 1.0, minimo), Italiani), "100,00%");
    EXPECT_EQ(Percento(Rapporto(minimo, -1.0, minimo), Italiani), "-100,00%");
    EXPECT_THROW(Percento(Rapporto(massimo, std::ldexp(1.0, -60)), Italiani), ErroreRuntime);
    EXPECT_THROW(Rapporto(1, std::ldexp(1.0, 112), massimo), ErroreRuntime);
}

TEST(DueCifre, RiempieConLoZero)
{
    EXPECT_EQ(DueCifre(0), "00");
    EXPECT_EQ(DueCifre(1), "01");
    EXPECT_EQ(DueCifre(9), "09");
    EXPECT_EQ(DueCifre(10), "10");
    EXPECT_EQ(DueCifre(100), "100");
    EXPECT_EQ(DueCifre(-5), "-05");
}

TEST(SeparatoriPerFile, FuoriDallaTabellaDiventaSpazioFisso)
{
    EXPECT_EQ(SeparatoriPerFile(Francesi), (Separatori{",", "\u00A0"}));
    EXPECT_EQ(SeparatoriPerFile(Italiani), Italiani);
    EXPECT_EQ(SeparatoriPerFile(DelC), DelC);
    EXPECT_EQ(SeparatoriPerFile({"\u066B", "\u2019"}), (Separatori{"\u00A0", "\u2019"}));
}
