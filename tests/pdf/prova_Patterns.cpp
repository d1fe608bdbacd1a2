// Tilings and gradients: their objects, their names among the resources, how a page chooses them.

#include "ErroreRuntime.h"
#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using aiuti::Disegno;
using aiuti::Documento;
using aiuti::Scrive;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

const Disegno Niente = [](clsPDFCreator&) {};

// A document with one page, numbers 7 to 10, and one tiling, 11 and its length 12.
aiuti::PdfLetto ConTrama(const Disegno& trama, const Disegno& prima = Niente)
{
    return Documento(prima, [&trama](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.EndPage();
        trama(pdf);
        pdf.EndTiling();
    });
}

// The object of the first gradient on the only page: after the metadata, 11 and their length 12.
std::string Sfumatura(const Disegno& disegno)
{
    const auto letto = Documento(Niente, [&disegno](clsPDFCreator& pdf) {
        pdf.BeginPage();
        disegno(pdf);
        pdf.EndPage();
    });
    EXPECT_THAT(letto.Oggetto(6), HasSubstr("\r/Pattern <<\r/SHAD_1_ING 13 0 R \r>>\r"));
    return letto.Oggetto(13);
}

} // namespace

// ---- Tilings ---------------------------------------------------------------------------------

TEST(BeginTiling, UnaPiastrellaELaSuaLunghezza)
{
    const auto letto = ConTrama([](clsPDFCreator& pdf) {
        pdf.BeginTiling("Trama", 1, 2, 5, 10, 6, 7);
        pdf.DrawRect(0, 0, 2, 3, 4);
    });
    EXPECT_EQ(letto.Oggetto(11),
              "<< /Type /Pattern /PatternType 1 /PaintType 1\r\n/TilingType 1\r\n"
              "/BBox [1 2 5 10]\r\n/XStep 6 /YStep 7\r\n/Resources 5 0 R\r\n"
              "/Matrix [1 0 0 1 0 0]\r\n/Length 12 0 R >>");
    // The origin at the tile's corner, then y turned downward over its height of 8.
    EXPECT_EQ(letto.Flusso(11), "1 0 0 1 1 2 cm\r\n1 0 0 -1 0 8 cm\r\nn\r\n0 0 2 3 re\r\nf\r\n");
    EXPECT_EQ(letto.Oggetto(12), "51");
}

TEST(BeginTiling, DallOrigineSiGiraSoltanto)
{
    const auto letto =
        ConTrama([](clsPDFCreator& pdf) { pdf.BeginTiling("Trama", 0, 0, 1, 1, 2, 2); },
                 [](clsPDFCreator& pdf) { pdf.SetScale(3); });
    EXPECT_THAT(letto.Oggetto(11),
                HasSubstr("/BBox [0 0 28.346 28.346]\r\n/XStep 56.693 /YStep 56.693\r\n"));
    EXPECT_EQ(letto.Flusso(11), "1 0 0 -1 0 28.346 cm\r\n");
}

TEST(BeginTiling, SoloIlTipoDueEDiColoreAltrui)
{
    const auto tipo = [](std::int32_t chiesto) {
        const auto letto = ConTrama(
            [chiesto](clsPDFCreator& pdf) { pdf.BeginTiling("Trama", 0, 0, 1, 1, 1, 1, chiesto); });
        return letto.Oggetto(11).substr(44, 1);
    };
    EXPECT_EQ(tipo(1), "1");
    EXPECT_EQ(tipo(2), "2");
    EXPECT_EQ(tipo(0), "1");
    EXPECT_EQ(tipo(3), "1");
}

TEST(BeginTiling, IlSuoNomeStaSoloFraLeRisorseDellePagine)
{
    const auto letto =
        ConTrama([](clsPDFCreator& pdf) { pdf.BeginTiling("Trama", 0, 0, 1, 1, 1, 1); });
    EXPECT_THAT(letto.Oggetto(6),
                HasSubstr("/ColorSpace << /xxCSxx [ /Pattern /DeviceRGB ] >> \r/Pattern <<\r"
                          "/Trama 11 0 R \r>>\r"));
    EXPECT_THAT(letto.Oggetto(5), Not(HasSubstr("/Pattern")));
}

// ---- Gradients -------------------------------------------------------------------------------

TEST(SetLinearFill, DalPrimoAllUltimoColore)
{
    EXPECT_EQ(Sfumatura([](clsPDFCreator& pdf) {
                  pdf.SetLinearFill({"Red", "Green", "#0000FF"}, 10, 20, 30, 40, true, false);
              }),
              "<<\r/Type /Pattern\r/PatternType 2\r/Matrix [ 1 0 0 -1 0 842]\r/Shading <<\r"
              "/ShadingType 2\r/ColorSpace /DeviceRGB\r/Coords [10 20 30 40]\r"
              "/Extend [true false] \r/Function << /FunctionType 3 \r/Domain [0.000 1.000] \r"
              "/Functions [<< /FunctionType 2 \r/Domain [0.000 1.000]\r/C0 [1 0 0 ]\r"
              "/C1 [0 0 1 ]\r/N 1 >>]\r/Bounds [] /Encode [0 1 ]\r>>\r>>\r>>");
}

TEST(SetRadialFill, FraDueCerchi)
{
    EXPECT_EQ(Sfumatura([](clsPDFCreator& pdf) {
                  pdf.SetRadialFill({"White", "#808080"}, 1, 2, 3, 4, 5, 6, false, true);
              }),
              "<<\r/Type /Pattern\r/PatternType 2\r/Matrix [ 1 0 0 -1 0 842]\r/Shading <<\r"
              "/ShadingType 3\r/ColorSpace /DeviceRGB\r/Coords [1 2 3 4 5 6]\r"
              "/Extend [false true] \r/Function << /FunctionType 3 \r/Domain [0.000 1.000] \r"
              "/Functions [<< /FunctionType 2 \r/Domain [0.000 1.000]\r/C0 [1 1 1 ]\r"
              "/C1 [0.502 0.502 0.502 ]\r/N 1.000 >>]\r/Bounds [] /Encode [0 1 ]\r>>\r>>\r>>");
}

TEST(SetLinearFill, UnColoreSoloEIlPrimoELUltimo)
{
    EXPECT_THAT(Sfumatura([](clsPDFCreator& pdf) { pdf.SetLinearFill({"Red"}, 0, 0, 9, 9); }),
                HasSubstr("\r/C0 [1 0 0 ]\r/C1 [1 0 0 ]\r"));
}

TEST(Sfumature, SonoIlRiempimentoESiContano)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.SetLinearFill({"Red", "Blue"}, 0, 0, 9, 9);
                    pdf.SetRadialFill({"Red", "Blue"}, 0, 0, 1, 9, 9, 2);
                }),
                ElementsAre("/Pattern cs /SHAD_1_ING scn", "/Pattern cs /SHAD_2_ING scn"));
}

TEST(Sfumature, SenzaColoriSonoUnErroreENonScrivonoNiente)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        try {
            pdf.SetLinearFill({}, 0, 0, 9, 9);
            ADD_FAILURE() << "nessun errore";
        } catch (const ErroreRuntime& errore) {
            EXPECT_EQ(errore.Numero(), NumeroErrore::ChiamataNonValida);
        }
    });
    EXPECT_THAT(righe, testing::IsEmpty());
}
