// Numbers as the file holds them.

#include "Number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

using pdf::prFloat;
using pdf::prNumber;

namespace {

std::string InMillesimi(double valore)
{
    std::string testo;
    pdf::prAppendNumber(testo, valore);
    return testo;
}

std::string Intero(std::int64_t valore)
{
    std::string testo;
    pdf::prAppendInteger(testo, valore);
    return testo;
}

} // namespace

TEST(PrNumber, TreDecimaliNellaFormaPiuCorta)
{
    EXPECT_EQ(prNumber(12.34567, 3), "12.346");
    EXPECT_EQ(prNumber(12.5, 3), "12.5");
    EXPECT_EQ(prNumber(100, 3), "100");
    EXPECT_EQ(prNumber(12, 3), "12");
    EXPECT_EQ(prNumber(0.5, 3), "0.5");
    EXPECT_EQ(prNumber(841.89, 3), "841.89");
    EXPECT_EQ(prNumber(0.001, 3), "0.001");
    EXPECT_EQ(prNumber(1.01, 3), "1.01");
    EXPECT_EQ(prNumber(1000.1, 3), "1000.1");
}

TEST(PrNumber, LeMetaVannoAlMillesimoPari)
{
    EXPECT_EQ(prNumber(0.0625, 3), "0.062"); // 62.5
    EXPECT_EQ(prNumber(0.1875, 3), "0.188"); // 187.5
    EXPECT_EQ(prNumber(-0.0625, 3), "-0.062");
    EXPECT_EQ(prNumber(0.0005, 3), "0");
    EXPECT_EQ(prNumber(0.0015, 3), "0.002");
    EXPECT_EQ(prNumber(0.0025, 3), "0.002");
    EXPECT_EQ(prNumber(2.5, 0), "2");
    EXPECT_EQ(prNumber(3.5, 0), "4");
}

TEST(PrNumber, MaiZeroNegativo)
{
    EXPECT_EQ(prNumber(-0.0004, 3), "0");
    EXPECT_EQ(prNumber(-0.0, 3), "0");
    EXPECT_EQ(prNumber(-0.4, 0), "0");
    EXPECT_EQ(prNumber(-0.0006, 3), "-0.001");
}

TEST(PrNumber, ArrotondaAncheFinoAllUnita)
{
    EXPECT_EQ(prNumber(0.9996, 3), "1");
    EXPECT_EQ(prNumber(9.9996, 3), "10");
    EXPECT_EQ(prNumber(-999.9996, 3), "-1000");
    EXPECT_EQ(prNumber(-999.9994, 3), "-999.999");
}

TEST(PrNumber, AltriDecimali)
{
    EXPECT_EQ(prNumber(1.23456, 5), "1.23456");
    EXPECT_EQ(prNumber(1.25, 1), "1.2");
    EXPECT_EQ(prNumber(0.1234567891, 9), "0.123456789");
    EXPECT_EQ(prNumber(0.1234567891, 12), "0.123456789"); // no more than nine
    EXPECT_EQ(prNumber(7.6, -1), "8");                    // no fewer than none
}

TEST(PrNumber, NumeriEnormiSenzaEsponente)
{
    EXPECT_EQ(prNumber(1e15, 3), "1000000000000000");
    EXPECT_EQ(prNumber(9007199254740992, 3), "9007199254740992");
    EXPECT_EQ(prNumber(-1e22, 3), "-10000000000000000000000");
    EXPECT_EQ(prNumber(static_cast<double>(std::numeric_limits<float>::max()), 3),
              "340282346638528859811704183484516925440");
    EXPECT_EQ(prNumber(std::numeric_limits<double>::max(), 3).size(), 309U);
    EXPECT_EQ(prNumber(1e-300, 3), "0");
}

TEST(PrAppendNumber, AggiungeInFondoEDaLoStessoTesto)
{
    std::string testo = "x ";
    pdf::prAppendNumber(testo, 12.5);
    EXPECT_EQ(testo, "x 12.5");
    for (const double valore : {0.0, 12.34567, -0.0625, 1e15, -1e22, 99.9999, 0.03125}) {
        EXPECT_EQ(InMillesimi(valore), prNumber(valore, 3));
    }
}

TEST(PrAppendNumber, ComeLaDivisionePerMilleDiUnIntero)
{
    // All thousandths from -20 to 20, and quarters of them on either side.
    for (int millesimi = -20000; millesimi <= 20000; ++millesimi) {
        const int grandezza = std::abs(millesimi);
        std::string decimali = std::to_string(1000 + grandezza % 1000).substr(1);
        decimali.erase(decimali.find_last_not_of('0') + 1);
        const std::string atteso = (millesimi < 0 ? "-" : "") + std::to_string(grandezza / 1000) +
                                   (decimali.empty() ? "" : "." + decimali);
        for (const double scarto : {-0.25, 0.0, 0.25}) {
            ASSERT_EQ(InMillesimi((millesimi + scarto) / 1000), atteso);
        }
    }
}

// A whole number of thousandths as it must be written.
std::string Atteso(std::int64_t millesimi)
{
    std::string testo = std::to_string(std::abs(millesimi));
    if (testo.size() < 4) testo.insert(0, 4 - testo.size(), '0');
    testo.insert(testo.size() - 3, 1, '.');
    testo.erase(testo.find_last_not_of('0') + 1);
    if (testo.back() == '.') testo.pop_back();
    return (millesimi < 0 ? "-" : "") + testo;
}

TEST(PrAppendNumber, AiDueLatiDiOgniLimite)
{
    // A million ends the quick way; 2^31 and 2^32 thousandths no longer fit 32 bits.
    constexpr std::int64_t limiti[] = {1000,
                                       10'000,
                                       100'000,
                                       1'000'000,
                                       1'000'000'000,
                                       2'147'483'648,
                                       4'000'000'000,
                                       4'294'967'296,
                                       8'589'934'592,
                                       1'000'000'000'000,
                                       9'000'000'000'000};
    for (const std::int64_t limite : limiti) {
        for (std::int64_t scarto = -1001; scarto <= 1001; ++scarto) {
            for (const std::int64_t millesimi : {limite + scarto, -limite - scarto}) {
                const double valore = static_cast<double>(millesimi) / 1000;
                ASSERT_EQ(InMillesimi(valore), Atteso(millesimi));
                ASSERT_EQ(prNumber(valore, 3), Atteso(millesimi));
            }
        }
    }
}

TEST(PrAppendNumber, LeMetaAiDueLatiDelLimite)
{
    // Sixteenths are exact in both; 62.5 and 187.5 thousandths go to the even one.
    for (const double intero : {999'999.0, 1'000'000.0, 2'147'483.0, 4'294'967.0, 1e9}) {
        const std::string testo = std::to_string(static_cast<std::int64_t>(intero));
        EXPECT_EQ(InMillesimi(intero + 0.0625), testo + ".062");
        EXPECT_EQ(InMillesimi(intero + 0.1875), testo + ".188");
        EXPECT_EQ(InMillesimi(-intero - 0.0625), "-" + testo + ".062");
    }
}

TEST(PrAppendNumber, GrandiQuantoUnInteroEOltre)
{
    // Beyond 9e15 the thousandths no longer fit 64 bits, and no fraction is left.
    for (const std::int64_t intero :
         {8'900'000'000'000'000, 9'000'000'000'000'000, 9'100'000'000'000'000,
          9'300'000'000'000'000, 10'000'000'000'000'000, 36'000'000'000'000'000}) {
        EXPECT_EQ(InMillesimi(static_cast<double>(intero)), std::to_string(intero));
        EXPECT_EQ(InMillesimi(static_cast<double>(-intero)), std::to_string(-intero));
        EXPECT_EQ(prNumber(static_cast<double>(intero), 3), std::to_string(intero));
        EXPECT_EQ(prNumber(static_cast<double>(-intero), 0), std::to_string(-intero));
    }
    EXPECT_EQ(prNumber(8.9e18, 0), "8900000000000000000");
    EXPECT_EQ(prNumber(1e19, 0), "10000000000000000000");
    EXPECT_EQ(prNumber(-3e19, 0), "-30000000000000000000");
    EXPECT_EQ(prNumber(8.5e9, 9), "8500000000");
    EXPECT_EQ(prNumber(9.5e9, 9), "9500000000");
}

TEST(PrAppendInteger, TuttiGliInteri)
{
    EXPECT_EQ(Intero(0), "0");
    EXPECT_EQ(Intero(7), "7");
    EXPECT_EQ(Intero(-10), "-10");
    for (std::int64_t potenza = 10; potenza < 1'000'000'000'000'000; potenza *= 10) {
        for (const std::int64_t numero : {potenza - 1, potenza, potenza + 1}) {
            EXPECT_EQ(Intero(numero), std::to_string(numero));
            EXPECT_EQ(Intero(-numero), std::to_string(-numero));
        }
    }
    EXPECT_EQ(Intero(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
    EXPECT_EQ(Intero(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(PrFloat, CioCheNonEntraDiventaIlPiuGrande)
{
    constexpr float massimo = std::numeric_limits<float>::max();
    EXPECT_EQ(prFloat(1e300), massimo);
    EXPECT_EQ(prFloat(-1e300), -massimo);
    EXPECT_EQ(prFloat(HUGE_VAL), massimo);
    EXPECT_EQ(prFloat(12.5), 12.5F);
    EXPECT_EQ(prFloat(0.1), 0.1F);
}
