// Numbers: narrowing, reading and plain text.

#include "Numeri.h"

#include "ErroreRuntime.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();
const double NonNumero = std::nan("");

// The error number of a narrowing that must not work; 0 when it did.
template <typename Valore>
int ErroreDi(Valore valore)
{
    try {
        Intero16(valore);
    } catch (const ErroreRuntime& errore) {
        return static_cast<int>(errore.Numero());
    }
    return 0;
}

} // namespace

TEST(Intero16, LeMetaVannoAlPari)
{
    EXPECT_EQ(Intero16(0.5), 0);
    EXPECT_EQ(Intero16(1.5), 2);
    EXPECT_EQ(Intero16(2.5), 2);
    EXPECT_EQ(Intero16(3.5), 4);
    EXPECT_EQ(Intero16(-0.5), 0);
    EXPECT_EQ(Intero16(-1.5), -2);
    EXPECT_EQ(Intero16(-2.5), -2);
}

TEST(Intero16, IlRestoVaAlPiuVicino)
{
    EXPECT_EQ(Intero16(2.4999), 2);
    EXPECT_EQ(Intero16(2.5001), 3);
    EXPECT_EQ(Intero16(-2.5001), -3);
    EXPECT_EQ(Intero16(0.49999999999999994), 0); // adding a half would give 1
}

TEST(Intero16, ArrivaAiDueLimitiENonOltre)
{
    EXPECT_EQ(Intero16(32767.0), 32767);
    EXPECT_EQ(Intero16(32767.49), 32767);
    EXPECT_EQ(Intero16(-32768.0), -32768);
    EXPECT_EQ(Intero16(-32768.5), -32768); // the half goes to the even limit
    EXPECT_EQ(ErroreDi(32767.5), 6);       // and here to 32768
    EXPECT_EQ(ErroreDi(32768.0), 6);
    EXPECT_EQ(ErroreDi(-32768.51), 6);
    EXPECT_EQ(ErroreDi(-32769.0), 6);
    EXPECT_EQ(ErroreDi(1e300), 6);
}

TEST(Intero16, CioCheNonEUnNumeroEOverflow)
{
    EXPECT_EQ(ErroreDi(NonNumero), 6);
    EXPECT_EQ(ErroreDi(Infinito), 6);
    EXPECT_EQ(ErroreDi(-Infinito), 6);
}

TEST(Intero16, DaInteroGliStessiLimiti)
{
    EXPECT_EQ(Intero16(std::int64_t{32767}), 32767);
    EXPECT_EQ(Intero16(std::int64_t{-32768}), -32768);
    EXPECT_EQ(ErroreDi(std::int64_t{32768}), 6);
    EXPECT_EQ(ErroreDi(std::int64_t{-32769}), 6);
    EXPECT_EQ(ErroreDi(std::int64_t{65536}), 6); // its low 16 bits are 0
    EXPECT_EQ(ErroreDi(std::numeric_limits<std::int64_t>::min()), 6);
}

TEST(NumeroIniziale, LeggeFinoAlPrimoCarattereEstraneo)
{
    EXPECT_EQ(NumeroIniziale("10C"), 10);
    EXPECT_EQ(NumeroIniziale("7,5"), 7);
    EXPECT_EQ(NumeroIniziale("2.5.1"), 2.5);
    EXPECT_EQ(NumeroIniziale("12 3"), 12);
    EXPECT_EQ(NumeroIniziale("0x10"), 0);
    EXPECT_EQ(NumeroIniziale("1e3z"), 1000);
}

TEST(NumeroIniziale, SaltaGliSpaziDavanti)
{
    EXPECT_EQ(NumeroIniziale("   12"), 12);
    EXPECT_EQ(NumeroIniziale("\t \t12"), 12);
    EXPECT_EQ(NumeroIniziale("  -12"), -12);
    EXPECT_EQ(NumeroIniziale("   "), 0);
}

TEST(NumeroIniziale, UnSegnoSoloESubitoDavanti)
{
    EXPECT_EQ(NumeroIniziale("+5"), 5);
    EXPECT_EQ(NumeroIniziale("-5"), -5);
    EXPECT_EQ(NumeroIniziale("-.5"), -0.5);
    for (const char* testo : {"--5", "+-5", "-+5", "- 5", "-", "+"}) {
        EXPECT_EQ(NumeroIniziale(testo), 0) << testo;
    }
}

TEST(NumeroIniziale, DecimaliEdEsponente)
{
    EXPECT_EQ(NumeroIniziale(".5"), 0.5);
    EXPECT_EQ(NumeroIniziale("5."), 5);
    EXPECT_EQ(NumeroIniziale("007"), 7);
    EXPECT_EQ(NumeroIniziale("1E2"), 100);
    EXPECT_EQ(NumeroIniziale("25e-1"), 2.5);
    EXPECT_EQ(NumeroIniziale("1e"), 1);
    EXPECT_EQ(NumeroIniziale("1e+"), 1);
    EXPECT_EQ(NumeroIniziale("1e 2"), 1);
}

TEST(NumeroIniziale, SenzaNumeroEZero)
{
    for (const char* testo : {"", "A", "C10", ".", "-.", ".e3", "e3", "inf", "-inf", "infinity",
                              "nan", "-nan", "NaN(1)", "\xE8", ","}) {
        EXPECT_EQ(NumeroIniziale(testo), 0) << testo;
    }
}

TEST(NumeroIniziale, TroppoGrandeEInfinitoTroppoPiccoloEZero)
{
    EXPECT_EQ(NumeroIniziale("1e999"), Infinito);
    EXPECT_EQ(NumeroIniziale("-1e999"), -Infinito);
    EXPECT_EQ(NumeroIniziale("1e99999999999999999999"), Infinito);
    EXPECT_EQ(NumeroIniziale(std::string(400, '9')), Infinito);
    EXPECT_EQ(NumeroIniziale("1e-999"), 0);
    EXPECT_EQ(NumeroIniziale("-1E-999"), 0);
    EXPECT_EQ(NumeroIniziale("0e999"), 0);
    EXPECT_EQ(NumeroIniziale("1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(NumeroIniziale, LaGrandezzaNonDipendeDalSoloEsponente)
{
    EXPECT_EQ(NumeroIniziale("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(NumeroIniziale("0." + std::string(400, '0') + "1e+5"), 0);
    EXPECT_EQ(NumeroIniziale("1" + std::string(1400, '0') + "e-999"), Infinito);
    EXPECT_EQ(NumeroIniziale("0.001e999"), Infinito);
    EXPECT_EQ(NumeroIniziale("1e-99999999999999999999"), 0);
}

TEST(NumeroIniziale, NonGuardaOltreLaFineDelTesto)
{
    const std::string_view testo = "1234";
    EXPECT_EQ(NumeroIniziale(testo.substr(0, 2)), 12);
    EXPECT_EQ(NumeroIniziale(testo.substr(0, 0)), 0);
}

TEST(TestoNumero, MaiConEsponente)
{
    EXPECT_EQ(TestoNumero(100000.0), "100000");
    EXPECT_EQ(TestoNumero(9007199254740992.0), "9007199254740992");
    EXPECT_EQ(TestoNumero(1e20), "100000000000000000000");
    EXPECT_EQ(TestoNumero(1e-7), "0.0000001");
    EXPECT_EQ(TestoNumero(-1e15), "-1000000000000000");
}

TEST(TestoNumero, LaFormaPiuBreve)
{
    EXPECT_EQ(TestoNumero(2.5), "2.5");
    EXPECT_EQ(TestoNumero(0.1), "0.1");
    EXPECT_EQ(TestoNumero(-0.1), "-0.1");
    EXPECT_EQ(TestoNumero(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(TestoNumero(0.0), "0");
    EXPECT_EQ(TestoNumero(3.0), "3");
}

TEST(TestoNumero, AncheINumeriPiuLunghiCiStanno)
{
    EXPECT_EQ(TestoNumero(std::numeric_limits<double>::max()).size(), 309U);
    const std::string minimo = TestoNumero(-std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(minimo.size(), 327U); // "-0." and 323 zeros before the 5
    EXPECT_EQ(minimo, "-0." + std::string(323, '0') + "5");
    // Seventeen digits far behind the point: the longest text of all.
    EXPECT_EQ(NumeroIniziale(TestoNumero(-2.2250738585072014e-308)), -2.2250738585072014e-308);
}

TEST(TestoNumero, InteroSenzaPunto)
{
    EXPECT_EQ(TestoNumero(std::int64_t{0}), "0");
    EXPECT_EQ(TestoNumero(std::int64_t{-1234567}), "-1234567");
    EXPECT_EQ(TestoNumero(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
    EXPECT_EQ(TestoNumero(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(LeggiInteroSenzaSegno, ArrivaADueAllaSessantaquattroMenoUno)
{
    std::uint64_t valore = 7;
    EXPECT_TRUE(LeggiInteroSenzaSegno("18446744073709551615", valore));
    EXPECT_EQ(valore, std::numeric_limits<std::uint64_t>::max());
    EXPECT_FALSE(LeggiInteroSenzaSegno("18446744073709551616", valore));
    EXPECT_FALSE(LeggiInteroSenzaSegno("100000000000000000000", valore));
    EXPECT_EQ(valore, std::numeric_limits<std::uint64_t>::max());
}

TEST(LeggiInteroSenzaSegno, SoloCifre)
{
    std::uint64_t valore = 7;
    for (const char* testo : {"", "-1", "+1", " 1", "1 ", "1e3", "1.0", "0x1", "A", "1\n", "\t1"}) {
        EXPECT_FALSE(LeggiInteroSenzaSegno(testo, valore)) << testo;
    }
    EXPECT_FALSE(LeggiInteroSenzaSegno(std::string_view("1\0", 2), valore));
    EXPECT_EQ(valore, 7U);
}

TEST(LeggiInteroSenzaSegno, ZeriDavantiPermessi)
{
    std::uint64_t valore = 7;
    EXPECT_TRUE(LeggiInteroSenzaSegno("0", valore));
    EXPECT_EQ(valore, 0U);
    EXPECT_TRUE(LeggiInteroSenzaSegno(std::string(50, '0') + "12", valore));
    EXPECT_EQ(valore, 12U);
}
