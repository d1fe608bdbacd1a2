// The random numbers behind the shuffle: draws, seeds, the clock.

#include "ErroreRuntime.h"
#include "prova_Mazzo.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <thread>

using namespace modCarte;

TEST(Casuale, ArgomentiNellOrdineNaturale)
{
    const SorgenteFissa sorgente({0.0F, 0.25F, Massimo});
    EXPECT_EQ(Casuale(6, 1), 1);
    EXPECT_EQ(Casuale(6, 1), 2); // floor(6 * 0.25 + 1) = floor(2.5)
    EXPECT_EQ(Casuale(6, 1), 6);
}

TEST(Casuale, ArgomentiScambiatiRovescianoLOrdine)
{
    // d = 0 - 313 + 1 = -312, so floor(313 - 312 r).
    const SorgenteFissa sorgente({0.0F, Minimo, 0.5F, Massimo});
    EXPECT_EQ(Casuale(0, 313), 313);
    EXPECT_EQ(Casuale(0, 313), 312);
    EXPECT_EQ(Casuale(0, 313), 157);
    EXPECT_EQ(Casuale(0, 313), 1);
}

TEST(Casuale, ArrotondaVersoIlBassoAncheSottoZero)
{
    const SorgenteFissa sorgente({0.25F});
    EXPECT_EQ(Casuale(0, -9), -7); // floor(10 * 0.25 - 9) = floor(-6.5)
}

TEST(Casuale, OltreSediciBitEOverflow)
{
    const auto overflow = [](std::int16_t massimo, std::int16_t minimo) {
        try {
            Casuale(massimo, minimo);
        } catch (const ErroreRuntime& errore) {
            return errore.Numero() == NumeroErrore::Overflow && errore.Testo() == "Overflow";
        }
        return false;
    };
    EXPECT_TRUE(overflow(32767, 0)); // 32768 numbers
    EXPECT_TRUE(overflow(32767, -32768));
    const SorgenteFissa sorgente({0.0F, 1.0F, std::numeric_limits<float>::infinity()});
    EXPECT_EQ(Casuale(32767, 1), 1);
    EXPECT_TRUE(overflow(32767, 1)); // floor(32767 + 1): one more than fits
    EXPECT_TRUE(overflow(32767, 1));
}

TEST(Casuale, GliEstremiDeiSediciBitEntrano)
{
    const SorgenteFissa sorgente({0.0F});
    EXPECT_EQ(Casuale(0, 32767), 32767);
    EXPECT_EQ(Casuale(-32768, -32768), -32768);
}

TEST(Generatore, RSempreDentroLIntervalloAperto)
{
    // With the bounds 0 and n + 1 an r of 0 would give n + 1 and an r of 1 would give 0... both
    // never happen, over many draws of the module's own generator.
    AvviaSeme(7, 7);
    for (int i = 0; i < 100000; ++i) {
        const auto posto = Casuale(0, 2);
        ASSERT_EQ(posto, 1);
    }
}

TEST(AvviaSeme, StessoSemeETagliaStessoMazzo)
{
    AvviaSeme(2026, 3);
    MescolaMazzo();
    const auto prima = Mazzo;
    AvviaEntropia();
    MescolaMazzo();
    EXPECT_NE(Mazzo, prima);
    AvviaSeme(2026, 3);
    MescolaMazzo();
    EXPECT_EQ(Mazzo, prima);
}

TEST(AvviaSeme, AltroSemeOAltraTagliaAltroMazzo)
{
    const auto mescolato = [](std::uint64_t seme, std::uint64_t taglia) {
        AvviaSeme(seme, taglia);
        MescolaMazzo();
        return Mazzo;
    };
    EXPECT_NE(mescolato(1, 1), mescolato(1, 2));
    EXPECT_NE(mescolato(1, 1), mescolato(2, 1));
    EXPECT_NE(mescolato(1, 2), mescolato(2, 1));
    EXPECT_NE(mescolato(0, 0), mescolato(0, 1));
    EXPECT_NE(mescolato(0, 0), mescolato(std::uint64_t{1} << 63, 0));
}

TEST(AvviaSeme, NonGuardaLOrologio)
{
    AvviaSeme(5, 5);
    MescolaMazzo();
    const auto prima = Mazzo;
    static int letture = 0;
    ImpostaOrologio([] { return static_cast<double>(++letture); });
    AvviaSeme(5, 5);
    MescolaMazzo();
    ImpostaOrologio(nullptr);
    EXPECT_EQ(Mazzo, prima);
    EXPECT_EQ(letture, 0);
}

TEST(AvviaSeme, UnAltroFiloHaUnMazzoSuo)
{
    AvviaSeme(5, 5);
    MescolaMazzo();
    const auto mio = Mazzo;
    std::array<std::int16_t, CarteTaglia> suo{};
    std::array<std::int16_t, CarteTaglia> suoPrima{};
    std::thread([&] {
        suoPrima = Mazzo;
        AvviaSeme(5, 6);
        MescolaMazzo();
        suo = Mazzo;
    }).join();
    EXPECT_EQ(Mazzo, mio);
    EXPECT_NE(suo, mio);
    EXPECT_EQ(suoPrima, (std::array<std::int16_t, CarteTaglia>{}));
}

TEST(Orologio, SiLeggePrimaDiOgniEstrazione)
{
    static int letture = 0;
    letture = 0;
    ImpostaOrologio([] {
        ++letture;
        return 43200.5;
    });
    AvviaEntropia();
    MescolaMazzo();
    const int dopoLaPrima = letture;
    const auto prima = Mazzo;
    MescolaMazzo();
    ImpostaOrologio(nullptr);
    EXPECT_EQ(dopoLaPrima, 312);
    EXPECT_EQ(letture, 624);
    EXPECT_NE(Mazzo, prima); // the same tick goes on in the stream
    EXPECT_TRUE(OgniCartaUnaVolta());
}

TEST(Orologio, QualunqueOraDaMescolateValide)
{
    static double ora = 0;
    ImpostaOrologio([] { return ora; });
    AvviaEntropia();
    for (const double adesso : {0.0, 86399.999, -5.0, 1e300, std::nan("")}) {
        ora = adesso;
        MescolaMazzo();
        EXPECT_TRUE(OgniCartaUnaVolta()) << adesso;
    }
    ImpostaOrologio(nullptr);
}
