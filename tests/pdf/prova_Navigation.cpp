// Bookmarks, notes and links. Pages are 842 points high, and everything here counts y from the
// bottom: what a caller places at 20 stands at 822.

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

// Where a bookmark of that mode leads, from the only entry below the title.
std::string Destinazione(std::int32_t modo)
{
    const auto letto = Documento(Niente, [modo](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.AddBookmark("Qui", 1, modo, 10, 20, 30, 50, 2);
        pdf.EndPage();
    });
    const std::string inizio = "<< /Title (Qui)\r\n/Parent 12 0 R\r\n";
    const std::string voce = letto.Oggetto(13);
    EXPECT_EQ(voce.substr(0, inizio.size()), inizio);
    return voce.substr(inizio.size());
}

} // namespace

// ---- Bookmarks -------------------------------------------------------------------------------

TEST(AddBookmark, OgniModoDiMostrareLaPagina)
{
    EXPECT_EQ(Destinazione(0), "/Dest [7 0 R /FitB]\r\n>>");
    EXPECT_EQ(Destinazione(1), "/Dest [7 0 R /FitV 10]\r\n>>");
    EXPECT_EQ(Destinazione(2), "/Dest [7 0 R /FitH 822]\r\n>>");
    EXPECT_EQ(Destinazione(3), "/Dest [7 0 R /FitR 10 792 30 822]\r\n>>");
    EXPECT_EQ(Destinazione(4), "/Dest [7 0 R /XYZ 10 822 2]\r\n>>");
    EXPECT_EQ(Destinazione(5), ">>");
    EXPECT_EQ(Destinazione(-1), ">>");
}

// The root is 11, the title 12. "Sotto" asks for level 3 right after level 1 and gets 2.
TEST(AddBookmark, UnAlberoSottoIlTitolo)
{
    const auto letto = Documento([](clsPDFCreator& pdf) { pdf.SetDocProperty("Il (libro)"); },
                                 [](clsPDFCreator& pdf) {
                                     pdf.BeginPage();
                                     pdf.AddBookmark("Uno");
                                     pdf.AddBookmark("Sotto", 3, 4, 10, 20, 0, 0, 1.5F);
                                     pdf.AddBookmark("Due", 1, 2, 0, 100);
                                     pdf.AddBookmark("Tre", 0);
                                     pdf.EndPage();
                                 });
    EXPECT_EQ(letto.Oggetto(11), "<< /Count 1 /First 12 0 R /Last 12 0 R >>");
    EXPECT_EQ(letto.Oggetto(12),
              "<< /Title (Il \\(libro\\))\r\n/Parent 11 0 R\r\n/First 13 0 R\r\n/Last 16 0 R\r\n"
              "/Count 3\r\n>>");
    EXPECT_EQ(letto.Oggetto(13),
              "<< /Title (Uno)\r\n/Parent 12 0 R\r\n/First 14 0 R\r\n/Last 14 0 R\r\n"
              "/Next 15 0 R\r\n/Dest [7 0 R /FitB]\r\n>>");
    EXPECT_EQ(letto.Oggetto(14),
              "<< /Title (Sotto)\r\n/Parent 13 0 R\r\n/Dest [7 0 R /XYZ 10 822 1.5]\r\n>>");
    EXPECT_EQ(letto.Oggetto(15), "<< /Title (Due)\r\n/Parent 12 0 R\r\n/Prev 13 0 R\r\n"
                                 "/Next 16 0 R\r\n/Dest [7 0 R /FitH 742]\r\n>>");
    EXPECT_EQ(letto.Oggetto(16),
              "<< /Title (Tre)\r\n/Parent 12 0 R\r\n/Prev 15 0 R\r\n/Dest [7 0 R /FitB]\r\n>>");
    EXPECT_THAT(letto.Oggetto(2), HasSubstr("\r/Outlines 11 0 R\r"));
    EXPECT_THAT(letto.Oggetto(2), HasSubstr("\r/PageMode /UseOutlines\r"));
}

TEST(AddBookmark, SenzaNonCEUnIndice)
{
    const auto letto = Documento(Niente, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.EndPage();
    });
    EXPECT_THAT(letto.Oggetto(2), Not(HasSubstr("/Outlines")));
    EXPECT_THAT(letto.Oggetto(2), HasSubstr("\r/PageMode /UseNone\r"));
}

TEST(AddBookmark, PrimaDiOgniPaginaNonPortaInNessunLuogo)
{
    const auto letto = Documento(Niente, [](clsPDFCreator& pdf) {
        pdf.AddBookmark("Presto");
        pdf.BeginPage();
        pdf.EndPage();
    });
    EXPECT_EQ(letto.Oggetto(13), "<< /Title (Presto)\r\n/Parent 12 0 R\r\n>>");
}

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
