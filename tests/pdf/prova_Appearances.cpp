// The pictures that annotations of conforming documents bring along: which, where, how many.

#include "prova_Appearances.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

using apparenze::Conforme;
using apparenze::Contenuto;
using apparenze::Figura;
using apparenze::Nota;
using apparenze::Note;
using apparenze::Numero;
using apparenze::Oggetto;
using apparenze::PaginaConforme;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

// What the dictionary of a picture says besides its length.
std::string Inizio(const std::string& misure, const std::string& fonti = "")
{
    return "<< /Type /XObject /Subtype /Form /BBox [0 0 " + misure + "] /Resources << " + fonti +
           ">>\r\n";
}

} // namespace

TEST(FiguraDiNota, DiUnIconaEDiUnRimandoNonHaCaratteri)
{
    const auto byte = PaginaConforme([](clsPDFCreator& pdf) {
        pdf.AddNoteIcon("x", 0, 100, 200);
        pdf.AddWebLink("x", 100, 200, 50, 60, 1, 1);
        pdf.AddWebLink("x", 100, 200, 70, 80);
    });
    const auto note = Note(byte);
    ASSERT_EQ(note.size(), 4);
    EXPECT_THAT(Figura(byte, note[3]), StartsWith(Inizio("70 80")));
    EXPECT_THAT(Figura(byte, note[3]), HasSubstr("\r\nstream\r\nendstream"));
    EXPECT_THAT(Figura(byte, note[0]), StartsWith(Inizio("20 20")));
    EXPECT_THAT(Figura(byte, note[1]), StartsWith(Inizio("50 60")));
    EXPECT_THAT(Figura(byte, note[1]),
                HasSubstr("\r\nstream\r\n0 0 0 RG\n1 w\n0.5 0.5 49 59 re\n"));
}

TEST(FiguraDiNota, ILettereSonoQuelleDelDocumento)
{
    const auto byte = PaginaConforme([](clsPDFCreator& pdf) {
        pdf.AddNoteBox("x", 0, 0, 90, 20);
        pdf.AddNoteStamp("x", 0, 0, 90, 20);
    });
    const auto note = Note(byte);
    const auto fonte = [&byte](const std::string& figura, const std::string& nome) {
        return Oggetto(byte, Numero(figura, "/Font << /" + nome + " "));
    };
    EXPECT_THAT(fonte(Figura(byte, note[0]), "Helv"), HasSubstr("/BaseFont /Helvetica /"));
    EXPECT_THAT(fonte(Figura(byte, note[1]), "HeBo"), HasSubstr("/BaseFont /Helvetica-Bold /"));
}

// No room for a letter: the resources name nothing that is not used.
TEST(FiguraDiNota, SenzaLettereNonHaCaratteri)
{
    const auto byte = PaginaConforme([](clsPDFCreator& pdf) {
        pdf.AddNoteBox("x", 0, 0, 3, 3);
        pdf.AddNoteStamp("x", 0, 0, 0.1F, 0.1F);
    });
    EXPECT_THAT(Figura(byte, Note(byte)[0]), StartsWith(Inizio("3 3")));
    EXPECT_THAT(Figura(byte, Note(byte)[1]), StartsWith(Inizio("0.1 0.1")));
    EXPECT_EQ(byte.find("/Helvetica"), std::string::npos);
}

TEST(FiguraDiNota, LaLunghezzaEQuellaDelSuoContenuto)
{
    const auto byte = PaginaConforme([](clsPDFCreator& pdf) { pdf.AddNoteIcon("x", 6, 0, 0); });
    const std::string figura = Figura(byte, Note(byte)[0]);
    const std::string dati = apparenze::Fra(figura, "stream\r\n", "endstream");
    EXPECT_EQ(Oggetto(byte, Numero(figura, "/Length ")), std::to_string(dati.size()));
}

// The same for all that look the same, on whatever page; one of its own for each that does not.
TEST(FiguraDiNota, QuelleUgualiSonoUna)
{
    const auto byte = Conforme([](clsPDFCreator& pdf) {
        for (int pagina = 0; pagina < 3; ++pagina) {
            pdf.BeginPage();
            for (int nota = 0; nota < 50; ++nota) pdf.AddNoteIcon("x", nota % 2, 0, 20);
            pdf.EndPage();
        }
    });
    std::set<int> figure;
    for (const auto& nota : Note(byte)) figure.insert(Numero(nota, "/AP << /N "));
    EXPECT_EQ(figure.size(), 2);
}

// More than are remembered: each has its own all the same.
TEST(FiguraDiNota, MolteDiverse)
{
    constexpr int quante = 200;
    const auto byte = PaginaConforme([](clsPDFCreator& pdf) {
        for (int nota = 0; nota < quante; ++nota) {
            pdf.AddWebLink("x", 0, 0, 50 + static_cast<float>(nota), 60, 1, 1);
        }
    });
    const auto note = Note(byte);
    ASSERT_EQ(note.size(), 2 * quante);
    for (int nota = 0; nota < quante; ++nota) {
        const std::string inizio = Inizio(std::to_string(50 + nota) + " 60");
        EXPECT_THAT(Figura(byte, note[static_cast<std::size_t>(2 * nota)]), StartsWith(inizio));
    }
}

// A reader that has none makes one by itself, and looks for the font in vain.
TEST(FiguraDiNota, CEAncheSenzaArea)
{
    for (const float lato : {0.0F, 0.0001F, 1e-30F}) {
        const auto byte = PaginaConforme([lato](clsPDFCreator& pdf) {
            pdf.AddNoteBox("x", 9, 9, lato, 50);
            pdf.AddNoteStamp("x", 9, 9, 50, lato);
            pdf.AddWebLink("x", 9, 9, lato, lato, 1, 1);
        });
        const auto note = Note(byte);
        ASSERT_EQ(note.size(), 4);
        EXPECT_THAT(Figura(byte, note[0]), StartsWith(Inizio("0 50")));
        EXPECT_THAT(Figura(byte, note[1]), StartsWith(Inizio("50 0")));
        EXPECT_THAT(Figura(byte, note[3]), StartsWith(Inizio("0 0")));
    }
}

// Letters outside Windows-1252, and bytes that are no letter at all.
TEST(FiguraDiNota, LeLettereCheNonHaSonoPuntiDiDomanda)
{
    EXPECT_THAT(
        Contenuto([](clsPDFCreator& pdf) { pdf.AddNoteBox("L'età 10 € Łódź\xFF", 0, 0, 300, 20); }),
        HasSubstr("(L'et\xE0 10 \x80 ?\xF3"
                  "d?"
                  "?) Tj"));
}

TEST(FiguraDiNota, IlBordoHaIlColoreDelTesto)
{
    EXPECT_THAT(Contenuto([](clsPDFCreator& pdf) {
                    pdf.AddNoteBox("x", 0, 0, 90, 20, 12, "#0000FF", 0, 1, 0, "Red");
                }),
                StartsWith("1 0 0 rg\n0 0 90 20 re\nf\n0 0 1 RG\n"));
}

TEST(FiguraDiNota, UnTestoDiCentomilaLettere)
{
    const std::string testo(100000, 'm');
    const auto byte =
        PaginaConforme([&testo](clsPDFCreator& pdf) { pdf.AddNoteBox(testo, 0, 0, 90, 100); });
    EXPECT_THAT(Note(byte)[0], HasSubstr("/Contents (" + testo + ")\r"));
    EXPECT_LT(Figura(byte, Note(byte)[0]).size(), 1000);
}

// Without the switch nothing of this stands in the document.
TEST(FiguraDiNota, SoloNeiDocumentiConformi)
{
    const auto byte = aiuti::ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.AddNoteBox("x", 0, 0, 90, 20);
        pdf.AddWebLink("x", 0, 0, 90, 20, 1, 1);
        pdf.EndPage();
    });
    EXPECT_EQ(byte.find("/AP"), std::string::npos);
    EXPECT_EQ(byte.find("/NM"), std::string::npos);
}
