// Notes and links of conforming documents: exact texts, addresses in ASCII, and what readers need
// to know besides. Pages are 842 points high.

#include "prova_Appearances.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using apparenze::Conforme;
using apparenze::Nota;
using apparenze::Note;
using apparenze::Numero;
using apparenze::Oggetto;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

// The address of a link, as it stands in the file.
std::string Indirizzo(const std::string& indirizzo)
{
    const std::string nota =
        Nota([&indirizzo](clsPDFCreator& pdf) { pdf.AddWebLink(indirizzo, 0, 0, 9, 9); });
    return apparenze::Fra(nota, "/A << /S /URI /URI (", ") >>\r/P ");
}

} // namespace

// ---- Notes -----------------------------------------------------------------------------------

TEST(NotaConforme, UnIcona)
{
    EXPECT_THAT(Nota([](clsPDFCreator& pdf) {
                    pdf.AddNoteIcon("Ciao (a)", 3, 100, 200, true, "Red", "Titolo", 28);
                }),
                StartsWith("<< /Type /Annot\r/Subtype /Text\r/Rect [100 622 120 642]\r"
                           "/Contents (Ciao \\(a\\))\r/F 28\r/T (Titolo)\r/C [ 1 0 0 ]\r"
                           "/Open true /Name /Help\r/AP << /N "));
}

// Who edits the text finds the font under a name that readers know.
TEST(NotaConforme, UnRiquadro)
{
    EXPECT_THAT(Nota([](clsPDFCreator& pdf) {
                    pdf.AddNoteBox("Nota", 10, 20, 30, 40, 9.5F, "#00FF00", 2, 2, 1, "%50", "Io");
                }),
                StartsWith("<< /Type /Annot\r/Subtype /FreeText\r/Rect [10 782 40 822]\r"
                           "/Contents (Nota)\r/F 4\r/T (Io)\r/C [ 0.502 0.502 0.502 ]\r"
                           "/DA (/Helv 9.5 Tf 0 1 0 rg)\r/Q 2\r"
                           "/BS << /Type /Border /W 2 /S /D /D [ 3 ] >>\r/AP << /N "));
}

TEST(NotaConforme, UnTimbro)
{
    EXPECT_THAT(
        Nota([](clsPDFCreator& pdf) { pdf.AddNoteStamp("Visto", 10, 20, 30, 40, 13, "Io"); }),
        StartsWith("<< /Type /Annot\r/Subtype /Stamp\r/Rect [10 782 40 822]\r/Contents (Visto)\r"
                   "/F 4\r/T (Io)\r /Name /TopSecret\r/AP << /N "));
}

// The moment is that of the document; the name tells the note from all others.
TEST(NotaConforme, DiceLaPaginaIlMomentoEIlSuoNome)
{
    const auto byte = Conforme([](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.AddNoteIcon("una", 0, 0, 20);
        pdf.AddNoteStamp("due", 0, 0, 90, 20);
        pdf.EndPage();
        pdf.BeginPage();
        pdf.AddWebLink("tre", 0, 0, 90, 20);
        pdf.EndPage();
    });
    const auto note = Note(byte);
    ASSERT_EQ(note.size(), 3);
    for (const auto& nota : note) {
        EXPECT_THAT(Oggetto(byte, Numero(nota, "\r/P ")), HasSubstr("/Type /Page "));
        EXPECT_THAT(nota, HasSubstr("\r/M (D:20260102030405+00'00')\r"));
    }
    EXPECT_EQ(Numero(note[0], "\r/P "), Numero(note[1], "\r/P "));
    EXPECT_NE(Numero(note[0], "\r/P "), Numero(note[2], "\r/P "));
    EXPECT_THAT(note[0], EndsWith("\r/NM (1-1)\r>>"));
    EXPECT_THAT(note[1], EndsWith("\r/NM (1-2)\r>>"));
    EXPECT_THAT(note[2], EndsWith("\r/NM (2-1)\r>>"));
}

TEST(NotaConforme, ITestiSonoEsatti)
{
    const auto nota = Nota([](clsPDFCreator& pdf) {
        pdf.AddNoteBox("L'età - 10 €", 0, 0, 90, 20, 12, "Black", 0, 1, 0, "", "č");
    });
    EXPECT_THAT(nota, HasSubstr("/Contents (L'et\xE0 - 10 \xA0)\r"));
    EXPECT_THAT(nota, HasSubstr("\r/T (\xFE\xFF\x01\\r)\r"));
}

TEST(NotaConforme, UnaTramaNonEUnColore)
{
    const auto nota = Nota([](clsPDFCreator& pdf) {
        pdf.AddNoteBox("x", 0, 0, 90, 20, 12, "Trama", 0, 1, 0, "Trama");
    });
    EXPECT_THAT(nota, Not(HasSubstr("/C ")));
    EXPECT_THAT(nota, HasSubstr("/DA (/Helv 12 Tf 0 0 0 rg)"));
}

TEST(NotaConforme, NumeriChePortanoFuoriDaOgniFoglio)
{
    const auto nota = Nota([](clsPDFCreator& pdf) {
        pdf.AddNoteBox("x", -1e30F, 3e38F, 3e38F, 3e38F, -3e38F, "Black", 0, -3e38F);
    });
    EXPECT_THAT(nota, HasSubstr("\r/Rect [-32767 -32767 32767 -32767]\r"));
    EXPECT_THAT(nota, HasSubstr("(/Helv 12 Tf "));
    EXPECT_THAT(nota, HasSubstr("/W 0 "));
    EXPECT_THAT(
        Nota([](clsPDFCreator& pdf) { pdf.AddNoteBox("x", 0, 0, 9, 9, 12, "Black", 0, 3e38F); }),
        HasSubstr("/W 32767 "));
}

TEST(NotaConforme, MisureNegativeDannoUnRettangoloDiritto)
{
    EXPECT_THAT(Nota([](clsPDFCreator& pdf) { pdf.AddNoteStamp("x", 50, 60, -30, -40); }),
                HasSubstr("\r/Rect [20 782 50 822]\r"));
    EXPECT_THAT(Nota([](clsPDFCreator& pdf) { pdf.AddWebLink("x", 50, 60, -30, -40); }),
                HasSubstr("\r/Rect [20 782 50 822]\r"));
}

// ---- Links -----------------------------------------------------------------------------------

TEST(IndirizzoConforme, StaInAscii)
{
    EXPECT_EQ(Indirizzo("https://example.org/a%20b?c=d&e#f"), "https://example.org/a%20b?c=d&e#f");
    EXPECT_EQ(Indirizzo("https://example.org/città?q=日 本"),
              "https://example.org/citt%C3%A0?q=%E6%97%A5%20%E6%9C%AC");
    EXPECT_EQ(Indirizzo("a(b)\\c"), "a\\(b\\)\\\\c");
    EXPECT_EQ(Indirizzo(std::string("a\0b\r\n\x7F\xFF", 7)), "a%00b%0D%0A%7F%FF");
    EXPECT_EQ(Indirizzo(""), "");
}

// The picture is the border: some readers would draw theirs besides.
TEST(RimandoConforme, IlBordoELaFigura)
{
    for (const float bordo : {0.0F, 2.0F, -1.0F}) {
        EXPECT_THAT(Nota([bordo](clsPDFCreator& pdf) {
                        pdf.AddWebLink("https://example.org/è", 50, 60, 70, 80, 2, bordo);
                    }),
                    StartsWith("<< /Type /Annot\r/Subtype /Link\r/Rect [50 702 120 782]\r"
                               "/Contents (https://example.org/\xE8)\r/F 4\r /H /O\r"
                               "/Border [0 0 0]\r/AP << /N "));
    }
}

// For a reader that shows no picture of a link: the same picture below it, not to be clicked.
TEST(RimandoConforme, IlBordoStaAncheSottoDiLui)
{
    const auto note = Note(apparenze::PaginaConforme([](clsPDFCreator& pdf) {
        pdf.AddWebLink("a", 50, 60, 70, 80, 1, 2);
        pdf.AddWebLink("b", 50, 60, 70, 80, 1, 0);
    }));
    ASSERT_EQ(note.size(), 3);
    EXPECT_THAT(note[0], StartsWith("<< /Type /Annot\r/Subtype /Watermark\r"
                                    "/Rect [50 702 120 782]\r/F 68\r/AP << /N "));
    EXPECT_EQ(Numero(note[0], "/AP << /N "), Numero(note[1], "/AP << /N "));
    EXPECT_THAT(note[2], HasSubstr("/URI (b)"));
}
