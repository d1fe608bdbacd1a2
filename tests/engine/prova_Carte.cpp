// Card codes, values, suits and texts.

#include "ErroreRuntime.h"
#include "MazziDiProva.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <map>
#include <string>

using namespace modCarte;

TEST(Carte, TestiAiConfiniDeiSemiEDeiMazzetti)
{
    EXPECT_EQ(TestoCarta(1), "AC");
    EXPECT_EQ(TestoCarta(13), "KC");
    EXPECT_EQ(TestoCarta(14), "AQ");
    EXPECT_EQ(TestoCarta(26), "KQ");
    EXPECT_EQ(TestoCarta(27), "AF");
    EXPECT_EQ(TestoCarta(39), "KF");
    EXPECT_EQ(TestoCarta(40), "AP");
    EXPECT_EQ(TestoCarta(52), "KP");
    EXPECT_EQ(TestoCarta(53), "AC");
    EXPECT_EQ(TestoCarta(312), "KP");
}

TEST(Carte, LaDonnaDiQuadriSiScriveQQ)
{
    EXPECT_EQ(TestoCarta(25), "QQ");
    EXPECT_EQ(ValoreDaTesto("QQ"), 12);
    EXPECT_EQ(SemeDaTesto("QQ"), 1);
}

TEST(Carte, OgniTestoCompareSeiVolte)
{
    std::map<std::string, int> volte;
    for (std::int16_t codice = 1; codice <= CarteTaglia; ++codice) ++volte[TestoCarta(codice)];
    EXPECT_EQ(volte.size(), 52U);
    for (const auto& [testo, quante] : volte) EXPECT_EQ(quante, 6) << testo;
}

TEST(Carte, NomiDeiValoriInOrdine)
{
    const std::array<std::string_view, 13> attesi = {"A", "2", "3",  "4", "5", "6", "7",
                                                     "8", "9", "10", "J", "Q", "K"};
    for (std::int16_t i = 0; i < 13; ++i) {
        EXPECT_EQ(NomeValore(static_cast<std::int16_t>(27 + i)),
                  attesi[static_cast<std::size_t>(i)]);
        EXPECT_EQ(ValoreCarta(static_cast<std::int16_t>(27 + i)), i + 1);
    }
}

TEST(PuntiCarta, FigureEDieciValgonoDieciLAssoUno)
{
    EXPECT_EQ(PuntiCarta(aiuti::Codice("AP")), 1);
    EXPECT_EQ(PuntiCarta(aiuti::Codice("9Q")), 9);
    for (const auto* dieci : {"10C", "JQ", "QF", "KP"}) {
        EXPECT_EQ(PuntiCarta(aiuti::Codice(dieci)), 10) << dieci;
    }
    EXPECT_EQ(PuntiCarta(312), 10);
    EXPECT_EQ(PuntiCarta(261), 1); // ace of hearts of the sixth pack
}

TEST(SemeCarta, VuotoPerUnCodiceSenzaPosto)
{
    EXPECT_EQ(SemeCarta(-1), "");
    EXPECT_EQ(SemeCarta(-51), "");
    EXPECT_EQ(SemeCarta(0), "P"); // remainder 0 reads as 52
    EXPECT_EQ(NomeValore(-1), "");
}

TEST(CartaRossa, CuoriEQuadri)
{
    EXPECT_TRUE(CartaRossa("10C"));
    EXPECT_TRUE(CartaRossa("QQ"));
    EXPECT_FALSE(CartaRossa("CF"));
    EXPECT_FALSE(CartaRossa("QP"));
    EXPECT_FALSE(CartaRossa("x"));
    EXPECT_FALSE(CartaRossa(""));
}

TEST(TestoDiCarta, ValoreESeme)
{
    EXPECT_EQ(ValoreScritto("10F"), "10");
    EXPECT_EQ(SemeScritto("10F"), 'F');
    EXPECT_EQ(ValoreScritto(""), "");
    EXPECT_EQ(SemeScritto(""), '\0');
}

TEST(ValoreDaTesto, NumeriELettere)
{
    EXPECT_EQ(ValoreDaTesto("10C"), 10);
    EXPECT_EQ(ValoreDaTesto("AP"), 1);
    EXPECT_EQ(ValoreDaTesto("2F"), 2);
    EXPECT_EQ(ValoreDaTesto("JC"), 11);
    EXPECT_EQ(ValoreDaTesto("KC"), 13);
}

TEST(ValoreDaTesto, TuttoIlRestoDaZero)
{
    for (const auto* testo : {"", "C", "11C", "0C", "-1C", "aC", "kP", "AAC", "XC", "infC"}) {
        EXPECT_EQ(ValoreDaTesto(testo), 0) << testo;
    }
}

TEST(ValoreDaTesto, LeggeSoloIlNumeroIniziale)
{
    EXPECT_EQ(ValoreDaTesto("7xC"), 7);
    EXPECT_EQ(ValoreDaTesto("10"), 1); // the last character is the suit, whatever it is
}

TEST(SemeDaTesto, OrdineDellaLibreriaDelleCarte)
{
    EXPECT_EQ(SemeDaTesto("10F"), 0);
    EXPECT_EQ(SemeDaTesto("10Q"), 1);
    EXPECT_EQ(SemeDaTesto("10C"), 2);
    EXPECT_EQ(SemeDaTesto("10P"), 3);
    EXPECT_EQ(SemeDaTesto("10p"), 0);
    EXPECT_EQ(SemeDaTesto(""), 0);
}

TEST(IndiceCarta, DaAssoDiFioriARediPicche)
{
    EXPECT_EQ(IndiceCarta(1, 0), 0);
    EXPECT_EQ(IndiceCarta(1, 3), 3);
    EXPECT_EQ(IndiceCarta(2, 0), 4);
    EXPECT_EQ(IndiceCarta(13, 3), 51);
}

TEST(IndiceCarta, FuoriDa32BitOverflow)
{
    constexpr std::int32_t massimo = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t minimo = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(IndiceCarta(536870912, 3), massimo); // 536870911 * 4 + 3
    EXPECT_EQ(IndiceCarta(536870913, -1), massimo);
    EXPECT_EQ(IndiceCarta(-536870911, 0), minimo);
    EXPECT_EQ(IndiceCarta(0, massimo), massimo - 4);
    // The subtraction alone leaves 32 bits here, the result does not.
    const auto overflow = [](std::int32_t valore, std::int32_t seme) {
        try {
            IndiceCarta(valore, seme);
        } catch (const ErroreRuntime& errore) {
            return errore.Numero() == NumeroErrore::Overflow;
        }
        return false;
    };
    EXPECT_TRUE(overflow(536870912, 4));
    EXPECT_TRUE(overflow(536870913, 0));
    EXPECT_TRUE(overflow(-536870911, -1));
    EXPECT_TRUE(overflow(massimo, massimo));
    EXPECT_TRUE(overflow(minimo, minimo));
    EXPECT_TRUE(overflow(minimo, massimo));
    EXPECT_TRUE(overflow(massimo, minimo));
}

TEST(IndiceCarta, OgniCartaDelMazzettoHaIlSuo)
{
    std::map<std::int32_t, int> visti;
    for (std::int16_t codice = 1; codice <= CarteMazzetto; ++codice) {
        const std::string testo = TestoCarta(codice);
        EXPECT_EQ(ValoreDaTesto(testo), ValoreCarta(codice)) << testo;
        ++visti[IndiceCarta(ValoreDaTesto(testo), SemeDaTesto(testo))];
    }
    EXPECT_EQ(visti.size(), 52U);
    EXPECT_EQ(visti.begin()->first, 0);
    EXPECT_EQ(visti.rbegin()->first, 51);
}
