// Widths and descents of the standard fonts. controlla_larghezze.py compares the whole tables with
// the fonts; here stand the values that everything else leans on, and which face gives which table.

#include "FontWidths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string_view>

using pdf::Family;
using pdf::prMetricsOf;

namespace {

constexpr std::initializer_list<int> CodiciNonDefiniti = {0x81, 0x8D, 0x8F, 0x90, 0x9D};

int Larga(Family famiglia, int codice, bool grassetto = false, bool corsivo = false)
{
    return prMetricsOf(famiglia, grassetto, corsivo).Widths->at(static_cast<std::size_t>(codice));
}

// Sum of the widths of a text of ASCII characters.
int Somma(Family famiglia, std::string_view testo, bool grassetto, bool corsivo)
{
    int somma = 0;
    for (const char c : testo) somma += Larga(famiglia, c, grassetto, corsivo);
    return somma;
}

void TuttiLarghi(Family famiglia, int da, int a, int larghezza)
{
    for (const bool grassetto : {false, true})
        for (const bool corsivo : {false, true})
            for (int codice = da; codice <= a; ++codice)
                EXPECT_EQ(Larga(famiglia, codice, grassetto, corsivo), larghezza) << codice;
}

int Discesa(Family famiglia, bool grassetto, bool corsivo)
{
    return prMetricsOf(famiglia, grassetto, corsivo).Descent;
}

} // namespace

TEST(FontWidths, RighePrincipaliDiArial)
{
    EXPECT_EQ(Larga(Family::Arial, 0), 272);
    EXPECT_EQ(Larga(Family::Arial, 31), 272);
    EXPECT_EQ(Larga(Family::Arial, ' '), 278);
    for (int cifra = '0'; cifra <= '9'; ++cifra) EXPECT_EQ(Larga(Family::Arial, cifra), 556);
    EXPECT_EQ(Larga(Family::Arial, 'A'), 667);
    EXPECT_EQ(Larga(Family::Arial, 'W'), 944);
    EXPECT_EQ(Larga(Family::Arial, 'a'), 556);
    EXPECT_EQ(Larga(Family::Arial, 'i'), 222);
    EXPECT_EQ(Larga(Family::Arial, 127), 750);
}

TEST(FontWidths, RighePrincipaliDiTimes)
{
    EXPECT_EQ(Larga(Family::Times, 0), 333);
    EXPECT_EQ(Larga(Family::Times, 31), 333);
    EXPECT_EQ(Larga(Family::Times, ' '), 250);
    for (int cifra = '0'; cifra <= '9'; ++cifra) EXPECT_EQ(Larga(Family::Times, cifra), 500);
    EXPECT_EQ(Larga(Family::Times, 'A'), 722);
    EXPECT_EQ(Larga(Family::Times, 'W'), 944);
    EXPECT_EQ(Larga(Family::Times, 'a'), 444);
    EXPECT_EQ(Larga(Family::Times, 'i'), 278);
}

TEST(FontWidths, CodiciDiControlloUgualiInOgniStile)
{
    TuttiLarghi(Family::Arial, 0, 31, 272);
    TuttiLarghi(Family::Times, 0, 31, 333);
}

TEST(FontWidths, CodiciSenzaCarattereLarghiComeIlRiquadro)
{
    TuttiLarghi(Family::Arial, 127, 127, 750);
    TuttiLarghi(Family::Times, 127, 127, 778);
    for (const int codice : CodiciNonDefiniti) {
        TuttiLarghi(Family::Arial, codice, codice, 750);
        TuttiLarghi(Family::Times, codice, codice, 778);
    }
}

TEST(FontWidths, CodiciAltiSonoCaratteriWindows)
{
    EXPECT_EQ(Larga(Family::Arial, 0x80), 556);  // Euro
    EXPECT_EQ(Larga(Family::Arial, 0x85), 1000); // ellipsis
    EXPECT_EQ(Larga(Family::Arial, 0x92), 222);  // right quotation mark
    EXPECT_EQ(Larga(Family::Arial, 0x95), 350);  // bullet
    EXPECT_EQ(Larga(Family::Arial, 0xE0), 556);  // a with grave
    EXPECT_EQ(Larga(Family::Arial, 0xEC), 278);  // i with grave
    EXPECT_EQ(Larga(Family::Times, 0x97), 1000); // em dash
    EXPECT_EQ(Larga(Family::Times, 0x99), 980);  // trade mark
    EXPECT_EQ(Larga(Family::Times, 0xE8), 444);  // e with grave
}

TEST(FontWidths, SpazioETrattinoSpecialiComeQuelliSemplici)
{
    for (const Family famiglia : {Family::Arial, Family::Times})
        for (const bool grassetto : {false, true})
            for (const bool corsivo : {false, true}) {
                EXPECT_EQ(Larga(famiglia, 160, grassetto, corsivo),
                          Larga(famiglia, ' ', grassetto, corsivo));
                EXPECT_EQ(Larga(famiglia, 173, grassetto, corsivo),
                          Larga(famiglia, '-', grassetto, corsivo));
            }
}

// Each sum belongs to one table only, so a table under the wrong style is seen.
TEST(FontWidths, OgniStileHaLaSuaTabella)
{
    EXPECT_EQ(Somma(Family::Times, "AWa", false, false), 722 + 944 + 444);
    EXPECT_EQ(Somma(Family::Times, "AWa", true, false), 722 + 1000 + 500);
    EXPECT_EQ(Somma(Family::Times, "AWa", false, true), 611 + 833 + 500);
    EXPECT_EQ(Somma(Family::Times, "AWa", true, true), 667 + 889 + 500);
    EXPECT_EQ(Somma(Family::Arial, "AWi", false, false), 667 + 944 + 222);
    EXPECT_EQ(Somma(Family::Arial, "AWi", true, false), 722 + 944 + 278);
}

TEST(FontWidths, ArialInclinatoELargoComeArialDritto)
{
    EXPECT_EQ(prMetricsOf(Family::Arial, false, true).Widths,
              prMetricsOf(Family::Arial, false, false).Widths);
    EXPECT_EQ(prMetricsOf(Family::Arial, true, true).Widths,
              prMetricsOf(Family::Arial, true, false).Widths);
}

TEST(FontWidths, CourierSempreSeicento)
{
    TuttiLarghi(Family::Courier, 0, 255, 600);
}

TEST(FontWidths, SimboliSecondoLaLoroCodifica)
{
    EXPECT_EQ(Larga(Family::Symbol, ' '), 250);
    EXPECT_EQ(Larga(Family::Symbol, 'A'), 722);  // Alpha
    EXPECT_EQ(Larga(Family::Symbol, 'a'), 631);  // alpha
    EXPECT_EQ(Larga(Family::Symbol, 160), 750);  // Euro
    EXPECT_EQ(Larga(Family::Symbol, 167), 753);  // club
    EXPECT_EQ(Larga(Family::Symbol, 171), 1042); // arrow to both sides
    EXPECT_EQ(Larga(Family::Symbol, 254), 494);  // last glyph
    EXPECT_EQ(Larga(Family::ZapfDingbats, ' '), 278);
    EXPECT_EQ(Larga(Family::ZapfDingbats, '!'), 974);
    EXPECT_EQ(Larga(Family::ZapfDingbats, 'x'), 138);
    EXPECT_EQ(Larga(Family::ZapfDingbats, 128), 390);
    EXPECT_EQ(Larga(Family::ZapfDingbats, 168), 776); // club
    EXPECT_EQ(Larga(Family::ZapfDingbats, 214), 1016);
    EXPECT_EQ(Larga(Family::ZapfDingbats, 254), 918);
}

TEST(FontWidths, SimboliSenzaGlifoLarghiComeLoSpazio)
{
    for (const int codice : {0, 31, 127, 128, 159, 240, 255})
        TuttiLarghi(Family::Symbol, codice, codice, 250);
    for (const int codice : {0, 31, 127, 142, 160, 240, 255})
        TuttiLarghi(Family::ZapfDingbats, codice, codice, 278);
}

TEST(FontWidths, StileNonContaPerFamiglieDiUnaFaccia)
{
    for (const Family famiglia : {Family::Courier, Family::Symbol, Family::ZapfDingbats})
        for (const bool grassetto : {false, true})
            for (const bool corsivo : {false, true})
                EXPECT_EQ(prMetricsOf(famiglia, grassetto, corsivo).Widths,
                          prMetricsOf(famiglia, false, false).Widths);
}

TEST(FontWidths, DisceseUgualiInOgniStile)
{
    for (const bool grassetto : {false, true})
        for (const bool corsivo : {false, true}) {
            EXPECT_EQ(Discesa(Family::Arial, grassetto, corsivo), -212);
            EXPECT_EQ(Discesa(Family::Times, grassetto, corsivo), -216);
            EXPECT_EQ(Discesa(Family::Courier, grassetto, corsivo), -300);
            EXPECT_EQ(Discesa(Family::Symbol, grassetto, corsivo), -220);
            EXPECT_EQ(Discesa(Family::ZapfDingbats, grassetto, corsivo), -143);
        }
}

// The promised range: nobody has to guard a sum of widths against zeros or giants.
TEST(FontWidths, OgniLarghezzaNeiLimitiPromessi)
{
    int minima = 10000;
    int massima = 0;
    for (const Family famiglia :
         {Family::Times, Family::Courier, Family::Arial, Family::Symbol, Family::ZapfDingbats})
        for (const bool grassetto : {false, true})
            for (const bool corsivo : {false, true})
                for (const int larghezza : *prMetricsOf(famiglia, grassetto, corsivo).Widths) {
                    minima = std::min(minima, larghezza);
                    massima = std::max(massima, larghezza);
                }
    EXPECT_EQ(minima, 138);
    EXPECT_EQ(massima, 1042);
}

TEST(FontWidths, FamigliaSconosciutaComeArial)
{
    const auto ignota = prMetricsOf(static_cast<Family>(99), true, false);
    EXPECT_EQ(ignota.Widths, prMetricsOf(Family::Arial, true, false).Widths);
    EXPECT_EQ(ignota.Descent, -212);
}
