// The reader of aiuti/StrutturaPdf.h, tried on documents made by hand: sound ones, and each kind of
// fault planted in one of them.
#include "StrutturaPdf.h"

#include "PdfProdotti.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using aiuti::LeggiPdf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string Flusso(const std::string& inizio, const std::string& dati)
{
    return inizio + "\r\nstream\r\n" + dati + "endstream\r\n";
}

// Replaces the first da; the test fails when there is none.
void Cambia(std::string& testo, const std::string& da, const std::string& a)
{
    const auto posto = testo.find(da);
    ASSERT_NE(posto, testo.npos) << da;
    testo.replace(posto, da.size(), a);
}

// A document in pieces; Byte puts them together with the right places in the table.
struct PdfAMano
{
    std::string Testata = "%PDF-1.3\r\n% fatto a mano\r\n";
    std::map<int, std::string> Corpi; // between the lines "n 0 obj" and "endobj"
    std::vector<int> Ordine;          // in the file
    std::string Coda;                 // of the trailer; empty for the right one

    void Metti(int n, const std::string& corpo)
    {
        Corpi[n] = corpo;
        Ordine.push_back(n);
    }

    // A stream and, as the next object, its length.
    void MettiFlusso(int n, const std::string& inizio, const std::string& dati)
    {
        Metti(n, Flusso(inizio + "/Length " + std::to_string(n + 1) + " 0 R >>", dati));
        Metti(n + 1, std::to_string(dati.size()) + "\r\n");
    }

    std::string Byte() const
    {
        std::string file = Testata;
        std::map<int, std::size_t> posti;
        for (const int n : Ordine) {
            posti[n] = file.size();
            file += std::to_string(n) + " 0 obj\r\n" + Corpi.at(n) + "endobj\r\n";
        }
        const std::size_t tavola = file.size();
        file += "xref\r\n0 " + std::to_string(posti.size() + 1) + "\r\n0000000000 65535 f\r\n";
        for (const auto& [n, posto] : posti) {
            const std::string cifre = std::to_string(posto);
            file += std::string(10 - cifre.size(), '0') + cifre + " 00000 n\r\n";
        }
        const std::string coda =
            "<< /Size " + std::to_string(posti.size()) + " /Info 1 0 R /Root 2 0 R >>";
        file += "trailer\r\n" + (Coda.empty() ? coda : Coda) + "\r\n";
        return file + "startxref\r" + std::to_string(tavola) + "\r\n%%EOF\r\r\n";
    }
};

const std::string Disegno = "1 0 0 -1 0 842 cm \r\n"
                            "0 0 0 rg\r\n"
                            "q\r\n"
                            "n\r\n"
                            "10 20.5 300 -0.125 re\r\n"
                            "[ ] 0 d\r\n"
                            "S\r\n"
                            "Q\r\n"
                            "BT\r\n"
                            "/_FNT_1 12 Tf 12 TL\r\n"
                            "1 0 0 -1 56.693 80 Tm (Nero \\(31\\) \\\\ Rosso) Tj\r\n"
                            "0.5 Tw (due) Tj 0 Tw T*\r"
                            "ET\r\n"
                            "/Piede Do\r\n"
                            "/xxCSxx cs 1 0 0 /Punti scn\r\n"
                            "100 200 50 50 re\r\n"
                            "f\r\n";

const std::string Risorse = "<<\r/Font <<\r/_FNT_1 15 0 R \r>>\r/ProcSet [/PDF /Text ]\r"
                            "/XObject <<\r/Piede 12 0 R \r>>\r";

// One page with an annotation, a form begun after it, a tile, a font, an image's raw bytes.
PdfAMano Sano()
{
    PdfAMano pdf;
    pdf.Metti(1, "<<\r/Title (\\(senza titolo\\))\r/Author (Orvenna)\r>>\r\n");
    pdf.Metti(7, "<< /Type /Page /Parent 4 0 R /Contents 8 0 R\r/Annots 10 0 R >>\r\n");
    pdf.MettiFlusso(8, "<< ", Disegno);
    pdf.Metti(11, "<< /Type /Annot\r/Subtype /Link\r/Rect [10 10 90 30]\r/Contents ()\r"
                  "/A << /S /URI /URI (https://example.org/a\\)b) >>\r>>\r\n");
    pdf.Metti(10, "[ 11 0 R  ]\r\n");
    pdf.MettiFlusso(12,
                    "<< /Type /XObject /Subtype /Form /FormType 1 /Name /Piede\r\n"
                    "/BBox [0 0 596 842]\r\n/Matrix [1 0 0 1 0 0]\r\n",
                    "q\r\nBT\r\n/_FNT_1 9 Tf 9 TL\r\n1 0 0 -1 500 800 Tm (di 1) Tj\r\nET\r\nQ\r\n");
    pdf.Metti(14, "<< /Marca true /Vuoto null /Numeri [0 -1 0.500 .5] >>\r\n");
    pdf.Metti(15, "<< /Type /Font /Subtype /Type1 /Name /_FNT_1 /BaseFont /Arial\r\n"
                  "/Encoding 3 0 R\r\n >>\r\n");
    pdf.MettiFlusso(16,
                    "<< /Type /Pattern /PatternType 1 /PaintType 2\r\n/TilingType 1\r\n"
                    "/BBox [0 0 10 10]\r\n/XStep 10 /YStep 10\r\n/Resources 5 0 R\r\n",
                    "1 0 0 -1 0 10 cm\r\n2 2 4 4 re\r\nf\r\n");
    pdf.MettiFlusso(18,
                    "<< /Type /XObject /Subtype /Image /Name /_IMG_1 /Width 3 /Height 1 "
                    "/BitsPerComponent 8 /ColorSpace /DeviceRGB ",
                    std::string("\0(\xFF endobj", 10) + "\r\r\n");
    pdf.Metti(2, "<< /Type /Catalog\r/Pages 4 0 R\r/PageMode /UseNone\r/Lang (it) \r>>\r\n");
    pdf.Metti(3, "<< /Type /Encoding /BaseEncoding /WinAnsiEncoding >>\r\n");
    pdf.Metti(5, Risorse + ">>\r\n");
    pdf.Metti(6, Risorse + "/ColorSpace << /xxCSxx [ /Pattern /DeviceRGB ] >> \r"
                           "/Pattern <<\r/Punti 16 0 R \r>>\r>>\r\n");
    pdf.Metti(4, "<<\r/Type /Pages\r/Count 1\r/MediaBox [0 0 596 842]\r/CropBox [0 0 596 842]\r"
                 "/Kids [7 0 R  ]\r/Resources 6 0 R\r>>\r\n");
    return pdf;
}

// The faults of the sound document after a change.
std::vector<std::string> Difetti(const std::function<void(PdfAMano&)>& guasta)
{
    PdfAMano pdf = Sano();
    guasta(pdf);
    return LeggiPdf(pdf.Byte()).Difetti;
}

// The same with one text replaced inside one object.
std::vector<std::string> DifettiCambiando(int n, const std::string& da, const std::string& a)
{
    return Difetti([&](PdfAMano& pdf) { Cambia(pdf.Corpi[n], da, a); });
}

// The faults of the sound document after a change of its finished bytes.
std::vector<std::string> DifettiDeiByte(const std::string& da, const std::string& a)
{
    std::string byte = Sano().Byte();
    Cambia(byte, da, a);
    return LeggiPdf(byte).Difetti;
}

} // namespace

// ---- Sound documents ----------------------------------------------------------------------------

TEST(LeggiPdf, UnDocumentoSanoNonHaDifetti)
{
    const auto pdf = LeggiPdf(Sano().Byte());
    EXPECT_THAT(pdf.Difetti, IsEmpty());
    EXPECT_THAT(pdf.NomiMancanti, IsEmpty());
    aiuti::ConservaPdf("struttura_a_mano", Sano().Byte(), {"Nero (31) \\ Rosso", "due", "di 1"});
}

TEST(LeggiPdf, DaVersioneOggettiFlussiEPagine)
{
    const auto pdf = LeggiPdf(Sano().Byte());
    EXPECT_EQ(pdf.Versione, "1.3");
    EXPECT_EQ(pdf.Oggetti.size(), 19U);
    EXPECT_EQ(pdf.Oggetto(3), "<< /Type /Encoding /BaseEncoding /WinAnsiEncoding >>");
    EXPECT_EQ(pdf.Oggetto(8), "<< /Length 9 0 R >>");
    EXPECT_EQ(pdf.Oggetto(9), std::to_string(Disegno.size()));
    EXPECT_EQ(pdf.Flusso(18), std::string("\0(\xFF endobj\r\r\n", 13));
    EXPECT_EQ(pdf.Pagine(), 1);
    EXPECT_THAT(pdf.NumeriPagina, ElementsAre(7));
    EXPECT_EQ(pdf.Contenuto(1), Disegno);
}

TEST(LeggiPdf, ChiNonCEFaEccezione)
{
    const auto pdf = LeggiPdf(Sano().Byte());
    EXPECT_THROW(pdf.Oggetto(0), std::out_of_range);
    EXPECT_THROW(pdf.Oggetto(20), std::out_of_range);
    EXPECT_THROW(pdf.Flusso(7), std::out_of_range);
    EXPECT_THROW(pdf.Contenuto(0), std::out_of_range);
    EXPECT_THROW(pdf.Contenuto(2), std::out_of_range);
}

TEST(LeggiPdf, UnaLunghezzaScrittaNelDizionarioVale)
{
    EXPECT_THAT(DifettiCambiando(18, "/Length 19 0 R", "/Length 13"), IsEmpty());
}

TEST(LeggiPdf, UnNomeMancanteNonEUnDifettoMaEDetto)
{
    PdfAMano guasto = Sano();
    Cambia(guasto.Corpi[8], "/Piede Do", "/Paese Do");
    Cambia(guasto.Corpi[12], "/_FNT_1", "/_FNT_2");
    const auto pdf = LeggiPdf(guasto.Byte());
    EXPECT_THAT(pdf.Difetti, IsEmpty());
    EXPECT_THAT(pdf.NomiMancanti, ElementsAre("Font /_FNT_2", "XObject /Paese"));
}

TEST(LeggiPdf, UnaPiastrellaNonVedeIMotivi)
{
    PdfAMano guasto = Sano();
    Cambia(guasto.Corpi[16], "cm", "cm\r\n/Pattern cs /Punti scn");
    Cambia(guasto.Corpi[17], "33", "57");
    const auto pdf = LeggiPdf(guasto.Byte());
    EXPECT_THAT(pdf.Difetti, IsEmpty());
    EXPECT_THAT(pdf.NomiMancanti, ElementsAre("Pattern /Punti"));
}

TEST(LeggiPdf, UnFlussoFiltratoNonEGuardatoDentro)
{
    EXPECT_THAT(DifettiCambiando(12, "/FormType 1", "/Filter /LZWDecode"), IsEmpty());
    EXPECT_THAT(Difetti([](PdfAMano& pdf) {
                    Cambia(pdf.Corpi[12], "/FormType 1", "/Filter /LZWDecode");
                    Cambia(pdf.Corpi[12], "BT", "()");
                }),
                IsEmpty());
}

// ---- Header, table, trailer, end ----------------------------------------------------------------

TEST(LeggiPdf, NienteOMezzoFileHannoDifetti)
{
    EXPECT_THAT(LeggiPdf("").Difetti, Contains("testata sbagliata"));
    const std::string byte = Sano().Byte();
    for (std::size_t n = 0; n < byte.size(); ++n)
        ASSERT_FALSE(LeggiPdf(byte.substr(0, n)).Difetti.empty()) << n;
}

TEST(LeggiPdf, OgniByteDiTroppoEUnDifetto)
{
    const std::string byte = Sano().Byte();
    for (std::size_t n = 0; n <= byte.size(); ++n) {
        std::string guasto = byte;
        guasto.insert(n, "\n");
        ASSERT_FALSE(LeggiPdf(guasto).Difetti.empty()) << n;
    }
}

// Whatever byte stands anywhere: read to the end, sound or not (the sanitizers watch).
TEST(LeggiPdf, NessunByteCambiatoFaCadere)
{
    const std::string byte = Sano().Byte();
    std::size_t conDifetti = 0;
    for (std::size_t n = 0; n < byte.size(); ++n)
        for (const char c : {'\0', '9', '(', '<', '['}) {
            std::string guasto = byte;
            guasto[n] = c;
            conDifetti += LeggiPdf(guasto).Difetti.empty() ? 0U : 1U;
        }
    EXPECT_GT(conDifetti, 3 * byte.size());
}

TEST(LeggiPdf, TrovaLaTestataSbagliata)
{
    EXPECT_THAT(DifettiDeiByte("%PDF-1.3", "%PDF-2.0"), ElementsAre("testata sbagliata"));
    EXPECT_THAT(DifettiDeiByte("% fatto", "fatto %"), ElementsAre("manca la riga di commento"));
}

TEST(LeggiPdf, TrovaLaFineSbagliata)
{
    EXPECT_THAT(DifettiDeiByte("%%EOF\r\r\n", "%%EOF\r\n"),
                ElementsAre("la fine non è \"%%EOF\" CR CR LF"));
}

TEST(LeggiPdf, TrovaStartxrefSbagliato)
{
    EXPECT_THAT(DifettiDeiByte("startxref\r", "startxref\r1"),
                ElementsAre(HasSubstr("startxref non indica la tavola")));
    EXPECT_THAT(DifettiDeiByte("startxref\r", "startxref\n"),
                ElementsAre(HasSubstr("startxref non indica la tavola")));
}

TEST(LeggiPdf, TrovaUnaVoceDellaTavolaCheNonHaVentiByte)
{
    EXPECT_THAT(DifettiDeiByte("00000 n\r\n", "00000 n\n"),
                Contains("voce 1 della tavola sbagliata"));
    EXPECT_THAT(DifettiDeiByte("00000 n\r\n", "00000 n \n"),
                ElementsAre("voce 1 della tavola sbagliata"));
    EXPECT_THAT(DifettiDeiByte("65535 f", "65535 n"), ElementsAre("voce 0 della tavola sbagliata"));
}

TEST(LeggiPdf, TrovaUnaVoceCheNonIndicaIlSuoOggetto)
{
    PdfAMano pdf = Sano();
    std::string byte = pdf.Byte();
    const auto prima = byte.find("65535 f\r\n") + 9;
    // Objects 2 and 3 change places in the table only.
    const std::string due = byte.substr(prima + 20, 20), tre = byte.substr(prima + 40, 20);
    byte.replace(prima + 20, 40, tre + due);
    EXPECT_THAT(LeggiPdf(byte).Difetti, Contains("oggetto 2: la tavola non ne indica il posto"));
}

TEST(LeggiPdf, TrovaUnPostoFuoriDalFile)
{
    EXPECT_THAT(DifettiDeiByte("0000000026 00000 n", "0999999999 00000 n"),
                Contains("oggetto 1: fuori dal corpo del file"));
}

TEST(LeggiPdf, TrovaIlContoDelleVociSbagliato)
{
    EXPECT_THAT(DifettiDeiByte("xref\r\n0 20\r\n", "xref\r\n0 21\r\n"),
                Contains("voce 20 della tavola sbagliata"));
    EXPECT_THAT(DifettiDeiByte("xref\r\n0 20\r\n", "xref\r\n0 19\r\n"),
                Contains("dopo la tavola non c'è la coda"));
    EXPECT_THAT(DifettiDeiByte("xref\r\n0 20\r\n", "xref\r\n0 999999999\r\n"),
                ElementsAre("conto delle voci della tavola sbagliato"));
}

TEST(LeggiPdf, TrovaLaCodaSbagliata)
{
    EXPECT_THAT(DifettiDeiByte("/Size 19", "/Size 20"),
                ElementsAre("coda: /Size non è il numero dell'ultimo oggetto"));
    EXPECT_THAT(DifettiDeiByte("/Info 1", "/Info 3"), ElementsAre("coda: /Info non è l'oggetto 1"));
    EXPECT_THAT(DifettiDeiByte("/Root 2", "/Root 4"), ElementsAre("coda: /Root non è l'oggetto 2"));
    EXPECT_THAT(DifettiDeiByte("2 0 R >>\r\nstartxref", "2 0 R >> 1\r\nstartxref"),
                ElementsAre("coda: c'è altro dopo il dizionario"));
}

// ---- Objects ------------------------------------------------------------------------------------

TEST(LeggiPdf, TrovaUnOggettoCheManca)
{
    // Number 14 is left out of the file; its entry is the next one's.
    const auto difetti = Difetti([](PdfAMano& pdf) {
        std::erase(pdf.Ordine, 14);
        pdf.Metti(20, pdf.Corpi[14]);
    });
    EXPECT_THAT(difetti, Contains("oggetto 14: la tavola non ne indica il posto"));
}

TEST(LeggiPdf, TrovaUnOggettoDueVolte)
{
    EXPECT_THAT(DifettiCambiando(3, ">>\r\n", ">>\r\nendobj\r\n3 0 obj\r\n<< >>\r\n"),
                ElementsAre("oggetto 3: c'è altro dopo il valore"));
}

TEST(LeggiPdf, TrovaByteFuoriDagliOggetti)
{
    EXPECT_THAT(Difetti([](PdfAMano& pdf) { pdf.Testata += "\r\n"; }),
                ElementsAre("il primo oggetto non segue la testata"));
    EXPECT_THAT(DifettiDeiByte("endobj\r\nxref", "endobj \r\nxref"),
                Contains(HasSubstr("startxref non indica la tavola")));
    EXPECT_THAT(DifettiCambiando(3, ">>\r\n", ">>\r\nendobj\r\n \r\n"),
                ElementsAre("oggetto 3: c'è altro dopo il valore"));
}

TEST(LeggiPdf, TrovaUnRiferimentoANessuno)
{
    EXPECT_THAT(DifettiCambiando(15, "/Encoding 3", "/Encoding 20"),
                ElementsAre("oggetto 15: riferimento a un oggetto che non c'è: 20"));
    EXPECT_THAT(DifettiCambiando(14, "[0 -1", "[99999999999 0 R"),
                ElementsAre("oggetto 14: riferimento a un oggetto che non c'è: 99999999999"));
}

TEST(LeggiPdf, TrovaUnaLunghezzaSbagliata)
{
    const std::string vera = std::to_string(Disegno.size());
    const std::string falsa = std::to_string(Disegno.size() - 2);
    EXPECT_THAT(DifettiCambiando(9, vera, falsa),
                ElementsAre("oggetto 8: /Length " + falsa + ", ma i byte sono " + vera));
    EXPECT_THAT(DifettiCambiando(18, "/Length 19 0 R", "/Length 12"),
                ElementsAre("oggetto 18: /Length 12, ma i byte sono 13"));
    EXPECT_THAT(DifettiCambiando(18, "/Length 19 0 R", "/Length 3 0 R"),
                ElementsAre("oggetto 18: flusso senza /Length"));
}

TEST(LeggiPdf, TrovaUnFlussoNonChiuso)
{
    EXPECT_THAT(DifettiCambiando(18, "endstream", "endstraem"),
                ElementsAre("oggetto 18: flusso senza \"endstream\" alla fine"));
}

TEST(LeggiPdf, TrovaDizionariEStringheCheNonTornano)
{
    EXPECT_THAT(DifettiCambiando(15, " >>", "   "),
                Contains(HasSubstr("oggetto 15: \"<<\" senza \">>\"")));
    EXPECT_THAT(DifettiCambiando(15, " >>", ">> >>"),
                Contains("oggetto 15: c'è altro dopo il valore"));
    EXPECT_THAT(DifettiCambiando(10, "]", ""), Contains(HasSubstr("\"[\" senza \"]\"")));
    EXPECT_THAT(DifettiCambiando(2, "(it)", "(it"), Contains(HasSubstr("stringa mai chiusa")));
    EXPECT_THAT(DifettiCambiando(2, "(it)", "(i(t))"),
                Contains(HasSubstr("parentesi aperta in una stringa")));
    EXPECT_THAT(DifettiCambiando(2, "(it)", "(i)t)"), Contains(HasSubstr("oggetto 2: chiave")));
    EXPECT_THAT(DifettiCambiando(2, "(it)", "(i\\t)"),
                Contains(HasSubstr("\"\\\" in una stringa")));
    EXPECT_THAT(DifettiCambiando(14, "null", "nulla"), Contains(HasSubstr("/Vuoto senza valore")));
    EXPECT_THAT(DifettiCambiando(14, "[0", "[0 vero"),
                Contains(HasSubstr("\"vero\" in un elenco")));
    EXPECT_THAT(DifettiCambiando(14, "/Vuoto", "/Marca"), Contains(HasSubstr("/Marca due volte")));
    EXPECT_THAT(DifettiCambiando(14, "/Vuoto", "/"), Contains(HasSubstr("nome vuoto")));
    for (const char* nome : {"/Vu#oto", "/Vuoto#", "/Vuoto#2", "/#56uoto", "/#e8", "/#00",
                             "/Vu\xE8to", "/Vu\x7Fto", "/Vu\x01to"}) {
        EXPECT_THAT(DifettiCambiando(14, "/Vuoto", nome), Contains(HasSubstr("nome scritto male")));
    }
    EXPECT_THAT(DifettiCambiando(14, "/Vuoto", "/" + std::string(128, 'v')),
                Contains(HasSubstr("nome scritto male")));
    EXPECT_THAT(DifettiCambiando(14, "/Vuoto", "/#E8#20#23#7F#01"), IsEmpty());
    EXPECT_THAT(DifettiCambiando(14, "true", "<414>"),
                Contains(HasSubstr("esadecimale sbagliata")));
    EXPECT_THAT(DifettiCambiando(14, "true", "<4g>"), Contains(HasSubstr("esadecimale sbagliata")));
}

TEST(LeggiPdf, TrovaFiniDiRigaSbagliate)
{
    EXPECT_THAT(DifettiCambiando(2, "\r/Pages", "\n/Pages"), Contains(HasSubstr("LF senza CR")));
    EXPECT_THAT(DifettiCambiando(3, ">>\r\n", ">>\r"),
                ElementsAre("oggetto 3: il valore non finisce con CR LF"));
}

TEST(LeggiPdf, NonCadePerQuantoSiAnnidi)
{
    EXPECT_THAT(DifettiCambiando(14, "[0", std::string(1000000, '[')),
                Contains(HasSubstr("annidamento troppo profondo")));
}

// ---- Pages --------------------------------------------------------------------------------------

TEST(LeggiPdf, TrovaIlContoDellePagineSbagliato)
{
    EXPECT_THAT(DifettiCambiando(4, "/Count 1", "/Count 2"),
                ElementsAre("oggetto 2: /Count 2, ma le pagine sono 1"));
}

TEST(LeggiPdf, TrovaUnAlberoDellePagineSbagliato)
{
    EXPECT_THAT(DifettiCambiando(2, "/Catalog", "/Cat"),
                ElementsAre("oggetto 2: non è il catalogo"));
    EXPECT_THAT(DifettiCambiando(2, "/Pages 4", "/Pages 3"),
                Contains("oggetto 2: /Pages non è l'albero delle pagine"));
    EXPECT_THAT(DifettiCambiando(4, "[7 0 R", "[3 0 R"),
                ElementsAre("oggetto 2: in /Kids c'è altro che una pagina: 3",
                            "oggetto 7: pagina fuori dall'albero"));
    EXPECT_THAT(DifettiCambiando(4, "/Count 1", "/Count 2\r/Kidz 1"),
                Contains(HasSubstr("/Count")));
    EXPECT_THAT(Difetti([](PdfAMano& pdf) {
                    Cambia(pdf.Corpi[4], "[7 0 R", "[7 0 R 7 0 R");
                    Cambia(pdf.Corpi[4], "/Count 1", "/Count 2");
                }),
                ElementsAre("oggetto 7: pagina due volte nell'albero"));
}

TEST(LeggiPdf, TrovaUnaPaginaSbagliata)
{
    EXPECT_THAT(DifettiCambiando(7, "/Parent 4", "/Parent 2"),
                ElementsAre("oggetto 7: /Parent non è l'albero delle pagine"));
    EXPECT_THAT(DifettiCambiando(7, "/Contents 8", "/Contents 9"),
                ElementsAre("oggetto 7: pagina senza contenuto"));
    EXPECT_THAT(DifettiCambiando(7, "/Annots 10", "/Annots 9"),
                ElementsAre("oggetto 7: /Annots non è un elenco"));
    EXPECT_THAT(DifettiCambiando(10, "11 0 R", "14 0 R"),
                ElementsAre("oggetto 7: in /Annots c'è altro che un'annotazione: 14"));
}

TEST(LeggiPdf, TrovaRisorseSbagliate)
{
    EXPECT_THAT(DifettiCambiando(6, "/_FNT_1 15 0 R", "/_FNT_1 3 0 R"),
                Contains("oggetto 8: Font /_FNT_1 è un oggetto di un altro tipo"));
    EXPECT_THAT(DifettiCambiando(4, "/Resources 6 0 R", "/Rezources 6 0 R"),
                Contains("oggetto 8: disegno senza risorse"));
}

TEST(LeggiPdf, GuardaAncheDentroFormeEPiastrelle)
{
    EXPECT_THAT(DifettiCambiando(12, "ET", "BT"), Contains("oggetto 12: BT dentro BT ... ET"));
    EXPECT_THAT(DifettiCambiando(16, "re\r\nf", "re\r\nQ"), ElementsAre("oggetto 16: Q senza q"));
    EXPECT_THAT(Difetti([](PdfAMano& pdf) { pdf.Corpi[12] = "<< /Subtype /Form >>\r\n"; }),
                Contains("oggetto 12: disegno senza flusso"));
}
