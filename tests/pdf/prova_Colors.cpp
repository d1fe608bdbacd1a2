// Colours and the state of lines, as operators.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using aiuti::Scrive;
using aiuti::ScriveInCentimetri;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::string> Riempimento(std::string_view colore, std::string_view deiMotivi = {})
{
    return Scrive([&](clsPDFCreator& pdf) { pdf.SetColorFill(colore, deiMotivi); });
}

std::vector<std::string> Linea(std::string_view colore, std::string_view deiMotivi = {})
{
    return Scrive([&](clsPDFCreator& pdf) { pdf.SetColorLine(colore, deiMotivi); });
}

} // namespace

TEST(SetColorFill, NomiECifre)
{
    EXPECT_THAT(Riempimento("Gray"), ElementsAre("0.502 0.502 0.502 rg"));
    EXPECT_THAT(Riempimento("#FF0000"), ElementsAre("1 0 0 rg"));
    EXPECT_THAT(Riempimento("green"), ElementsAre("0 1 0 rg"));
    EXPECT_THAT(Riempimento("#c0C0c0"), ElementsAre("0.753 0.753 0.753 rg"));
}

TEST(SetColorLine, NomiECifre)
{
    EXPECT_THAT(Linea("white"), ElementsAre("1 1 1 RG"));
    EXPECT_THAT(Linea("#0080FF"), ElementsAre("0 0.502 1 RG"));
    EXPECT_THAT(Linea("AQUA"), ElementsAre("0 1 1 RG"));
}

TEST(SetColorFill, GrigioDelVenticinquePercento)
{
    EXPECT_THAT(Riempimento("%25"), ElementsAre("0.753 0.753 0.753 rg")); // 192 / 255
    EXPECT_THAT(Linea("%25"), ElementsAre("0.753 0.753 0.753 RG"));
}

TEST(SetColorFill, LeCifreCheMancanoSonoZero)
{
    EXPECT_THAT(Riempimento("#FF80"), ElementsAre("1 0.502 0 rg"));
    EXPECT_THAT(Riempimento("#"), ElementsAre("0 0 0 rg"));
}

TEST(SetColorFill, VuotoNonFaNiente)
{
    EXPECT_THAT(Riempimento(""), IsEmpty());
    EXPECT_THAT(Riempimento("", "red"), IsEmpty());
    EXPECT_THAT(Linea(""), IsEmpty());
    EXPECT_THAT(Linea("", "red"), IsEmpty());
}

TEST(SetColorFill, OgniAltroTestoEUnMotivo)
{
    EXPECT_THAT(Riempimento("Mattoni"), ElementsAre("/Pattern cs /Mattoni scn"));
    EXPECT_THAT(Linea("SHAD_1_ING"), ElementsAre("/Pattern CS /SHAD_1_ING SCN"));
}

TEST(SetColorFill, UnMotivoColSuoColore)
{
    EXPECT_THAT(Riempimento("Mattoni", "red"), ElementsAre("/xxCSxx cs 1 0 0 /Mattoni scn"));
    EXPECT_THAT(Linea("Mattoni", "%25"), ElementsAre("/xxCSxx CS 0.753 0.753 0.753 /Mattoni SCN"));
}

TEST(SetColorFill, IlColoreDiUnMotivoCheNonESuoSiIgnora)
{
    EXPECT_THAT(Riempimento("Mattoni", "Tegole"), ElementsAre("/Pattern cs /Mattoni scn"));
    EXPECT_THAT(Riempimento("#FF0000", "blue"), ElementsAre("1 0 0 rg"));
}

// ---- Lines -----------------------------------------------------------------------------------

TEST(SetLineStyle, SoloIlTratteggioQuandoNonSiChiedeAltro)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetLineStyle(-1, -1, -1, 0, 0, 0); }),
                ElementsAre("[ ] 0 d"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetLineStyle(-1); }), ElementsAre("[ ] 0 d"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetLineStyle(-0.5F, -2, -3, 0.999F); }),
                ElementsAre("[ ] 0 d"));
}

TEST(SetLineStyle, OgniParteNelSuoOrdine)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetLineStyle(2, 1, 2, 3.9F, 4, 5); }),
                ElementsAre("2 w", "1 J", "2 j", "3 M", "[4 5] 0 d"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetLineStyle(0, 0, 0, 1); }),
                ElementsAre("0 w", "0 J", "0 j", "1 M", "[ ] 0 d"));
}

TEST(SetLineStyle, LunghezzeNellUnitaDelChiamante)
{
    EXPECT_THAT(
        ScriveInCentimetri([](clsPDFCreator& pdf) { pdf.SetLineStyle(0.1F, -1, -1, 0, 1, 0.5F); }),
        ElementsAre("2.835 w", "[28.346 14.173] 0 d"));
}

TEST(SetLineStyle, BastaUnoDeiDueTratti)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetLineStyle(-1, -1, -1, 0, 3); }),
                ElementsAre("[3 0] 0 d"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetLineStyle(-1, -1, -1, 0, 0, 2); }),
                ElementsAre("[0 2] 0 d"));
}
