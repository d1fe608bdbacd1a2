// Bar codes leave the caller's text as it was.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

const std::vector<void (*)(clsPDFCreator&)> Codici = {
    [](clsPDFCreator& pdf) { pdf.DrawEAN13("400638133393", 100, 100); },
    [](clsPDFCreator& pdf) { pdf.DrawCODE39("SCALVINO", 100, 100); },
};

} // namespace

TEST(CodiciABarre, ICaratteriDiPrimaTornanoSenzaUnaVoceNuova)
{
    for (const auto codice : Codici) {
        const auto righe = aiuti::Scrive([codice](clsPDFCreator& pdf) {
            pdf.SetFont("Times New Roman", 24, 1);
            const float prima = pdf.TextLength("Scalvino");
            codice(pdf);
            EXPECT_FLOAT_EQ(pdf.TextHeight(), 24);
            EXPECT_FLOAT_EQ(pdf.TextLength("Scalvino"), prima);
            pdf.DrawText(10, 10, "dopo");
        });
        EXPECT_THAT(righe, testing::Contains("/_FNT_1 24 Tf 24 TL"));
    }
}

TEST(CodiciABarre, SenzaTestoNonAggiungonoCaratteri)
{
    const auto righe = aiuti::Scrive([](clsPDFCreator& pdf) {
        pdf.DrawEAN13("400638133393", 100, 100, false);
        pdf.DrawCODE39("SCALVINO", 100, 200, 0, false);
        EXPECT_FLOAT_EQ(pdf.GetX(), 100);
        EXPECT_FLOAT_EQ(pdf.GetY(), 200);
    });
    EXPECT_THAT(righe, testing::Not(testing::Contains("BT")));
}

TEST(CodiciABarre, UnSegnoDiControlloHaLeBarreDellaSuaCoppia)
{
    const auto barre = [](std::string_view testo) {
        return aiuti::Scrive(
            [testo](clsPDFCreator& pdf) { pdf.DrawCODE39(testo, 10, 20, 0, false); });
    };
    EXPECT_EQ(barre("$A"), barre("\x01"));
    EXPECT_EQ(barre("+B%V"), barre("b@"));
    EXPECT_NE(barre("$A"), barre("$B"));
}
