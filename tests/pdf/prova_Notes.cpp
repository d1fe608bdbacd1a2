// Notes and links. Pages are 842 points high, and everything here counts y from the bottom: what a
// caller places at 20 stands at 822.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using aiuti::Disegno;
using aiuti::Documento;
using testing::HasSubstr;
using testing::Not;

namespace {

const Disegno Niente = [](clsPDFCreator&) {};

// The annotation that disegno puts on a page: page 7, its content 8 and 9, the array 10.
std::string Annotazione(const Disegno& disegno, const Disegno& prima = Niente)
{
    const auto letto = Documento(prima, [&disegno](clsPDFCreator& pdf) {
        pdf.BeginPage();
        disegno(pdf);
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Oggetto(10), "[ 11 0 R  ]");
    return letto.Oggetto(11);
}

} // namespace

// ---- Notes -----------------------------------------------------------------------------------

TEST(AddNoteIcon, TuttoQuelloCheUnaNotaPuoAvere)
{
    EXPECT_EQ(Annotazione([](clsPDFCreator& pdf) {
                  pdf.AddNoteIcon("Ciao (a)", 3, 100, 200, true, "Red", "Titolo", 28);
              }),
              "<< /Type /Annot\r/Subtype /Text\r/Rect [100 622 120 642]\r/Contents (Ciao \\(a\\))\r"
              "/F 28\r/T (Titolo)\r/C [ 1 0 0 ]\r/Open true /Name /Help\r>>");
}

TEST(AddNoteIcon, CioCheMancaNonSiScrive)
{
    EXPECT_EQ(Annotazione([](clsPDFCreator& pdf) { pdf.AddNoteIcon("x", 9, 0, 0); }),
              "<< /Type /Annot\r/Subtype /Text\r/Rect [0 822 20 842]\r/Contents (x)\r/F 4\r"
              "/Open false\r>>");
}

TEST(AddNoteIcon, OgniSegno)
{
    const char* nomi[] = {"Note", "Comment", "Key", "Help", "Paragraph", "NewParagraph", "Insert"};
    std::int32_t segno = 0;
    for (const char* nome : nomi) {
        EXPECT_THAT(Annotazione([segno](clsPDFCreator& pdf) { pdf.AddNoteIcon("", segno, 0, 20); }),
                    HasSubstr("/Open false /Name /" + std::string(nome) + "\r>>"));
        ++segno;
    }
}

// Plain Arial is the document's first font.
TEST(AddNoteBox, TuttoQuelloCheUnRiquadroPuoAvere)
{
    EXPECT_EQ(Annotazione([](clsPDFCreator& pdf) {
                  pdf.AddNoteBox("Nota", 10, 20, 30, 40, 9.5F, "#00FF00", 2, 2, 1, "%50", "Io", 0);
              }),
              "<< /Type /Annot\r/Subtype /FreeText\r/Rect [10 782 40 822]\r/Contents (Nota)\r/F 0\r"
              "/T (Io)\r/C [ 0.502 0.502 0.502 ]\r/DA (/_FNT_1 9.5 Tf 0 1 0 rg)\r/Q 2\r"
              "/BS << /Type /Border /W 2 /S /D /D [ 3 ] >>\r>>");
}

TEST(AddNoteBox, DaSoloEASinistraColTitoloDelloScrittore)
{
    EXPECT_EQ(Annotazione([](clsPDFCreator& pdf) { pdf.AddNoteBox("Nota", 10, 20, 30, 40); }),
              "<< /Type /Annot\r/Subtype /FreeText\r/Rect [10 782 40 822]\r/Contents (Nota)\r/F 4\r"
              "/T (Orvenna)\r/DA (/_FNT_1 12 Tf 0 0 0 rg)\r/BS << /Type /Border /W 1 /S /S >>\r>>");
}

TEST(AddNoteBox, OgniBordoEOgniLato)
{
    const char* bordi[] = {" /S /S >>", " /S /D /D [ 3 ] >>", " /S /B >>",
                           " /S /I >>", " /S /U >>",          "/W 1 >>"};
    std::int32_t bordo = 0;
    for (const char* fine : bordi) {
        const auto nota = Annotazione([bordo](clsPDFCreator& pdf) {
            pdf.AddNoteBox("", 0, 0, 9, 9, 9, "Black", bordo, 1, bordo);
        });
        EXPECT_THAT(nota, HasSubstr(std::string(fine) + "\r>>"));
        const bool scritto = bordo == 1 || bordo == 2; // as the alignment
        EXPECT_EQ(nota.find("/Q " + std::to_string(bordo) + "\r") != std::string::npos, scritto);
        ++bordo;
    }
}

// 1 cm is 28.3465 points.
TEST(AddNoteStamp, UnTimbroInCentimetri)
{
    EXPECT_EQ(Annotazione(
                  [](clsPDFCreator& pdf) {
                      pdf.AddNoteStamp("Visto", 1, 2, 3, 4, 13, "Ufficio", "#808080", 28);
                  },
                  [](clsPDFCreator& pdf) { pdf.SetScale(3); }),
              "<< /Type /Annot\r/Subtype /Stamp\r/Rect [28.346 671.921 113.386 785.307]\r"
              "/Contents (Visto)\r/F 28\r/T (Ufficio)\r/C [ 0.502 0.502 0.502 ]\r"
              " /Name /TopSecret\r>>");
}

TEST(AddNoteStamp, OgniTimbro)
{
    const char* nomi[] = {"Approved",     "AsIs",
                          "Confidential", "Departmental",
                          "Draft",        "Experimental",
                          "Expired",      "Final",
                          "ForComment",   "ForPublicRelease",
                          "NotApproved",  "NotForPublicRelease",
                          "Sold",         "TopSecret"};
    std::int32_t timbro = 0;
    for (const char* nome : nomi) {
        EXPECT_THAT(
            Annotazione([timbro](clsPDFCreator& pdf) { pdf.AddNoteStamp("", 0, 0, 9, 9, timbro); }),
            HasSubstr("\r/F 4\r /Name /" + std::string(nome) + "\r>>"));
        ++timbro;
    }
    EXPECT_THAT(Annotazione([](clsPDFCreator& pdf) { pdf.AddNoteStamp("", 0, 0, 9, 9, 14); }),
                HasSubstr("\r/F 4\r>>"));
}

// ---- Links -----------------------------------------------------------------------------------

TEST(AddWebLink, LIndirizzoEDettoEPortaLa)
{
    EXPECT_EQ(Annotazione([](clsPDFCreator& pdf) {
                  pdf.AddWebLink("https://example.org/a(b)", 50, 60, 70, 80, 2, 0.5F);
              }),
              "<< /Type /Annot\r/Subtype /Link\r/Rect [50 702 120 782]\r"
              "/Contents (https://example.org/a\\(b\\))\r/F 4\r /H /O\r/Border [ 0 0 0.5]\r"
              "/A << /S /URI /URI (https://example.org/a\\(b\\)) >>\r>>");
}

TEST(AddWebLink, OgniModoDiMostrarsiPremuto)
{
    const char* modi[] = {"\r /H /N\r", "\r /H /I\r", "\r /H /O\r", "\r /H /P\r", "\r/F 4\r"};
    std::int32_t modo = 0;
    for (const char* riga : modi) {
        EXPECT_THAT(
            Annotazione([modo](clsPDFCreator& pdf) { pdf.AddWebLink("a", 0, 0, 9, 9, modo); }),
            HasSubstr(std::string(riga) + "/Border [ 0 0 0]\r"));
        ++modo;
    }
}

// ---- All of them -----------------------------------------------------------------------------

TEST(Annotazioni, DiOgniPaginaNelLoroOrdine)
{
    const auto letto = Documento(Niente, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.AddNoteIcon("uno", 0, 0, 20);
        pdf.AddNoteIcon("due", 0, 0, 20);
        pdf.AddWebLink("tre", 0, 0, 9, 9);
        pdf.EndPage();
        pdf.BeginPage();
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Oggetto(10), "[ 11 0 R 12 0 R 13 0 R  ]");
    EXPECT_THAT(letto.Oggetto(12), HasSubstr("/Contents (due)"));
    EXPECT_THAT(letto.Oggetto(13), HasSubstr("/Subtype /Link\r"));
    EXPECT_EQ(letto.Oggetto(17), "[  ]"); // page 14, its content 15 and 16
}

TEST(Annotazioni, UnaTramaNonNeEIlColore)
{
    EXPECT_THAT(
        Annotazione([](clsPDFCreator& pdf) { pdf.AddNoteStamp("", 0, 0, 9, 9, 0, "", "Trama"); }),
        Not(HasSubstr("/C ")));
}
