// Names that a caller's text becomes: of reusable objects, tilings and the patterns that colours
// are.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"
#include "Windows1252.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using aiuti::ByteDocumento;
using aiuti::Disegno;
using aiuti::Documento;
using aiuti::ErroreDi;
using aiuti::LeggiPdf;
using aiuti::Scrive;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// Operators that would paint over the page and leave its state unbalanced.
constexpr std::string_view Ostile = "x scn Q BT (a) Tj ET q %";
constexpr std::string_view OstileScritto = "x#20scn#20Q#20BT#20#28a#29#20Tj#20ET#20q#20#25";

struct Uso
{
    std::string Nome;
    std::string Che; // what the message calls it
    std::function<void(clsPDFCreator&, std::string_view)> Fa;
};

// Every operation that makes a name of a text, on an open page with a table and a row begun.
std::vector<Uso> Usi()
{
    using Pdf = clsPDFCreator;
    using Testo = std::string_view;
    return {
        {"BeginObject", "un modulo", [](Pdf& pdf, Testo t) { pdf.BeginObject(t, 7); }},
        {"PlayObject", "un modulo", [](Pdf& pdf, Testo t) { pdf.PlayObject(t); }},
        {"BeginTiling", "una trama",
         [](Pdf& pdf, Testo t) { pdf.BeginTiling(t, 0, 0, 1, 1, 1, 1); }},
        {"SetColorFill", "una trama", [](Pdf& pdf, Testo t) { pdf.SetColorFill(t); }},
        {"SetColorLine", "una trama", [](Pdf& pdf, Testo t) { pdf.SetColorLine(t, "Red"); }},
        {"BeginTable", "una trama", [](Pdf& pdf, Testo t) { pdf.BeginTable(9, 9, t); }},
        {"BeginTable, linea", "una trama",
         [](Pdf& pdf, Testo t) { pdf.BeginTable(9, 9, "", 1, t); }},
        {"BeginRow", "una trama", [](Pdf& pdf, Testo t) { pdf.BeginRow(9, t); }},
        {"BeginRow, linea", "una trama", [](Pdf& pdf, Testo t) { pdf.BeginRow(9, "", 1, t); }},
        {"BeginColumn", "una trama", [](Pdf& pdf, Testo t) { pdf.BeginColumn(9, t); }},
        {"BeginColumn, linea", "una trama",
         [](Pdf& pdf, Testo t) { pdf.BeginColumn(9, "", 1, t); }},
    };
}

void Tabella(clsPDFCreator& pdf, const Disegno& nellaRiga)
{
    pdf.BeginTable(0, 0, "", 0);
    pdf.BeginRow(5);
    nellaRiga(pdf);
    pdf.BeginColumn(5);
    pdf.EndColumn();
    pdf.EndRow();
    pdf.BeginRow(5); // below the first one: as high as that was
    pdf.EndRow();
    pdf.EndTable();
}

// A tiling and an object of that name, both used on the page.
Disegno UsatiDappertutto(std::string_view nome)
{
    return [nome](clsPDFCreator& pdf) {
        pdf.BeginTiling(nome, 0, 0, 4, 4, 4, 4);
        pdf.EndTiling();
        pdf.BeginObject(nome, 7);
        pdf.EndObject();
        pdf.BeginPage();
        pdf.SetColorFill(nome);
        pdf.SetColorLine(nome, "Red");
        pdf.PlayObject(nome);
        pdf.EndPage();
    };
}

std::string Ripetuto(std::string_view pezzo, int volte)
{
    std::string testo;
    for (int i = 0; i < volte; ++i) testo += pezzo;
    return testo;
}

} // namespace

// ---- Escapes ---------------------------------------------------------------------------------

TEST(Nomi, UnColoreOstileRestaUnNome)
{
    const std::string nome(OstileScritto);
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetColorFill(Ostile); }),
                ElementsAre("/Pattern cs /" + nome + " scn"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetColorLine(Ostile); }),
                ElementsAre("/Pattern CS /" + nome + " SCN"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetColorFill(Ostile, "Red"); }),
                ElementsAre("/xxCSxx cs 1 0 0 /" + nome + " scn"));
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) { pdf.SetColorLine(Ostile, "Red"); }),
                ElementsAre("/xxCSxx CS 1 0 0 /" + nome + " SCN"));
}

TEST(Nomi, UgualiDoveSonoDefinitiEDoveSiUsano)
{
    const std::string nome = "/Citt#E0#20#28alta#29#2F1#23#25";
    const auto letto = Documento({}, UsatiDappertutto("Città (alta)/1#%"));
    EXPECT_THAT(letto.NomiMancanti, IsEmpty());
    EXPECT_THAT(letto.Oggetto(9), HasSubstr("/Name " + nome + "\r\n"));
    EXPECT_THAT(letto.Oggetto(5), HasSubstr("/XObject <<\r" + nome + " 9 0 R \r>>"));
    EXPECT_THAT(letto.Oggetto(6), HasSubstr("/Pattern <<\r" + nome + " 7 0 R \r>>"));
    EXPECT_EQ(letto.Contenuto(1), "1 0 0 -1 0 842 cm \r\n0 0 0 rg\r\n0 0 0 RG\r\n" + nome +
                                      " Do\r\n/Pattern cs " + nome + " scn\r\n/xxCSxx CS 1 0 0 " +
                                      nome + " SCN\r\n" + nome + " Do\r\n");
}

TEST(Nomi, OgniByteMenoLoZero)
{
    for (int codice = 1; codice < 256; ++codice) {
        std::string nome = "a"; // alone, "#" and "%" would be colours
        AggiungiUtf8(nome, DaWindows1252(static_cast<unsigned char>(codice)));
        const auto letto = LeggiPdf(ByteDocumento({}, UsatiDappertutto(nome)));
        EXPECT_THAT(letto.Difetti, IsEmpty()) << codice;
        EXPECT_THAT(letto.NomiMancanti, IsEmpty()) << codice;
    }
}

TEST(Nomi, SempliciRestanoComeSono)
{
    const std::string regolari = "!\"$&'*+,-.0123456789:;=?@ABC\\^_`abcxyz|~";
    EXPECT_THAT(Scrive([&](clsPDFCreator& pdf) {
                    pdf.SetColorFill(regolari);
                    pdf.PlayObject(regolari);
                }),
                ElementsAre("/Pattern cs /" + regolari + " scn", "/" + regolari + " Do"));
}

TEST(Nomi, VuotoSiGioca)
{
    EXPECT_THAT(ByteDocumento({},
                              [](clsPDFCreator& pdf) {
                                  pdf.BeginPage();
                                  pdf.PlayObject("");
                                  pdf.EndPage();
                              }),
                HasSubstr("\r\n/ Do\r\n"));
}

TEST(Nomi, DelleTabelle)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.BeginTable(0, 0, "a b", 0);
                    pdf.BeginRow(2);
                    pdf.BeginColumn(2, "(", 1, " #");
                    pdf.EndColumn();
                    pdf.EndRow();
                    pdf.EndTable();
                }),
                ElementsAre("q", "0 w", "q", "/Pattern cs /a#20b scn", "n", "0 0 0 2 re", "f",
                            "0 0 0 rg", "q", "/Pattern cs /#28 scn", "n", "0.5 0.5 1 1 re", "f",
                            "0 0 0 rg", "1 w", "[ ] 0 d", "/Pattern CS /#20#23 SCN", "n",
                            "0 0 2 2 re", "S", "1 w", "[ ] 0 d", "0 0 0 RG", "Q", "Q", "Q"));
}

// ---- What reads as a colour --------------------------------------------------------------------

TEST(Nomi, QuelloCheSiLeggeComeColoreNonENome)
{
    EXPECT_THAT(
        Scrive([](clsPDFCreator& pdf) {
            pdf.SetColorFill("#FF0000 Q BT");
            pdf.SetColorFill("%25 Q BT");
            pdf.SetColorFill("rEd");
            pdf.SetColorFill(std::string_view("#\0Q", 3));
            pdf.SetColorFill("#" + std::string(500, '('));
        }),
        ElementsAre("1 0 0 rg", "0.753 0.753 0.753 rg", "1 0 0 rg", "0 0 0 rg", "0 0 0 rg"));
}

TEST(Nomi, IlColoreDiUnaTramaCheETramaNonSiScriveMai)
{
    for (const std::string& inchiostro :
         {std::string(Ostile), std::string(200, 'a'), std::string("a\0b", 3), std::string()}) {
        EXPECT_THAT(Scrive([&](clsPDFCreator& pdf) { pdf.SetColorFill("Punti", inchiostro); }),
                    ElementsAre("/Pattern cs /Punti scn"));
    }
}

TEST(Nomi, NoteESfumaturePrendonoSoloNumeri)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.AddNoteIcon("a", 0, 0, 20, false, Ostile);
        pdf.AddNoteBox("a", 0, 0, 20, 20, 9, Ostile, 0, 1, 0, Ostile);
        pdf.SetLinearFill({std::string(Ostile), std::string(Ostile)}, 0, 0, 9, 9);
        pdf.EndPage();
    });
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("\r\n/Pattern cs /SHAD_1_ING scn\r\n"));
    for (const auto& oggetto : letto.Oggetti) EXPECT_EQ(oggetto.find("scn"), std::string::npos);
}

// ---- Refused -----------------------------------------------------------------------------------

TEST(Nomi, ConUnoZeroOTroppoLunghiSonoUnErrore)
{
    for (const Uso& uso : Usi()) {
        const auto rifiuta = [&uso](const std::string& nome, const std::string& perche) {
            const auto errore = ErroreDi([&] {
                Scrive([&](clsPDFCreator& pdf) {
                    Tabella(pdf, [&](clsPDFCreator& dentro) { uso.Fa(dentro, nome); });
                });
            });
            ASSERT_TRUE(errore) << uso.Nome;
            EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida) << uso.Nome;
            EXPECT_EQ(errore->Motivo(), "il nome di " + uso.Che + perche) << uso.Nome;
        };
        rifiuta(std::string("\0", 1), " contiene un byte 0");
        rifiuta(std::string("Mattoni\0", 8), " contiene un byte 0");
        rifiuta(std::string(128, 'a'), " ha 128 byte: al massimo sono 127");
        rifiuta(Ripetuto("è", 128), " ha 128 byte: al massimo sono 127");
    }
}

TEST(Nomi, RifiutatiNonScrivonoNiente)
{
    const auto senza = Scrive([](clsPDFCreator& pdf) { Tabella(pdf, [](clsPDFCreator&) {}); });
    for (const Uso& uso : Usi()) {
        EXPECT_EQ(Scrive([&uso](clsPDFCreator& pdf) {
                      Tabella(pdf, [&uso](clsPDFCreator& dentro) {
                          EXPECT_TRUE(ErroreDi([&] { uso.Fa(dentro, std::string(128, '(')); }));
                      });
                  }),
                  senza)
            << uso.Nome;
    }
}

TEST(Nomi, DiCentoventisetteLettereAccentateVannoBene)
{
    const auto letto = LeggiPdf(ByteDocumento({}, UsatiDappertutto(Ripetuto("è", 127))));
    EXPECT_THAT(letto.Difetti, IsEmpty());
    EXPECT_THAT(letto.NomiMancanti, IsEmpty());
    EXPECT_THAT(letto.Contenuto(1), HasSubstr("\r\n/" + Ripetuto("#E8", 127) + " Do\r\n"));
}
