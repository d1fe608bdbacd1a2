// Paths and curves.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using aiuti::Disegno;
using aiuti::Scrive;
using aiuti::ScriveInCentimetri;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The current point after a drawing.
std::pair<float, float> Punto(const Disegno& disegno)
{
    std::pair<float, float> punto;
    Scrive([&](clsPDFCreator& pdf) {
        disegno(pdf);
        punto = {pdf.GetX(), pdf.GetY()};
    });
    return punto;
}

using Coppia = std::pair<float, float>;

} // namespace

// ---- Straight lines --------------------------------------------------------------------------

TEST(DrawLine, UnaRigaEIlTratto)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawLine(0, 0, 10, 10, 1); }),
                ElementsAre("0 0 m 10 10 l", "S"));
    EXPECT_THAT(ScriveInCentimetri([](clsPDFCreator& pdf) { pdf.DrawLine(1, 2, 3, 4); }),
                ElementsAre("28.346 56.693 m 85.039 113.386 l", "S"));
}

TEST(DrawLine, IlPuntoEIlSuoInizio)
{
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) { pdf.DrawLine(1, 2, 30, 40); }), Coppia(1, 2));
}

TEST(DrawLineTo, ContinuaDalPuntoEVaAllaFine)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.MoveTo(1, 2);
                    pdf.DrawLineTo(3, 4, 0);
                    pdf.DrawLineTo(5, 6);
                }),
                ElementsAre("1 2 m", "3 4 l", "5 6 l", "S"));
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) {
                  pdf.MoveTo(1, 2);
                  pdf.DrawLineTo(3, 4);
              }),
              Coppia(3, 4));
}

TEST(Pittura, OgniOpzione)
{
    const auto con = [](std::int32_t opzioni) {
        const auto righe =
            Scrive([opzioni](clsPDFCreator& pdf) { pdf.DrawRect(1, 1, 2, 2, opzioni); });
        return std::vector<std::string>(righe.begin() + 2, righe.end());
    };
    EXPECT_THAT(con(0), IsEmpty());
    EXPECT_THAT(con(1), ElementsAre("S"));
    EXPECT_THAT(con(2), ElementsAre("h"));
    EXPECT_THAT(con(3), ElementsAre("h", "S"));
    EXPECT_THAT(con(4), ElementsAre("f"));
    EXPECT_THAT(con(5), ElementsAre("B"));
    EXPECT_THAT(con(6), ElementsAre("f"));
    EXPECT_THAT(con(7), ElementsAre("b"));
    EXPECT_THAT(con(8), IsEmpty());
    EXPECT_THAT(con(9), ElementsAre("S"));
    EXPECT_THAT(con(-1), ElementsAre("b"));
}

// ---- Rectangles ------------------------------------------------------------------------------

TEST(DrawRect, ChiudePrimaIlPercorsoInCorso)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawRect(1, 1, 2, 2, 6, 0); }),
                ElementsAre("n", "1 1 2 2 re", "f"));
    EXPECT_THAT(ScriveInCentimetri([](clsPDFCreator& pdf) { pdf.DrawRect(1, 2, 3, 4); }),
                ElementsAre("n", "28.346 56.693 85.039 113.386 re", "S"));
}

TEST(DrawRect, RaggioZeroONegativoAngoliVivi)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawRect(1, 1, 2, 2, 1, -5); }),
                ElementsAre("n", "1 1 2 2 re", "S"));
}

TEST(DrawRect, IlPuntoRestaDovEra)
{
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) {
                  pdf.MoveTo(7, 8);
                  pdf.DrawRect(1, 1, 2, 2);
              }),
              Coppia(7, 8));
}

TEST(DrawRect, UnRaggioMinoreDiUnoArrotondaLoStesso)
{
    const auto righe = [](float raggio) {
        return Scrive([raggio](clsPDFCreator& pdf) { pdf.DrawRect(10, 20, 4, 3, 1, raggio); });
    };
    EXPECT_EQ(righe(0.5F)[1], "10.5 20 m");
    EXPECT_EQ(righe(0.01F)[1], "10.01 20 m");
    EXPECT_EQ(righe(0)[1], "10 20 4 3 re");
    EXPECT_EQ(righe(-0.5F)[1], "10 20 4 3 re");
}

TEST(DrawRect, AngoliTondi)
{
    // Radius 10; control points 5.5 from the corner's ends towards the corner.
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawRect(100, 200, 60, 40, 1, 10); }),
                ElementsAre("n", "110 200 m", "150 200 l", "155.5 200 160 204.5 160 210 c",
                            "160 230 l", "160 235.5 155.5 240 150 240 c", "110 240 l",
                            "104.5 240 100 235.5 100 230 c", "100 210 l",
                            "100 204.5 104.5 200 110 200 c", "S"));
}

TEST(DrawRect, IlRaggioNonSuperaMezzoLato)
{
    // A box of 4 by 20 is rounded with 2, one of 20 by 4 likewise.
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawRect(0, 0, 4, 20, 4, 5); }),
                ElementsAre("n", "2 0 m", "2 0 l", "3.1 0 4 0.9 4 2 c", "4 18 l",
                            "4 19.1 3.1 20 2 20 c", "2 20 l", "0.9 20 0 19.1 0 18 c", "0 2 l",
                            "0 0.9 0.9 0 2 0 c", "f"));
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) { pdf.DrawRect(0, 0, 20, 4, 4, 5); })[1], "2 0 m");
}

// ---- Curves ----------------------------------------------------------------------------------

TEST(Curve, ITreModi)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.MoveTo(0, 0);
                    pdf.DrawCurveA(1, 2, 3, 4, 5, 6, 0);
                    pdf.DrawCurveB(7, 8, 9, 10, 0);
                    pdf.DrawCurveC(11, 12, 13, 14);
                }),
                ElementsAre("0 0 m", "1 2 3 4 5 6 c", "7 8 9 10 v", "11 12 13 14 y", "S"));
}

TEST(Curve, IlPuntoVaAllaFine)
{
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) {
                  pdf.MoveTo(0, 0);
                  pdf.DrawCurveA(1, 2, 3, 4, 5, 6);
              }),
              Coppia(5, 6));
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) {
                  pdf.MoveTo(0, 0);
                  pdf.DrawCurveB(1, 2, 3, 4);
              }),
              Coppia(3, 4));
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) {
                  pdf.MoveTo(0, 0);
                  pdf.DrawCurveC(1, 2, 3, 4);
              }),
              Coppia(3, 4));
}

TEST(Curve, NellUnitaDelChiamante)
{
    EXPECT_EQ(ScriveInCentimetri([](clsPDFCreator& pdf) {
                  pdf.MoveTo(0, 0);
                  pdf.DrawCurveA(1, 2, 3, 4, 5, 6);
              })[1],
              "28.346 56.693 85.039 113.386 141.732 170.079 c");
}

TEST(DrawCircle, UnInizioQuattroQuartiEIlTratto)
{
    // 4 (root of 2 - 1) / 3 = 0.5523: control points 5.523 from the ends of a quarter of ray 10.
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawCircle(50, 50, 10, 1); }),
                ElementsAre("60 50 m", "60 55.523 55.523 60 50 60 c", "44.477 60 40 55.523 40 50 c",
                            "40 44.477 44.477 40 50 40 c", "55.523 40 60 44.477 60 50 c", "S"));
}

TEST(DrawEllipse, DueRaggi)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawEllipse(50, 50, 20, 10, 5); }),
                ElementsAre("70 50 m", "70 55.523 61.046 60 50 60 c", "38.954 60 30 55.523 30 50 c",
                            "30 44.477 38.954 40 50 40 c", "61.046 40 70 44.477 70 50 c", "B"));
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) { pdf.DrawEllipse(50, 50, 20, 10); }), Coppia(70, 50));
}

TEST(DrawArc, UnQuartoInSensoAntiorario)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, 0, 90); }),
                ElementsAre("60 50 m", "60 44.477 55.523 40 50 40 c", "S"));
    EXPECT_EQ(Punto([](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, 0, 90); }), Coppia(50, 40));
}

TEST(DrawArc, SiDivideInPezziUgualiDiUnQuartoAlPiu)
{
    const auto pezzi = [](float da, float a) {
        return Scrive([=](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, da, a); }).size() - 2;
    };
    EXPECT_EQ(pezzi(0, 1), 1U);
    EXPECT_EQ(pezzi(0, 90), 1U);
    EXPECT_EQ(pezzi(0, 91), 2U);
    EXPECT_EQ(pezzi(0, 360), 4U);
    EXPECT_EQ(pezzi(45, 45), 1U);
    EXPECT_EQ(pezzi(-90, 90), 2U);
}

TEST(DrawArc, UnaFinePrimaDellInizioContaUnGiroInPiu)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, 270, 0); }),
              Scrive([](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, 270, 360); }));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, 270, 0, 0); }),
                ElementsAre("50 60 m", "55.523 60 60 55.523 60 50 c"));
}

TEST(DrawArc, UnGiroFinisceDoveComincia)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, 0, 360, 3); });
    EXPECT_THAT(righe, ElementsAre("60 50 m", "60 44.477 55.523 40 50 40 c",
                                   "44.477 40 40 44.477 40 50 c", "40 55.523 44.477 60 50 60 c",
                                   "55.523 60 60 55.523 60 50 c", "h", "S"));
}
