// Bar codes leave the caller's text as it was.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

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

// ---- The text under the bars. With modules of 1 point; letters of CourierNew are 0.6 of the size.

namespace {

// Where each text starts: the numbers before "Tm" and the text.
std::vector<std::string> Testi(const aiuti::Disegno& codice)
{
    std::vector<std::string> testi;
    for (const auto& riga : aiuti::Scrive(codice)) {
        if (riga.starts_with("1 0 0 -1 ")) testi.push_back(riga.substr(9));
    }
    return testi;
}

} // namespace

TEST(CodiciABarre, OgniCifraStaSottoLeSueBarre)
{
    // Letters are 6.6 wide. The first digit is centred 5 modules before the bars, the others 3.5
    // behind the start of theirs: the guards have 3, 5 and 3 modules, a digit 7.
    EXPECT_THAT(
        Testi([](clsPDFCreator& pdf) { pdf.DrawEAN13("400638133393", 100, 200, true, 50, 1); }),
        testing::ElementsAre("91.7 259 Tm (4) Tj", "103.2 259 Tm (0) Tj", "110.2 259 Tm (0) Tj",
                             "117.2 259 Tm (6) Tj", "124.2 259 Tm (3) Tj", "131.2 259 Tm (8) Tj",
                             "138.2 259 Tm (1) Tj", "150.2 259 Tm (3) Tj", "157.2 259 Tm (3) Tj",
                             "164.2 259 Tm (3) Tj", "171.2 259 Tm (9) Tj", "178.2 259 Tm (3) Tj",
                             "185.2 259 Tm (1) Tj"));
}

TEST(CodiciABarre, IlTestoDelCode39StaInMezzo)
{
    // "*A*" is 3 x (6 + 3 x 2.5) + 2 = 42.5 long, the text 6 wide: 100 + 21.25 - 3.
    EXPECT_THAT(Testi([](clsPDFCreator& pdf) { pdf.DrawCODE39("A", 100, 200, 50, true, 1); }),
                testing::ElementsAre("118.25 260 Tm (A) Tj"));
    EXPECT_THAT(Testi([](clsPDFCreator& pdf) { pdf.DrawCODE39("A", 100, 200, 0, true, 1, 2); }),
                testing::ElementsAre("116 250 Tm (A) Tj")); // 38 long, 40 high
}

TEST(CodiciABarre, IlModuloHaUnMassimoEUnoDiPartenza)
{
    const auto larghezza = [](float modulo) {
        return aiuti::Scrive(
            [modulo](clsPDFCreator& pdf) { pdf.DrawCODE39("A", 0, 0, 10, false, modulo, 2); })[1];
    };
    EXPECT_EQ(larghezza(0), "0 0 0.8 10 re");
    EXPECT_EQ(larghezza(-1), "0 0 0.8 10 re");
    EXPECT_EQ(larghezza(0.01F), "0 0 0.01 10 re");
    EXPECT_EQ(larghezza(1.99F), "0 0 1.99 10 re");
    EXPECT_EQ(larghezza(2), "0 0 2 10 re");
    EXPECT_EQ(larghezza(2.01F), "0 0 2 10 re");
}
