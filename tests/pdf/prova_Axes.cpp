// Axes: moved, scaled, turned, leant, and saved with BeginGraphicSpace.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

using aiuti::Disegno;
using aiuti::Scrive;
using aiuti::ScriveInCentimetri;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Assi, SpostatiNellUnitaDelChiamante)
{
    EXPECT_THAT(ScriveInCentimetri([](clsPDFCreator& pdf) { pdf.MakeAxisTranslation(1, -2); }),
                ElementsAre("1 0 0 1 28.346 -56.693 cm"));
}

TEST(Assi, ScalatiQualunqueSiaLUnita)
{
    const Disegno scala = [](clsPDFCreator& pdf) { pdf.MakeAxisScaling(2, 2); };
    EXPECT_THAT(Scrive(scala), ElementsAre("2 0 0 2 0 0 cm"));
    EXPECT_THAT(ScriveInCentimetri(scala), ElementsAre("2 0 0 2 0 0 cm"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.MakeAxisScaling(0.5F, -1); }),
                ElementsAre("0.5 0 0 -1 0 0 cm"));
}

TEST(Assi, Girati)
{
    const auto di = [](float angolo) {
        return Scrive([angolo](clsPDFCreator& pdf) { pdf.MakeAxisRotation(angolo); });
    };
    EXPECT_THAT(di(90), ElementsAre("0 1 -1 0 0 0 cm"));
    EXPECT_THAT(di(-90), ElementsAre("0 -1 1 0 0 0 cm"));
    EXPECT_THAT(di(30), ElementsAre("0.866 0.5 -0.5 0.866 0 0 cm"));
    EXPECT_THAT(di(180), ElementsAre("-1 0 0 -1 0 0 cm"));
}

TEST(Assi, UnGiroInteroOMenoDiMezzoGradoNonScriveNiente)
{
    for (const float angolo : {0.0F, 0.4F, -0.4F, 360.0F, -720.0F, 360.3F, 359.7F}) {
        EXPECT_THAT(Scrive([angolo](clsPDFCreator& pdf) { pdf.MakeAxisRotation(angolo); }),
                    IsEmpty())
            << angolo;
    }
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.MakeAxisRotation(0.6F); }),
                ElementsAre("1 0.01 -0.01 1 0 0 cm"));
}

TEST(Assi, Inclinati)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.MakeAxisSkewing(45, 30); }),
                ElementsAre("1 1 0.577 1 0 0 cm"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.MakeAxisSkewing(0, -45); }),
                ElementsAre("1 0 -1 1 0 0 cm"));
}

TEST(SpazioGrafico, SalvaSpostaERimette)
{
    EXPECT_THAT(ScriveInCentimetri([](clsPDFCreator& pdf) {
                    pdf.BeginGraphicSpace(1, 1, 1, 1);
                    pdf.EndGraphicSpace();
                }),
                ElementsAre("q", "1 0 0 1 28.346 28.346 cm", "Q"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.BeginGraphicSpace(10, 20, 2, 3);
                    pdf.EndGraphicSpace();
                }),
                ElementsAre("q", "2 0 0 3 10 20 cm", "Q"));
}

TEST(SpazioGrafico, DoveNonCambiaNienteScriveSoloQ)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.BeginGraphicSpace(0, 0);
                    pdf.BeginGraphicSpace(0, 0, 1, 2);
                    pdf.EndGraphicSpace();
                    pdf.BeginGraphicSpace(0, 5);
                    pdf.EndGraphicSpace();
                    pdf.EndGraphicSpace();
                }),
                ElementsAre("q", "q", "1 0 0 2 0 0 cm", "Q", "q", "1 0 0 1 0 5 cm", "Q", "Q"));
}

TEST(SpazioGrafico, IlPuntoEIlSuoAngolo)
{
    std::pair<float, float> punto;
    Scrive([&punto](clsPDFCreator& pdf) {
        pdf.BeginGraphicSpace(10, 20, 2, 3);
        pdf.EndGraphicSpace();
        punto = {pdf.GetX(), pdf.GetY()};
    });
    EXPECT_EQ(punto, std::pair(10.0F, 20.0F));
}
