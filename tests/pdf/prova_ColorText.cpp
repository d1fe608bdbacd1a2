// Colours as texts.

#include "ColorText.h"

#include "Number.h"
#include "clsPDFCreator.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

using pdf::prColorComponents;
using pdf::prNamedColor;

namespace {

using Componenti = std::array<int, 3>;

} // namespace

TEST(PrNamedColor, TuttiINomi)
{
    EXPECT_EQ(prNamedColor("BLACK"), "#000000");
    EXPECT_EQ(prNamedColor("GRAY"), "#808080");
    EXPECT_EQ(prNamedColor("SILVER"), "#C0C0C0");
    EXPECT_EQ(prNamedColor("WHITE"), "#FFFFFF");
    EXPECT_EQ(prNamedColor("FUCHSIA"), "#FF00FF");
    EXPECT_EQ(prNamedColor("MAGENTA"), "#FF00FF");
    EXPECT_EQ(prNamedColor("RED"), "#FF0000");
    EXPECT_EQ(prNamedColor("YELLOW"), "#FFFF00");
    EXPECT_EQ(prNamedColor("GREEN"), "#00FF00");
    EXPECT_EQ(prNamedColor("AQUA"), "#00FFFF");
    EXPECT_EQ(prNamedColor("CYAN"), "#00FFFF");
    EXPECT_EQ(prNamedColor("BLUE"), "#0000FF");
}

TEST(PrNamedColor, MaiuscoleEMinuscoleSonoUguali)
{
    EXPECT_EQ(prNamedColor("gray"), "#808080");
    EXPECT_EQ(prNamedColor("White"), "#FFFFFF");
    EXPECT_EQ(prNamedColor("fUcHsIa"), "#FF00FF");
}

TEST(PrNamedColor, GrigioInPercentoDiNero)
{
    EXPECT_EQ(prNamedColor("%0"), "#FFFFFF");
    EXPECT_EQ(prNamedColor("%25"), "#C0C0C0"); // 255 - 63
    EXPECT_EQ(prNamedColor("%50"), "#808080"); // 255 - 127
    EXPECT_EQ(prNamedColor("%99"), "#030303"); // 255 - 252
    EXPECT_EQ(prNamedColor("%100"), "#000000");
    EXPECT_EQ(prNamedColor("%12.5"), "#E0E0E0"); // 255 - 31
}

TEST(PrNamedColor, GrigioFuoriDaiLimitiOSenzaNumero)
{
    EXPECT_EQ(prNamedColor("%-5"), "#FFFFFF");
    EXPECT_EQ(prNamedColor("%1000"), "#000000");
    EXPECT_EQ(prNamedColor("%"), "#FFFFFF");
    EXPECT_EQ(prNamedColor("%x"), "#FFFFFF");
    EXPECT_EQ(prNamedColor("%1e999"), "#000000");
}

TEST(PrNamedColor, OgniAltroTestoRestaComeSta)
{
    EXPECT_EQ(prNamedColor("#12ab"), "#12ab");
    EXPECT_EQ(prNamedColor("Mattoni"), "Mattoni");
    EXPECT_EQ(prNamedColor("SHAD_1_ING"), "SHAD_1_ING");
    EXPECT_EQ(prNamedColor("REDS"), "REDS");
    EXPECT_EQ(prNamedColor("RE"), "RE");
    EXPECT_EQ(prNamedColor(""), "");
}

TEST(PrColorComponents, CoppieDiCifreEsadecimali)
{
    EXPECT_EQ(prColorComponents("#FF8000"), (Componenti{255, 128, 0}));
    EXPECT_EQ(prColorComponents("#a0B1c2"), (Componenti{160, 177, 194}));
}

TEST(PrColorNumbers, OgniComponenteEUnaParteDiUnoInMillesimi)
{
    for (int componente = 0; componente <= 255; ++componente) {
        const std::string atteso = pdf::prNumber(componente / 255.0, 3);
        EXPECT_EQ(pdf::prColorNumbers(pdf::prColorDigits({componente, 0, 255})), atteso + " 0 1");
        EXPECT_EQ(pdf::prColorNumbers(pdf::prColorDigits({255, componente, componente})),
                  "1 " + atteso + " " + atteso);
    }
    EXPECT_EQ(pdf::prColorNumbers("#010101"), "0.004 0.004 0.004"); // none is longer
}

TEST(PrColorComponents, LeCifreCheMancanoValgonoZero)
{
    EXPECT_EQ(prColorComponents("#"), (Componenti{0, 0, 0}));
    EXPECT_EQ(prColorComponents("#FF"), (Componenti{255, 0, 0}));
    EXPECT_EQ(prColorComponents("#FFA"), (Componenti{255, 10, 0}));
    EXPECT_EQ(prColorComponents("#FF00B"), (Componenti{255, 0, 11}));
    EXPECT_EQ(prColorComponents("#GG1G#1"), (Componenti{0, 1, 0}));
    EXPECT_EQ(prColorComponents("#0102030405"), (Componenti{1, 2, 3}));
}

TEST(ToColor, TreValoriSonoRossoVerdeBlu)
{
    EXPECT_EQ(clsPDFCreator::ToColor(255, 128, 0), "#FF8000");
    EXPECT_EQ(clsPDFCreator::ToColor(0, 10, 171), "#000AAB");
    EXPECT_EQ(clsPDFCreator::ToColor(0.5, 1.5, 2.5), "#000202"); // halves to even
}

TEST(ToColor, QuattroValoriSonoInchiostri)
{
    EXPECT_EQ(clsPDFCreator::ToColor(0, 0, 0, 100), "#000000");
    EXPECT_EQ(clsPDFCreator::ToColor(0, 0, 0, 0), "#FFFFFF");
    EXPECT_EQ(clsPDFCreator::ToColor(100, 0, 0, 0), "#00FFFF");
    EXPECT_EQ(clsPDFCreator::ToColor(0, 100, 0, 0), "#FF00FF");
    EXPECT_EQ(clsPDFCreator::ToColor(0, 0, 100, 0), "#FFFF00");
    EXPECT_EQ(clsPDFCreator::ToColor(20, 40, 60, 0), "#CC9966");  // 204, 153, 102
    EXPECT_EQ(clsPDFCreator::ToColor(20, 40, 60, 80), "#291F14"); // 40.8, 30.6, 20.4
    EXPECT_EQ(clsPDFCreator::ToColor(50, 50, 50, 0), "#808080");  // 127.5, the even one
    EXPECT_EQ(clsPDFCreator::ToColor(200, 0, 0, 0), "#00FFFF");   // capped at 100
}

TEST(ToColor, OgniAltroNumeroDiValoriENero)
{
    EXPECT_EQ(clsPDFCreator::ToColor(), "#000000");
    EXPECT_EQ(clsPDFCreator::ToColor(255), "#000000");
    EXPECT_EQ(clsPDFCreator::ToColor(255, 255), "#000000");
    EXPECT_EQ(clsPDFCreator::ToColor(255, 255, 255, 255, 255), "#000000");
}

TEST(ToColor, ValoriFuoriDaiLimitiValgonoIlLimite)
{
    constexpr float infinito = std::numeric_limits<float>::infinity();
    constexpr float nessuno = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(clsPDFCreator::ToColor(-1, 256, 1e30), "#00FFFF");
    EXPECT_EQ(clsPDFCreator::ToColor(infinito, -infinito, nessuno), "#FF0000");
    EXPECT_EQ(clsPDFCreator::ToColor(infinito, -infinito, nessuno, 0), "#00FFFF");
}
