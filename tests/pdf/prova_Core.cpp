// The document: header, properties, units, paper, the objects that every file has.

#include "Aiuti.h"
#include "FileSulDisco.h"
#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using aiuti::Byte;
using aiuti::ByteDocumento;
using aiuti::CartellaDiProva;
using aiuti::Disegno;
using aiuti::Documento;
using aiuti::Scrive;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

void UnaPagina(clsPDFCreator& pdf)
{
    pdf.BeginPage();
    pdf.EndPage();
}

std::string AlberoPagine(const Disegno& prima)
{
    return Documento(prima, UnaPagina).Oggetto(4);
}

std::string Carta(std::int32_t codice)
{
    return AlberoPagine([codice](clsPDFCreator& pdf) { pdf.SetPaperSize(codice); });
}

// Moves into a folder and back.
class DentroLaCartella
{
public:
    explicit DentroLaCartella(const std::filesystem::path& cartella)
        : m_prima(std::filesystem::current_path())
    {
        std::filesystem::current_path(cartella);
    }
    ~DentroLaCartella() { std::filesystem::current_path(m_prima); }
    DentroLaCartella(const DentroLaCartella&) = delete;
    DentroLaCartella& operator=(const DentroLaCartella&) = delete;

private:
    std::filesystem::path m_prima;
};

} // namespace

// ---- The whole file --------------------------------------------------------------------------

TEST(UnaPaginaVuota, HaGliOggettiDaUnoADodici)
{
    const auto letto = Documento({}, UnaPagina);
    ASSERT_EQ(letto.Oggetti.size(), 12U);
    EXPECT_THAT(letto.Oggetto(1), HasSubstr("/CreationDate"));
    EXPECT_THAT(letto.Oggetto(2), StartsWith("<< /Type /Catalog"));
    EXPECT_THAT(letto.Oggetto(3), StartsWith("<< /Type /Encoding"));
    EXPECT_THAT(letto.Oggetto(4), StartsWith("<<\r/Type /Pages"));
    EXPECT_EQ(letto.Oggetto(5), "<<\r/ProcSet [/PDF /Text ]\r>>");
    EXPECT_EQ(letto.Oggetto(6), "<<\r/ProcSet [/PDF /Text ]\r>>");
    EXPECT_THAT(letto.Oggetto(7), StartsWith("<< /Type /Page /Parent"));
    EXPECT_EQ(letto.Oggetto(8), "<< /Length 9 0 R >>");
    EXPECT_EQ(letto.Oggetto(9), std::to_string(letto.Contenuto(1).size()));
    EXPECT_EQ(letto.Oggetto(10), "[  ]");
    EXPECT_EQ(letto.Oggetto(11), "<< /Type /Metadata /Subtype /XML /Length 12 0 R >>");
    EXPECT_EQ(letto.Oggetto(12), std::to_string(letto.Flusso(11).size()));
}

TEST(UnaPaginaVuota, TavolaDiTrediciVociEGrandezzaDodici)
{
    const std::string byte = ByteDocumento({}, UnaPagina);
    const auto tavola = byte.rfind("\r\nxref\r\n") + 2;
    EXPECT_THAT(byte.substr(tavola), StartsWith("xref\r\n0 13\r\n0000000000 65535 f\r\n"));
    EXPECT_THAT(byte, EndsWith("trailer\r\n<< /Size 12 /Info 1 0 R /Root 2 0 R >>\r\n"
                               "startxref\r" +
                               std::to_string(tavola) + "\r\n%%EOF\r\r\n"));
    // Twelve entries of 20 bytes, after the line of the first one.
    const auto fine = byte.find("trailer\r\n", tavola);
    EXPECT_EQ(fine - tavola, 6U + 6U + 13U * 20U);
}

TEST(UnaPaginaVuota, OgniVoceDellaTavolaDiceDoveStaLOggetto)
{
    const std::string byte = ByteDocumento({}, UnaPagina);
    auto voce = byte.rfind("65535 f\r\n") + 9;
    for (int n = 1; n <= 12; ++n, voce += 20) {
        const auto posto = std::stoul(byte.substr(voce, 10));
        EXPECT_EQ(byte.substr(voce + 10, 10), " 00000 n\r\n");
        const std::string testa = std::to_string(n) + " 0 obj\r\n";
        EXPECT_EQ(byte.substr(posto, testa.size()), testa);
    }
}

TEST(OrdineDegliOggetti, PagineCaratteriMetadatiEPoiIFissi)
{
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.SetFont("Arial", 10);
        pdf.EndPage();
        pdf.BeginObject("Modulo");
        pdf.EndObject();
    });
    aiuti::Esamina(byte);
    std::vector<int> numeri;
    for (auto p = byte.find(" 0 obj\r\n"); p != std::string::npos;
         p = byte.find(" 0 obj\r\n", p + 1)) {
        const auto riga = byte.rfind('\n', p) + 1;
        numeri.push_back(std::stoi(byte.substr(riga, p - riga)));
    }
    // Page 7 to 10, form 11 and its length, font 13, metadata 14 and 15. The array of the
    // annotations comes behind the length.
    EXPECT_THAT(numeri, ElementsAre(1, 7, 8, 9, 10, 11, 12, 13, 14, 15, 2, 3, 5, 6, 4));
}

TEST(Catalogo, SenzaSegnalibriEConLeEtichette)
{
    EXPECT_EQ(Documento({}, UnaPagina).Oggetto(2),
              "<< /Type /Catalog\r/Pages 4 0 R\r/PageLayout /OneColumn\r/PageMode /UseNone\r"
              "/Lang (it) \r/PageLabels << /Nums [ 0 << /S /D >>  ] >>\r"
              "/ViewerPreferences << /HideToolbar false /DisplayDocTitle true "
              "/HideWindowUI false >>\r/Metadata 11 0 R\r>>");
}

TEST(Codifica, EQuellaDiWindows)
{
    EXPECT_EQ(Documento({}, UnaPagina).Oggetto(3),
              "<< /Type /Encoding /BaseEncoding /WinAnsiEncoding >>");
}

TEST(Risorse, CaratteriEModuli)
{
    const auto letto = Documento({}, [](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.SetFont("Symbol", 10);
        UnaPagina(pdf);
        pdf.BeginObject("Uno");
        pdf.EndObject();
        pdf.BeginObject("Due");
        pdf.EndObject();
    });
    const std::string attese = "<<\r/Font <<\r/_FNT_1 15 0 R \r/_FNT_2 16 0 R \r>>\r"
                               "/ProcSet [/PDF /Text ]\r"
                               "/XObject <<\r/Uno 11 0 R \r/Due 13 0 R \r>>\r>>";
    EXPECT_EQ(letto.Oggetto(5), attese);
    EXPECT_EQ(letto.Oggetto(6), attese);
}

TEST(UnDocumentoSenzaPagine, EIntero)
{
    const auto letto = Documento({}, {});
    EXPECT_EQ(letto.Oggetti.size(), 8U);
    EXPECT_EQ(letto.Pagine(), 0);
    EXPECT_EQ(letto.Oggetto(4), "<<\r/Type /Pages\r/Count 0\r/MediaBox [0 0 596 842]\r"
                                "/CropBox [0 0 596 842]\r/Kids [ ]\r/Resources 6 0 R\r>>");
    EXPECT_THAT(letto.Oggetto(2), Not(HasSubstr("/PageLabels")));
}

// ---- Header ----------------------------------------------------------------------------------

TEST(PDFReader, SceglieLaVersioneDellaTestata)
{
    EXPECT_THAT(ByteDocumento({}, UnaPagina), StartsWith("%PDF-1.3\r\n% clsPDFCreator "));
    const auto con = [](std::int32_t lettore) {
        return ByteDocumento([lettore](clsPDFCreator& pdf) { pdf.PDFReader(lettore); }, UnaPagina);
    };
    EXPECT_THAT(con(0), StartsWith("%PDF-1.3\r\n"));
    EXPECT_THAT(con(1), StartsWith("%PDF-1.4\r\n"));
    EXPECT_THAT(con(2), StartsWith("%PDF-1.5\r\n"));
    EXPECT_THAT(con(4), StartsWith("%PDF-1.7\r\n"));
}

TEST(Testata, IlCommentoNominaLaClasseELaVersione)
{
    const std::string byte = ByteDocumento({}, UnaPagina);
    const std::string riga = byte.substr(10, byte.find("\r\n", 10) - 10);
    EXPECT_THAT(riga, StartsWith("% clsPDFCreator "));
    EXPECT_THAT(riga, HasSubstr(" Orvenna rel. 1.9.1"));
}

TEST(Version, QuellaDelloScrittore)
{
    EXPECT_EQ(clsPDFCreator::Version(), "1.9.1");
    EXPECT_EQ(CLSPDFCREATOR_VERSION, 10901);
    EXPECT_EQ(CLSPDFCREATOR_VERSION_MAJOR, 1);
    EXPECT_EQ(CLSPDFCREATOR_VERSION_MINOR, 9);
    EXPECT_EQ(CLSPDFCREATOR_VERSION_PATCH, 1);
}

// ---- File names ------------------------------------------------------------------------------

TEST(BeginDoc, SenzaNomeNeFaUnoNellaCartellaCorrente)
{
    const CartellaDiProva cartella;
    const DentroLaCartella dentro(cartella.Nome());
    clsPDFCreator pdf;
    pdf.SetClock(aiuti::OrologioFermo()); // day 2, 03:04:05, digit 7: 20304057
    EXPECT_EQ(pdf.BeginDoc(""), "~135D0B9.pdf");
    UnaPagina(pdf);
    pdf.EndDoc();
    EXPECT_THAT(cartella.Contenuto(), ElementsAre("~135D0B9.pdf"));
    aiuti::Esamina(Byte(cartella.File("~135D0B9.pdf")));
}

TEST(BeginDoc, IlNomeVieneDalGiornoDallOraEDaUnaCifra)
{
    const CartellaDiProva cartella;
    const DentroLaCartella dentro(cartella.Nome());
    clsPDFCreator pdf;
    pdf.SetClock(
        {[] { return clsPDFCreator::DateTime{2026, 12, 31, 23, 59, 59}; }, [] { return 9; }});
    EXPECT_EQ(pdf.BeginDoc(), "~129E3AAF.pdf"); // 312359599
    clsPDFCreator altro;
    altro.SetClock(
        {[] { return clsPDFCreator::DateTime{2026, 12, 1, 0, 0, 0}; }, [] { return 0; }});
    EXPECT_EQ(altro.BeginDoc(), "~989680.pdf"); // 10000000
}

TEST(BeginDoc, SenzaOrologioProprioIlNomeVieneDalCalendarioDelProgramma)
{
    const CartellaDiProva cartella;
    const DentroLaCartella dentro(cartella.Nome());
    const aiuti::CalendarioDorato calendario; // day 2, 03:04:05, digit 0: 20304050
    clsPDFCreator pdf;
    EXPECT_EQ(pdf.BeginDoc(), "~135D0B2.pdf");
}

TEST(BeginDoc, RestituisceIlNomeChiestoELoLasciaComeSta)
{
    const CartellaDiProva cartella;
    // Neither UTF-8 nor Windows-1252: the file system's own bytes.
    const std::string nome = cartella.Nome() + "caff\xC3\xA8 \x81\xFE #p.pdf";
    clsPDFCreator pdf;
    EXPECT_EQ(pdf.BeginDoc(nome), nome);
    UnaPagina(pdf);
    pdf.EndDoc();
    EXPECT_TRUE(VoceTrovata(nome));
}

TEST(BeginDoc, SostituisceUnFileDiQuelNome)
{
    const CartellaDiProva cartella;
    const std::string nome = cartella.Nome() + "prova.pdf";
    std::ofstream(nome) << std::string(100000, 'x');
    clsPDFCreator pdf;
    pdf.BeginDoc(nome);
    UnaPagina(pdf);
    pdf.EndDoc();
    aiuti::Esamina(Byte(nome));
}

TEST(BeginDoc, ChiudeComeStaIlDocumentoAncoraAperto)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    pdf.BeginDoc(cartella.Nome() + "primo.pdf");
    pdf.BeginDoc(cartella.Nome() + "secondo.pdf");
    UnaPagina(pdf);
    pdf.EndDoc();
    const std::string primo = Byte(cartella.File("primo.pdf"));
    EXPECT_THAT(primo, StartsWith("%PDF-1.3\r\n"));
    EXPECT_THAT(primo, EndsWith(">>\r\nendobj\r\n"));
    EXPECT_THAT(primo, Not(HasSubstr("xref")));
    const auto secondo = aiuti::Esamina(Byte(cartella.File("secondo.pdf")));
    EXPECT_EQ(secondo.NumeriPagina, (std::vector<int>{7}));
}

TEST(UnDocumentoAbbandonato, RestaComEra)
{
    const CartellaDiProva cartella;
    {
        clsPDFCreator pdf;
        pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    }
    EXPECT_THAT(cartella.Contenuto(), ElementsAre("prova.pdf"));
    EXPECT_THAT(Byte(cartella.File("prova.pdf")), Not(HasSubstr("trailer")));
}

// ---- Units and paper -------------------------------------------------------------------------

TEST(SetScale, OgniUnita)
{
    const auto uno = [](std::int32_t modo, float proprio = 1) {
        return aiuti::ScriveCon([=](clsPDFCreator& pdf) { pdf.SetScale(modo, proprio); },
                                [](clsPDFCreator& pdf) { pdf.DrawLine(1, 10, 0, 0); })[0];
    };
    EXPECT_EQ(uno(0), "1 10 m 0 0 l");
    EXPECT_EQ(uno(1), "72 720 m 0 0 l");
    EXPECT_EQ(uno(2), "2.835 28.346 m 0 0 l");
    EXPECT_EQ(uno(3), "28.346 283.465 m 0 0 l");
    EXPECT_EQ(uno(255, 2.5F), "2.5 25 m 0 0 l");
    EXPECT_EQ(uno(4), "1 10 m 0 0 l"); // unknown: as it was
    EXPECT_EQ(uno(-1), "1 10 m 0 0 l");
}

TEST(SetScale, UnModoIgnotoLasciaQuelloDiPrima)
{
    EXPECT_EQ(aiuti::ScriveCon(
                  [](clsPDFCreator& pdf) {
                      pdf.SetScale(1);
                      pdf.SetScale(99, 7);
                  },
                  [](clsPDFCreator& pdf) { pdf.DrawLine(1, 1, 0, 0); })[0],
              "72 72 m 0 0 l");
}

TEST(Coordinate, TreDecimali)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) { pdf.DrawLine(12.34567F, 12.5F, 100, 0); })[0],
              "12.346 12.5 m 100 0 l");
}

TEST(SetPaperSize, OgniCodice)
{
    const std::vector<std::string> misure = {
        "596 842",   "842 596",   "842 1192",  "1192 842", "1192 1685", "1685 1192",
        "1685 2384", "2384 1685", "2384 3371", "421 596",  "596 421",   "298 421",
        "421 298",   "210 298",   "298 210",   "612 792",  "612 864"};
    for (std::size_t codice = 0; codice < misure.size(); ++codice) {
        EXPECT_THAT(Carta(static_cast<std::int32_t>(codice)),
                    HasSubstr("\r/MediaBox [0 0 " + misure[codice] + "]\r/CropBox [0 0 " +
                              misure[codice] + "]\r"))
            << codice;
    }
}

TEST(SetPaperSize, LUltimoCodiceVale)
{
    EXPECT_THAT(AlberoPagine([](clsPDFCreator& pdf) {
                    pdf.SetPaperSize(15);
                    pdf.SetPaperSize(0);
                }),
                HasSubstr("\r/MediaBox [0 0 596 842]\r"));
}

TEST(SetPaperSize, UnCodiceIgnotoLasciaQuellaDiPrima)
{
    for (const std::int32_t codice : {17, 254, 256, -1}) {
        EXPECT_THAT(AlberoPagine([codice](clsPDFCreator& pdf) {
                        pdf.SetPaperSize(15);
                        pdf.SetPaperSize(codice, 100, 100);
                    }),
                    HasSubstr("\r/MediaBox [0 0 612 792]\r"))
            << codice;
    }
}

TEST(SetPaperSize, SuMisuraInCentimetri)
{
    EXPECT_THAT(AlberoPagine([](clsPDFCreator& pdf) {
                    pdf.SetScale(3);
                    pdf.SetPaperSize(255, 10, 20);
                }),
                HasSubstr("\r/MediaBox [0 0 283.465 566.929]\r/CropBox [0 0 283.465 566.929]\r"));
}

TEST(SetPaperSize, LeMisureNonContanoConUnCodiceNoto)
{
    EXPECT_THAT(AlberoPagine([](clsPDFCreator& pdf) { pdf.SetPaperSize(9, 1, 1); }),
                HasSubstr("\r/MediaBox [0 0 421 596]\r"));
}

TEST(Margin, RestringeIlRiquadroDiTaglio)
{
    EXPECT_THAT(AlberoPagine([](clsPDFCreator& pdf) {
                    pdf.SetScale(3);
                    pdf.Margin(1);
                }),
                HasSubstr("\r/MediaBox [0 0 596 842]\r"
                          "/CropBox [28.346 28.346 567.654 813.654]\r"));
}

TEST(Margin, ContaLUnitaDiQuelMomento)
{
    EXPECT_THAT(AlberoPagine([](clsPDFCreator& pdf) {
                    pdf.Margin(10);
                    pdf.SetScale(3);
                }),
                HasSubstr("\r/CropBox [10 10 586 832]\r"));
}

TEST(Orientation, DelDocumentoStaNellAlberoDellePagine)
{
    const auto letto = Documento([](clsPDFCreator& pdf) { pdf.Orientation(1); }, UnaPagina);
    EXPECT_THAT(letto.Oggetto(4), HasSubstr("\r/Rotate 90\r/Kids [7 0 R  ]\r"));
    EXPECT_THAT(letto.Oggetto(7), Not(HasSubstr("Rotate")));
    EXPECT_THAT(AlberoPagine([](clsPDFCreator& pdf) { pdf.Orientation(2); }),
                Not(HasSubstr("Rotate")));
}
