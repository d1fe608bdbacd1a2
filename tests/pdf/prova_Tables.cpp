// Tables: frames, backgrounds, and where each row and cell begins.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using aiuti::Disegno;
using aiuti::Scrive;
using aiuti::ScriveInCentimetri;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

// A table at (10, 20) without frames or backgrounds: only where things stand.
std::vector<std::string> Scheletro(const Disegno& righe)
{
    auto scritte = Scrive([&righe](clsPDFCreator& pdf) {
        pdf.BeginTable(10, 20, "", 0);
        righe(pdf);
        pdf.EndTable();
    });
    EXPECT_THAT(scritte, testing::SizeIs(testing::Ge(3U)));
    EXPECT_EQ(scritte.front(), "q");
    EXPECT_EQ(scritte.at(1), "0 w");
    EXPECT_EQ(scritte.back(), "Q");
    return {scritte.begin() + 2, scritte.end() - 1};
}

void Riga(clsPDFCreator& pdf, float altezza, std::initializer_list<float> larghezze)
{
    pdf.BeginRow(altezza);
    for (const float larghezza : larghezze) {
        pdf.BeginColumn(larghezza);
        pdf.EndColumn();
    }
    pdf.EndRow();
}

// The lines of one cell 100 by 40 in a row at (0, 0), within "q" and "Q" of the cell.
std::vector<std::string> Cella(const Disegno& tabella, const Disegno& cella)
{
    const auto scritte = Scrive([&](clsPDFCreator& pdf) {
        tabella(pdf);
        pdf.BeginRow(40, "", 0);
        cella(pdf);
        pdf.EndColumn();
        pdf.EndRow();
        pdf.EndTable();
    });
    std::vector<std::string> dentro;
    const auto inizio = std::find(scritte.begin(), scritte.end(), "q"); // of the table
    for (auto riga = inizio + 4; riga < scritte.end() - 3; ++riga) dentro.push_back(*riga);
    return dentro;
}

} // namespace

// ---- Places ----------------------------------------------------------------------------------

TEST(Tabella, SalvaLoStatoColSuoSpessore)
{
    EXPECT_THAT(ScriveInCentimetri([](clsPDFCreator& pdf) {
                    pdf.BeginTable(2, 3.5F, "White", 0.01F, "Gray");
                    pdf.EndTable();
                }),
                ElementsAre("q", "0.283 w", "Q"));
}

TEST(Tabella, LeRigheScendonoDellaLoroAltezza)
{
    EXPECT_THAT(Scheletro([](clsPDFCreator& pdf) {
                    Riga(pdf, 5, {});
                    Riga(pdf, 7, {});
                    Riga(pdf, 1, {});
                }),
                ElementsAre("q", "1 0 0 1 10 20 cm", "Q", "q", "1 0 0 1 10 25 cm", "Q", "q",
                            "1 0 0 1 10 32 cm", "Q"));
}

TEST(Tabella, DueCelleDiCinqueETre)
{
    // From 0 and 5 of the row: the first one needs no translation.
    EXPECT_THAT(Scheletro([](clsPDFCreator& pdf) {
                    Riga(pdf, 5, {5, 3, 1});
                }),
                ElementsAre("q", "1 0 0 1 10 20 cm", "q", "Q", "q", "1 0 0 1 5 0 cm", "Q", "q",
                            "1 0 0 1 8 0 cm", "Q", "Q"));
}

TEST(Tabella, OgniRigaRicominciaDaSinistra)
{
    EXPECT_THAT(Scheletro([](clsPDFCreator& pdf) {
                    Riga(pdf, 5, {5});
                    Riga(pdf, 5, {5});
                }),
                ElementsAre("q", "1 0 0 1 10 20 cm", "q", "Q", "Q", "q", "1 0 0 1 10 25 cm", "q",
                            "Q", "Q"));
}

TEST(Tabella, DopoLaFineIlPuntoEIlSuoAngolo)
{
    ScriveInCentimetri([](clsPDFCreator& pdf) {
        pdf.BeginTable(2, 3.5F, "White", 0.01F, "Gray");
        EXPECT_FLOAT_EQ(pdf.GetX(), 2);
        EXPECT_FLOAT_EQ(pdf.GetY(), 3.5F);
        pdf.BeginRow(1);
        EXPECT_EQ(pdf.GetX(), 0);
        EXPECT_EQ(pdf.GetY(), 0);
        pdf.BeginColumn(1);
        EXPECT_EQ(pdf.GetX(), 0);
        pdf.DrawLine(5, 5, 6, 6);
        pdf.EndColumn();
        pdf.EndRow();
        pdf.EndTable();
        EXPECT_FLOAT_EQ(pdf.GetX(), 2);
        EXPECT_FLOAT_EQ(pdf.GetY(), 3.5F);
    });
}

TEST(Tabella, UnaSecondaTabellaRicominciaDaCapo)
{
    const auto scritte = Scrive([](clsPDFCreator& pdf) {
        for (const float x : {10.0F, 100.0F}) {
            pdf.BeginTable(x, 20, "", 1, "red");
            pdf.BeginRow(5);
            pdf.BeginColumn(30);
            pdf.EndColumn();
            pdf.EndRow();
            pdf.EndTable();
        }
    });
    // The frame of a table's first row is as wide as no cell at all.
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "0 0 0 5 re"), 2);
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "1 0 0 1 100 20 cm"), 1);
}

TEST(Tabella, CioCheNonEApertoNonSiChiude)
{
    EXPECT_THAT(Scheletro([](clsPDFCreator& pdf) {
                    pdf.EndColumn();
                    pdf.EndRow();
                    pdf.BeginRow(5);
                    pdf.EndColumn();
                    pdf.BeginColumn(3);
                    pdf.EndColumn();
                    pdf.EndColumn();
                    pdf.BeginColumn(2);
                    pdf.EndColumn();
                    pdf.EndRow();
                    pdf.EndRow();
                }),
                ElementsAre("q", "1 0 0 1 10 20 cm", "q", "Q", "q", "1 0 0 1 3 0 cm", "Q", "Q"));
}

// ---- Frames and backgrounds ------------------------------------------------------------------

TEST(Cella, FondoRientratoEContorno)
{
    // Half the line inside, then the frame; fill, line and colours of before come back.
    EXPECT_THAT(Cella([](clsPDFCreator& pdf) { pdf.BeginTable(0, 0, "", 0); },
                      [](clsPDFCreator& pdf) { pdf.BeginColumn(100, "White", 2, "Gray"); }),
                ElementsAre("1 1 1 rg", "n", "1 1 98 38 re", "f", "0 0 0 rg", "2 w", "[ ] 0 d",
                            "0.502 0.502 0.502 RG", "n", "0 0 100 40 re", "S", "1 w", "[ ] 0 d",
                            "0 0 0 RG"));
}

TEST(Riga, BiancaConLineaDiUnCentesimoDiCentimetro)
{
    // The second row's frame is as wide as the cell of the first one; inset 0.005 cm.
    const auto scritte = ScriveInCentimetri([](clsPDFCreator& pdf) {
        pdf.BeginTable(0, 0, "White", 0.01F, "Gray");
        Riga(pdf, 1, {4});
        pdf.BeginRow(1);
        pdf.EndRow();
        pdf.EndTable();
    });
    const auto seconda = std::find(scritte.begin(), scritte.end(), "1 0 0 1 0 28.346 cm");
    ASSERT_NE(seconda, scritte.end());
    EXPECT_THAT(std::vector<std::string>(seconda + 1, scritte.end() - 2),
                ElementsAre("1 1 1 rg", "n", "0.142 0.142 113.102 28.063 re", "f", "0 0 0 rg",
                            "0.283 w", "[ ] 0 d", "0.502 0.502 0.502 RG", "n",
                            "0 0 113.386 28.346 re", "S", "1 w", "[ ] 0 d", "0 0 0 RG"));
}

TEST(Riga, LargaComeLUltimaCellaCominciata)
{
    const auto scritte = Scrive([](clsPDFCreator& pdf) {
        pdf.BeginTable(0, 0, "", 1);
        Riga(pdf, 10, {30, 50});
        Riga(pdf, 20, {});
        pdf.EndTable();
    });
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "0 0 0 10 re"), 1);
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "0 0 30 10 re"), 1);
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "0 0 50 10 re"), 1);
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "0 0 50 20 re"), 1);
}

TEST(Cella, ConSpessoreZeroNessunContorno)
{
    EXPECT_THAT(Cella([](clsPDFCreator& pdf) { pdf.BeginTable(0, 0, "", 1, "red"); },
                      [](clsPDFCreator& pdf) { pdf.BeginColumn(100, "blue", 0); }),
                ElementsAre("0 0 1 rg", "n", "0 0 100 40 re", "f", "0 0 0 rg"));
}

TEST(Cella, SenzaColoreNessunFondo)
{
    EXPECT_THAT(Cella([](clsPDFCreator& pdf) { pdf.BeginTable(0, 0, "", 0); },
                      [](clsPDFCreator& pdf) { pdf.BeginColumn(100, "", 1); }),
                ElementsAre("1 w", "[ ] 0 d", "0 0 0 RG", "n", "0 0 100 40 re", "S", "1 w",
                            "[ ] 0 d", "0 0 0 RG"));
    EXPECT_THAT(Cella([](clsPDFCreator& pdf) { pdf.BeginTable(0, 0, "", 0); },
                      [](clsPDFCreator& pdf) { pdf.BeginColumn(100); }),
                testing::IsEmpty());
}

TEST(Cella, RimetteColoriESpessoreDelChiamante)
{
    EXPECT_THAT(Cella(
                    [](clsPDFCreator& pdf) {
                        pdf.SetColorFill("red");
                        pdf.SetColorLine("blue");
                        pdf.SetLineStyle(3);
                        pdf.BeginTable(0, 0, "white", 0, "");
                    },
                    [](clsPDFCreator& pdf) { pdf.BeginColumn(100, "", 2, "green"); }),
                // The row above has no frame, but the table's background, as wide as nothing.
                ElementsAreArray({"n", "0 0 0 40 re", "f", "1 0 0 rg", "q", "1 1 1 rg", "n",
                                  "1 1 98 38 re", "f", "1 0 0 rg", "2 w", "[ ] 0 d", "0 1 0 RG",
                                  "n", "0 0 100 40 re", "S", "3 w", "[ ] 0 d", "0 0 1 RG"}));
}

// A tiling of kind 2 cannot be chosen again without its colour.
TEST(Cella, RimetteIMotiviColLoroColore)
{
    EXPECT_THAT(
        Cella(
            [](clsPDFCreator& pdf) {
                pdf.SetColorFill("Punti", "red");
                pdf.SetColorLine("Righe", "blue");
                pdf.BeginTable(0, 0, "white", 0, "");
            },
            [](clsPDFCreator& pdf) { pdf.BeginColumn(100, "", 2, "green"); }),
        ElementsAreArray({"n", "0 0 0 40 re", "f", "/xxCSxx cs 1 0 0 /Punti scn", "q", "1 1 1 rg",
                          "n", "1 1 98 38 re", "f", "/xxCSxx cs 1 0 0 /Punti scn", "2 w", "[ ] 0 d",
                          "0 1 0 RG", "n", "0 0 100 40 re", "S", "1 w", "[ ] 0 d",
                          "/xxCSxx CS 0 0 1 /Righe SCN"}));
}

TEST(Tabella, PrendeIMotiviPresentiColLoroColore)
{
    EXPECT_THAT(Cella(
                    [](clsPDFCreator& pdf) {
                        pdf.SetColorFill("Punti", "red");
                        pdf.SetColorLine("Righe", "blue");
                        pdf.BeginTable(0, 0);
                    },
                    [](clsPDFCreator& pdf) { pdf.BeginColumn(100, "", 2); }),
                testing::AllOf(testing::Contains("/xxCSxx cs 1 0 0 /Punti scn").Times(3),
                               testing::Contains("/xxCSxx CS 0 0 1 /Righe SCN").Times(2)));
}

// ---- Tables in cells -------------------------------------------------------------------------

TEST(Tabella, DentroUnaCellaQuellaDiFuoriResta)
{
    EXPECT_THAT(Scheletro([](clsPDFCreator& pdf) {
                    pdf.BeginRow(50);
                    pdf.BeginColumn(30);
                    pdf.BeginTable(1, 2, "", 0);
                    Riga(pdf, 5, {6});
                    pdf.EndTable();
                    EXPECT_EQ(pdf.GetX(), 1);
                    EXPECT_EQ(pdf.GetY(), 2);
                    pdf.EndColumn();
                    pdf.BeginColumn(40);
                    pdf.EndColumn();
                    pdf.EndRow();
                    Riga(pdf, 1, {});
                }),
                ElementsAre("q", "1 0 0 1 10 20 cm", "q",          // row and cell, the cell at 0
                            "q", "0 w",                            // the table in it
                            "q", "1 0 0 1 1 2 cm", "q", "Q",       // its row and cell
                            "Q", "Q",                              // end of both
                            "Q", "q", "1 0 0 1 30 0 cm", "Q", "Q", // the second cell
                            "q", "1 0 0 1 10 70 cm", "Q"));        // the next row
}

TEST(Tabella, DentroUnaCellaPrendeIlSuoStileEPoiQuelloDiFuoriTorna)
{
    const auto scritte = Scrive([](clsPDFCreator& pdf) {
        pdf.BeginTable(0, 0, "white", 2, "red");
        pdf.BeginRow(10);
        pdf.BeginColumn(30);
        pdf.BeginTable(0, 0, "blue", 1, "green");
        Riga(pdf, 5, {5});
        pdf.EndTable();
        pdf.EndColumn();
        pdf.BeginColumn(30);
        pdf.EndColumn();
        pdf.EndRow();
        pdf.EndTable();
    });
    const auto conta = [&scritte](const char* riga) {
        return std::count(scritte.begin(), scritte.end(), riga);
    };
    EXPECT_EQ(conta("1 1 1 rg"), 3); // the outer row and cells
    EXPECT_EQ(conta("1 0 0 RG"), 3);
    EXPECT_EQ(conta("0 0 1 rg"), 2); // the inner row and cell
    EXPECT_EQ(conta("0 1 0 RG"), 2);
    EXPECT_EQ(conta("q"), conta("Q"));
}

TEST(Tabella, SiAnnidanoQuantoSiVuole)
{
    constexpr int quante = 40;
    const auto scritte = Scrive([](clsPDFCreator& pdf) {
        for (int i = 0; i < quante; ++i) {
            pdf.BeginTable(1, 1, "", 0);
            pdf.BeginRow(9);
            pdf.BeginColumn(static_cast<float>(i));
        }
        for (int i = quante - 1; i >= 0; --i) {
            pdf.EndColumn();
            pdf.BeginColumn(1); // to the right of the cell before
            pdf.EndColumn();
            pdf.EndRow();
            pdf.EndTable();
        }
    });
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "q"), 4 * quante);
    EXPECT_EQ(std::count(scritte.begin(), scritte.end(), "Q"), 4 * quante);
    for (int i = 1; i < quante; ++i) {
        EXPECT_EQ(
            std::count(scritte.begin(), scritte.end(), "1 0 0 1 " + std::to_string(i) + " 0 cm"), 1)
            << i;
    }
}

TEST(Tabella, InUnaRigaSenzaCellaApertaNonTorna)
{
    // The second table's EndRow has ended the one row there is; nothing gives back the first.
    const std::string byte = aiuti::ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.BeginTable(10, 20, "", 0);
        pdf.BeginRow(50);
        pdf.BeginColumn(30);
        pdf.EndColumn();
        pdf.BeginTable(1, 2, "", 0);
        Riga(pdf, 5, {});
        pdf.EndTable();
        pdf.EndRow();
        pdf.EndTable();
        pdf.EndPage();
    });
    EXPECT_THAT(byte, testing::HasSubstr("q\r\n0 w\r\nq\r\n1 0 0 1 1 2 cm\r\nQ\r\n" // the row
                                         "Q\r\nQ\r\nendstream"));
}

TEST(Tabella, LasciataApertaNonTornaSuUnAltraPagina)
{
    const std::string byte = aiuti::ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.BeginTable(0, 0);
        pdf.BeginRow(1);
        pdf.BeginColumn(1);
        pdf.BeginTable(0, 0);
        pdf.EndPage();
        pdf.BeginPage();
        pdf.BeginTable(0, 0);
        pdf.EndTable();
        pdf.EndColumn(); // neither a cell nor a row is open here
        pdf.EndRow();
        pdf.EndPage();
    });
    const auto seconda = byte.substr(byte.rfind("1 0 0 -1 0 842 cm"));
    EXPECT_THAT(seconda, testing::HasSubstr("\r\nq\r\n1 w\r\nQ\r\nendstream"));
}

// ---- What is taken over ----------------------------------------------------------------------

TEST(Riga, ConMenoUnoPrendeLoSpessoreDellaTabella)
{
    const auto scritte = Scrive([](clsPDFCreator& pdf) {
        pdf.BeginTable(0, 0, "", 2, "Gray");
        pdf.BeginRow(10, "", -1, "");
        pdf.EndRow();
        pdf.EndTable();
    });
    EXPECT_THAT(scritte, ElementsAre("q", "2 w", "q", "2 w", "[ ] 0 d", "0.502 0.502 0.502 RG", "n",
                                     "0 0 0 10 re", "S", "1 w", "[ ] 0 d", "0 0 0 RG", "Q", "Q"));
}

TEST(Cella, PrendeDallaRigaCioCheNonDice)
{
    const auto scritte = Scrive([](clsPDFCreator& pdf) {
        pdf.BeginTable(0, 0, "white", 2, "gray");
        pdf.BeginRow(10, "red", 3, "blue");
        pdf.BeginColumn(20);
        pdf.EndColumn();
        pdf.EndRow();
        pdf.BeginRow(10);
        pdf.EndRow();
        pdf.EndTable();
    });
    const auto conta = [&scritte](const char* riga) {
        return std::count(scritte.begin(), scritte.end(), riga);
    };
    EXPECT_EQ(conta("1 0 0 rg"), 2); // row and cell
    EXPECT_EQ(conta("3 w"), 2);
    EXPECT_EQ(conta("0 0 1 RG"), 2);
    EXPECT_EQ(conta("1 1 1 rg"), 1); // the second row is the table's again
    EXPECT_EQ(conta("2 w"), 2);      // and the table's own
    EXPECT_EQ(conta("0.502 0.502 0.502 RG"), 1);
}

TEST(Tabella, SenzaSpessoreEColoreDiLineaPrendeIPresenti)
{
    const auto scritte = Scrive([](clsPDFCreator& pdf) {
        pdf.SetLineStyle(3);
        pdf.SetColorLine("blue");
        pdf.BeginTable(0, 0);
        pdf.BeginRow(10);
        pdf.EndRow();
        pdf.EndTable();
    });
    EXPECT_THAT(std::vector<std::string>(scritte.begin() + 3, scritte.end()),
                ElementsAre("q", "3 w", "q", "3 w", "[ ] 0 d", "0 0 1 RG", "n", "0 0 0 10 re", "S",
                            "3 w", "[ ] 0 d", "0 0 1 RG", "Q", "Q"));
}

TEST(Tabella, SenzaFondoPrendeQuelloSceltoSuQuestaPagina)
{
    const auto conFondo = [](const Disegno& prima) {
        const auto scritte = Scrive([&prima](clsPDFCreator& pdf) {
            prima(pdf);
            pdf.BeginTable(0, 0, "", 0);
            pdf.BeginRow(10);
            pdf.EndRow();
            pdf.EndTable();
        });
        return std::count(scritte.begin(), scritte.end(), "f");
    };
    EXPECT_EQ(conFondo([](clsPDFCreator&) {}), 0); // the black that every page begins with
    EXPECT_EQ(conFondo([](clsPDFCreator& pdf) { pdf.SetColorFill("red"); }), 1);
    EXPECT_EQ(conFondo([](clsPDFCreator& pdf) { pdf.SetColorFill("black"); }), 1);
    EXPECT_EQ(conFondo([](clsPDFCreator& pdf) { pdf.SetColorFill(""); }), 0);
}

TEST(Tabella, IlFondoSceltoSuUnAltraPaginaNonConta)
{
    const auto letto = aiuti::Documento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.SetColorFill("red");
        pdf.EndPage();
        pdf.BeginPage();
        pdf.BeginTable(0, 0, "", 0);
        pdf.BeginRow(10);
        pdf.EndRow();
        pdf.EndTable();
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Contenuto(2).find("\r\nf\r\n"), std::string::npos);
}

TEST(Tabella, DentroUnModulo)
{
    const auto letto = aiuti::Documento({}, [](clsPDFCreator& pdf) {
        pdf.BeginObject("Tavola");
        pdf.BeginTable(10, 20, "", 0);
        Riga(pdf, 5, {5});
        pdf.EndTable();
        pdf.EndObject();
        pdf.BeginPage();
        pdf.PlayObject("Tavola");
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Flusso(7),
              "q\r\nq\r\n0 w\r\nq\r\n1 0 0 1 10 20 cm\r\nq\r\nQ\r\nQ\r\nQ\r\nQ\r\n");
}
