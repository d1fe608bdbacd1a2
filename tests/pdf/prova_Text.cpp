// Lines and boxes of text.
//
// Times "a" is 444 thousandths wide, a blank 250, "W" 944; in Courier everything is 600, so at a
// size of 10 each character takes 6 points. Descents: Arial -212, Times -216, Courier -300.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using aiuti::Disegno;
using aiuti::Scrive;
using aiuti::ScriveInCentimetri;
using testing::ElementsAre;

namespace {

// A box in Courier 10 at (0, 0), 60 points wide (ten characters) and 100 high: the lines written
// between the text matrix and ET, without the CR behind each.
std::vector<std::string> Riquadro(std::string_view testo, std::int32_t opzioni, float rientro = 0)
{
    const auto righe = Scrive([&](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        pdf.DrawTextBox(0, 0, 60, 100, testo, 1, rientro, opzioni);
    });
    EXPECT_EQ(righe.size(), 6U);
    std::vector<std::string> pezzi;
    std::string resto = righe.at(4);
    for (auto fine = resto.find('\r'); fine != std::string::npos; fine = resto.find('\r')) {
        pezzi.push_back(resto.substr(0, fine));
        resto.erase(0, fine + 1);
    }
    EXPECT_EQ(resto, "");
    return pezzi;
}

// The text matrix of such a box with so many lines, at y 50 and with a line spacing of 1.5.
std::string Matrice(std::string_view testo, std::int32_t opzioni)
{
    return Scrive([&](clsPDFCreator& pdf) {
               pdf.SetFont("Courier New", 10);
               pdf.DrawTextBox(20, 50, 60, 100, testo, 1.5F, 0, opzioni);
           })
        .at(3);
}

int RigheDelRiquadro(std::string_view testo)
{
    int righe = 0;
    Scrive([&](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        righe = pdf.DrawTextBox(0, 0, 60, 100, testo);
    });
    return righe;
}

} // namespace

// ---- One line --------------------------------------------------------------------------------

TEST(DrawText, QuattroRigheColCorpoDueVolte)
{
    EXPECT_THAT(Scrive(
                    [](clsPDFCreator& pdf) {
                        pdf.SetFont("Arial", 12);
                        pdf.DrawText(10, 20, "abc");
                    },
                    {"abc"}),
                ElementsAre("BT", "/_FNT_1 12 Tf 12 TL", "1 0 0 -1 10 20 Tm (abc) Tj", "ET"));
}

TEST(DrawText, CentratoSuiCentimetri)
{
    // 1612 thousandths of 10 points, half of them before 297.638 points.
    EXPECT_EQ(ScriveInCentimetri(
                  [](clsPDFCreator& pdf) {
                      pdf.SetFont("Arial", 10);
                      pdf.DrawText(10.5F, 1.3F, "abc", 4);
                  },
                  {"abc"})[2],
              "1 0 0 -1 289.578 36.85 Tm (abc) Tj");
}

TEST(DrawText, ADestraFinisceInX)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) {
                  pdf.SetFont("Arial", 10);
                  pdf.DrawText(100, 20, "abc", 2);
              })[2],
              "1 0 0 -1 83.88 20 Tm (abc) Tj");
}

TEST(DrawText, SoloIBitDellAllineamentoContano)
{
    const auto con = [](std::int32_t opzioni) {
        return Scrive([opzioni](clsPDFCreator& pdf) {
            pdf.SetFont("Arial", 10);
            pdf.DrawText(100, 20, "abc", opzioni);
        })[2];
    };
    const std::string sinistra = "1 0 0 -1 100 20 Tm (abc) Tj";
    for (const std::int32_t opzioni : {0, 1, 3, 5, 6, 7, 8, 64}) EXPECT_EQ(con(opzioni), sinistra);
    EXPECT_EQ(con(2 + 8 + 32), "1 0 0 -1 83.88 20 Tm (abc) Tj");
    EXPECT_EQ(con(4 + 64), "1 0 0 -1 91.94 20 Tm (abc) Tj");
}

TEST(DrawText, IlPuntoScendeDiUnCorpo)
{
    Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 12);
        pdf.DrawText(5, 2, "abc");
        EXPECT_EQ(pdf.GetX(), 5);
        EXPECT_EQ(pdf.GetY(), 14);
    });
}

TEST(DrawText, IlPuntoEAllInizioDelTestoSpostato)
{
    Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.DrawText(100, 20, "abc", 2);
        EXPECT_FLOAT_EQ(pdf.GetX(), 83.88F);
        EXPECT_EQ(pdf.GetY(), 30);
    });
}

TEST(DrawText, LaSpaziaturaContaNellAllineamento)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) {
                  pdf.SetFont("Arial", 10);
                  pdf.SetCharSpacing(2);
                  pdf.DrawText(100, 20, "abc", 2);
              })[3],
              "1 0 0 -1 77.88 20 Tm (abc) Tj");
}

TEST(DrawText, GiratoInSensoAntiorario)
{
    const auto con = [](float angolo) {
        return Scrive([angolo](clsPDFCreator& pdf) {
            pdf.SetFont("Arial", 10);
            pdf.DrawText(100, 200, "a", 1, angolo);
        })[2];
    };
    EXPECT_EQ(con(90), "0 -1 -1 0 100 200 Tm (a) Tj");
    EXPECT_EQ(con(30), "0.866 -0.5 -0.5 -0.866 100 200 Tm (a) Tj");
    EXPECT_EQ(con(-30), "0.866 0.5 0.5 -0.866 100 200 Tm (a) Tj");
    EXPECT_EQ(con(180), "-1 0 0 1 100 200 Tm (a) Tj");
}

TEST(DrawText, IlTestoEProtettoEInWindows1252)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) {
                  pdf.SetFont("Arial", 10);
                  pdf.DrawText(0, 10, "(è) \\ € Ω");
              })[2],
              "1 0 0 -1 0 10 Tm (\\(\xE8\\) \\\\ \x80 ?) Tj");
}

TEST(DrawText, VuotoScriveUnTestoVuoto)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) {
                  pdf.SetFont("Arial", 10);
                  pdf.DrawText(7, 10, "", 4);
              })[2],
              "1 0 0 -1 7 10 Tm () Tj");
}

// ---- Decorations -----------------------------------------------------------------------------

TEST(Decorazioni, SottolineatoDiCorpoSedici)
{
    // Two points below the baseline, one point wide; then the line width of before.
    EXPECT_THAT(Scrive(
                    [](clsPDFCreator& pdf) {
                        pdf.SetFont("Courier New", 16, 4);
                        pdf.DrawText(10, 20, "ab");
                    },
                    {"ab"}),
                ElementsAre("BT", "/_FNT_1 16 Tf 16 TL", "1 0 0 -1 10 20 Tm (ab) Tj", "ET", "1 w ",
                            "q", "1 0 0 1 10 20 cm", "0 2 m 19.2 2 l S", "Q", "1 w"));
}

TEST(Decorazioni, SopralineatoEBarrato)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        pdf.SetLineStyle(3);
        pdf.SetFont("Courier New", 10, 8 + 16);
        pdf.DrawText(10, 20, "ab");
    });
    EXPECT_THAT(std::vector<std::string>(righe.begin() + 6, righe.end()),
                ElementsAre("0.625 w ", "q", "1 0 0 1 10 20 cm", "0 -8 m 12 -8 l S",
                            "0 -3 m 12 -3 l S", "Q", "3 w"));
}

TEST(Decorazioni, GiranoColTestoDallInizioDellaRiga)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10, 4);
        pdf.DrawText(100, 20, "ab", 2, 90);
    });
    EXPECT_THAT(std::vector<std::string>(righe.begin() + 4, righe.end()),
                ElementsAre("0.625 w ", "q", "1 0 0 1 88 20 cm", "0 -1 1 0 0 0 cm",
                            "0 1.25 m 12 1.25 l S", "Q", "1 w"));
}

TEST(Decorazioni, SenzaStileDecorativoNonCiSono)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) {
                  pdf.SetFont("Arial", 10, 1 + 2);
                  pdf.DrawText(0, 10, "a");
              }).size(),
              4U);
}

TEST(Decorazioni, UnCarattereSenzaStileLeToglie)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) {
                  pdf.SetFont("Arial", 10, 4);
                  pdf.SetFont("Arial", 10);
                  pdf.DrawText(0, 10, "a");
              }).size(),
              4U);
}

// ---- Text state ------------------------------------------------------------------------------

TEST(StatoTesto, GliOperatoriPrendonoPuntiEPercento)
{
    EXPECT_THAT(ScriveInCentimetri([](clsPDFCreator& pdf) {
                    pdf.SetWordSpacing(1.5F);
                    pdf.SetCharSpacing(-0.25F);
                    pdf.SetTextHorizontalScaling(80);
                    pdf.SetTextRenderingMode(2);
                }),
                ElementsAre("1.5 Tw", "-0.25 Tc", "80 Tz", "2 Tr"));
}

// ---- Boxes -----------------------------------------------------------------------------------

TEST(DrawTextBox, LeSueRighe)
{
    EXPECT_THAT(Scrive(
                    [](clsPDFCreator& pdf) {
                        pdf.SetFont("Courier New", 10);
                        EXPECT_EQ(pdf.DrawTextBox(20, 50, 60, 100, "aaaa bbbb cccc", 1.5F), 2);
                    },
                    {"aaaa bbbb", "cccc"}),
                ElementsAre("BT", "/_FNT_1 10 Tf 15 TL", "1 0 0 -1 0 842 Tm", "1 0 0 -1 20 62 Tm",
                            "(aaaa bbbb) Tj T*\r(cccc) Tj T*\r", "ET"));
}

TEST(DrawTextBox, UnTestoStaNelRiquadroLargoQuantoLui)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 9);
        EXPECT_EQ(pdf.TextLength("xx xx"), 27);
        EXPECT_EQ(pdf.DrawTextBox(0, 0, 27, 50, "xx xx"), 1);
        EXPECT_EQ(pdf.DrawTextBox(0, 0, 26.99F, 50, "xx xx"), 2);
    });
    EXPECT_EQ(righe[4], "(xx xx) Tj T*\r");
}

TEST(DrawTextBox, IlPuntoEIlSuoAngolo)
{
    ScriveInCentimetri([](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.DrawTextBox(2, 3, 5, 6, "testo", 1, 0, 36);
        EXPECT_FLOAT_EQ(pdf.GetX(), 2);
        EXPECT_FLOAT_EQ(pdf.GetY(), 3);
    });
}

TEST(DrawTextBox, ICentimetriDiventanoPunti)
{
    const auto righe = ScriveInCentimetri(
        [](clsPDFCreator& pdf) {
            pdf.SetFont("Arial", 8);
            pdf.DrawTextBox(0, 0, 1, 0.6F, "12", 1, 0, 36);
        },
        {"12"});
    // Middle: 0.3 cm, half the leading, the descent: 8.504 + 4 - 1.696. Offset: half of
    // 28.346 - 8.896.
    EXPECT_EQ(righe[3], "1 0 0 -1 0 10.808 Tm");
    EXPECT_EQ(righe[4], "9.725 0 Td (12) Tj -9.725 0 Td T*\r");
}

TEST(DrawTextBox, DueBianchiSonoUno)
{
    EXPECT_THAT(Riquadro("aa  bb", 1), ElementsAre("(aa bb) Tj T*"));
    EXPECT_THAT(Riquadro("aa     bb", 1), ElementsAre("(aa bb) Tj T*"));
}

TEST(DrawTextBox, UnaRigaVuotaFraDueParagrafiTieneUnBianco)
{
    EXPECT_THAT(Riquadro("aa\r\n\r\nbb", 1), ElementsAre("(aa) Tj T*", "( ) Tj T*", "(bb) Tj T*"));
    EXPECT_EQ(RigheDelRiquadro("aa\r\n\r\nbb"), 3);
}

TEST(DrawTextBox, UnACapoDaSoloNonFinisceLaRiga)
{
    EXPECT_EQ(RigheDelRiquadro("aa\nbb"), 1);
    EXPECT_EQ(RigheDelRiquadro("aa\rbb"), 1);
    EXPECT_EQ(RigheDelRiquadro("aa\n\rbb"), 1);
    EXPECT_EQ(RigheDelRiquadro("aa\r\nbb"), 2);
}

TEST(DrawTextBox, UnTestoVuotoEUnaRigaVuota)
{
    EXPECT_THAT(Riquadro("", 1), ElementsAre("() Tj T*"));
    EXPECT_EQ(RigheDelRiquadro(""), 1);
}

TEST(DrawTextBox, ADestraEAlCentro)
{
    EXPECT_THAT(Riquadro("aaaa", 2), ElementsAre("36 0 Td (aaaa) Tj -36 0 Td T*"));
    EXPECT_THAT(Riquadro("aaaa", 4), ElementsAre("18 0 Td (aaaa) Tj -18 0 Td T*"));
}

TEST(DrawTextBox, UnaRigaPiuLargaDelRiquadroSporgeASinistra)
{
    EXPECT_THAT(Riquadro("aaaaaaaaaaaa", 2), ElementsAre("-12 0 Td (aaaaaaaaaaaa) Tj 12 0 Td T*"));
    EXPECT_THAT(Riquadro("aaaaaaaaaaaa", 4), ElementsAre("-6 0 Td (aaaaaaaaaaaa) Tj 6 0 Td T*"));
}

TEST(DrawTextBox, LoSpostamentoZeroSiScriveLoStesso)
{
    EXPECT_THAT(Riquadro("aaaaaaaaaa", 2), ElementsAre("0 0 Td (aaaaaaaaaa) Tj 0 0 Td T*"));
}

TEST(DrawTextBox, IlRientroContaNellaLarghezzaESiAggiunge)
{
    // Right: 60 - (24 + 12) + 12; centre: half of it, then the indent.
    EXPECT_THAT(Riquadro("aaaa", 2, 12), ElementsAre("36 0 Td (aaaa) Tj -36 0 Td T*"));
    EXPECT_THAT(Riquadro("aaaa", 4, 12), ElementsAre("24 0 Td (aaaa) Tj -24 0 Td T*"));
}

TEST(DrawTextBox, IlRientroSpostaSoloLaPrimaRigaDelParagrafo)
{
    EXPECT_THAT(Riquadro("aaaa bbbb cccc\r\ndd", 1, 6),
                ElementsAre("6 0 Td (aaaa bbbb) Tj -6 0 Td T*", "(cccc) Tj T*",
                            "6 0 Td (dd) Tj -6 0 Td T*"));
}

TEST(DrawTextBox, GiustificatoAllargaIBianchiMaNonLUltimaRiga)
{
    // Two blanks share 60 - 48 points, one blank 60 - 54.
    EXPECT_THAT(Riquadro("aa bb cc ddddddd eeee fffff", 64),
                ElementsAre("6 Tw (aa bb cc) Tj 0 Tw T*", "(ddddddd) Tj T*", "(eeee fffff) Tj T*"));
}

TEST(DrawTextBox, GiustificatoRimetteLoSpazioDelChiamante)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        pdf.SetWordSpacing(2);
        pdf.DrawTextBox(0, 0, 60, 100, "aa bb cc dd", 1, 0, 64);
    });
    // Each blank is 8 points wide: 60 - (36 + 16). The 4 take the place of the 2, so that the line
    // ends at 56, twice 2 points before the edge.
    EXPECT_EQ(righe[5], "4 Tw (aa bb cc) Tj 2 Tw T*\r(dd) Tj T*\r");
}

TEST(DrawTextBox, GiustificatoColRientro)
{
    // 60 - (6 + 42) points for one blank.
    EXPECT_THAT(Riquadro("aaa bbb cccc", 64, 6),
                ElementsAre("12 Tw 6 0 Td (aaa bbb) Tj 0 Tw -6 0 Td T*", "(cccc) Tj T*"));
}

TEST(DrawTextBox, SenzaUnAllineamentoSoloNonCeSpostamento)
{
    for (const std::int32_t opzioni : {0, 3, 5, 6, 7, 65, 66, 68, 71, 32, 48}) {
        EXPECT_THAT(Riquadro("aaaa bb cc ddd", opzioni, 6),
                    ElementsAre("(aaaa bb) Tj T*", "(cc ddd) Tj T*"))
            << opzioni;
    }
}

TEST(DrawTextBox, GliAltriBitNonCambianoLAllineamento)
{
    EXPECT_THAT(Riquadro("aaaa", 12), ElementsAre("18 0 Td (aaaa) Tj -18 0 Td T*"));
    EXPECT_THAT(Riquadro("aaaa", 34), ElementsAre("36 0 Td (aaaa) Tj -36 0 Td T*"));
    EXPECT_THAT(Riquadro("aaaa", 36), ElementsAre("18 0 Td (aaaa) Tj -18 0 Td T*"));
    EXPECT_THAT(Riquadro("aaaa", 33), ElementsAre("(aaaa) Tj T*"));
}

TEST(DrawTextBox, InAltoLaPrimaRigaEUnInterlineaSotto)
{
    EXPECT_EQ(Matrice("a", 1), "1 0 0 -1 20 62 Tm"); // 50 + 15 - 3
    EXPECT_EQ(Matrice("a\r\nb\r\nc", 1), "1 0 0 -1 20 62 Tm");
}

TEST(DrawTextBox, InBassoFinisceSulFondo)
{
    EXPECT_EQ(Matrice("a", 17), "1 0 0 -1 20 147 Tm"); // 150 - 3
    EXPECT_EQ(Matrice("a\r\nb\r\nc", 17), "1 0 0 -1 20 117 Tm");
}

TEST(DrawTextBox, InMezzoMezzaInterlineaSottoLaMeta)
{
    EXPECT_EQ(Matrice("a", 33), "1 0 0 -1 20 104.5 Tm"); // 100 + 7.5 - 3
    EXPECT_EQ(Matrice("a\r\nb", 33), "1 0 0 -1 20 97 Tm");
    EXPECT_EQ(Matrice("a\r\nb\r\nc", 33), "1 0 0 -1 20 89.5 Tm");
    EXPECT_EQ(Matrice("a", 49), Matrice("a", 33)); // with both bits: the middle
}

TEST(DrawTextBox, LaDiscesaSiScalaColTesto)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        pdf.SetTextHorizontalScaling(50);
        pdf.DrawTextBox(20, 50, 60, 100, "a");
    });
    EXPECT_EQ(righe[4], "1 0 0 -1 20 58.5 Tm"); // 50 + 10 - 1.5
}

TEST(DrawTextBox, OgniFamigliaHaLaSuaDiscesa)
{
    const auto conta = [](std::string_view famiglia) {
        return Scrive([famiglia](clsPDFCreator& pdf) {
            pdf.SetFont(famiglia, 100);
            pdf.DrawTextBox(0, 0, 60, 100, "a");
        })[3];
    };
    EXPECT_EQ(conta("Arial"), "1 0 0 -1 0 78.8 Tm");
    EXPECT_EQ(conta("Times New Roman"), "1 0 0 -1 0 78.4 Tm");
    EXPECT_EQ(conta("Courier New"), "1 0 0 -1 0 70 Tm");
    EXPECT_EQ(conta("Symbol"), "1 0 0 -1 0 78 Tm");
    EXPECT_EQ(conta("ZapfDingbats"), "1 0 0 -1 0 85.7 Tm");
}

TEST(DrawTextBox, GiratoAttornoAllaSuaPrimaRiga)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        pdf.DrawTextBox(20, 50, 60, 100, "a", 1, 0, 1, 90);
    });
    EXPECT_EQ(righe[2], "1 0 0 -1 0 842 Tm");
    EXPECT_EQ(righe[3], "0 -1 -1 0 20 57 Tm");
}

TEST(DrawTextBox, NonTagliaESiFermaSoloAlTesto)
{
    // Forty lines in a box with room for two, and no clipping.
    std::string testo = "riga";
    for (int i = 1; i < 40; ++i) testo += "\r\nriga";
    const auto righe = Scrive([&testo](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        EXPECT_EQ(pdf.DrawTextBox(0, 0, 60, 20, testo), 40);
    });
    EXPECT_EQ(righe.size(), 6U);
}

TEST(DrawTextBox, IlTestoEProtetto)
{
    EXPECT_THAT(Riquadro("(a) \\", 1), ElementsAre("(\\(a\\) \\\\) Tj T*"));
}

TEST(DrawParagraph, EComeDrawTextBox)
{
    const auto con = [](bool paragrafo) {
        return Scrive([paragrafo](clsPDFCreator& pdf) {
            pdf.SetFont("Arial", 10);
            const std::string_view testo = "uno due tre quattro\r\ncinque";
            EXPECT_EQ(paragrafo ? pdf.DrawParagraph(10, 20, 60, 90, testo, 1.2F, 5, 64, 30)
                                : pdf.DrawTextBox(10, 20, 60, 90, testo, 1.2F, 5, 64, 30),
                      3);
        });
    };
    EXPECT_EQ(con(true), con(false));
}

TEST(DrawParagraph, SenzaAltriArgomentiAllineaASinistraInAlto)
{
    const auto righe = Scrive([](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        pdf.DrawParagraph(20, 50, 60, 100, "a");
    });
    EXPECT_EQ(righe[1], "/_FNT_1 10 Tf 10 TL");
    EXPECT_EQ(righe[3], "1 0 0 -1 20 57 Tm");
    EXPECT_EQ(righe[4], "(a) Tj T*\r");
}
