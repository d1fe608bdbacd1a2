// Conforming documents as a whole: head, trailer, properties, labels, bookmarks. Drawings are in
// prova_Drawings.cpp, fonts in prova_ConformingFonts.cpp.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

using aiuti::ByteDocumento;
using aiuti::Disegno;
using aiuti::Documento;
using aiuti::ErroreDi;
using aiuti::Esamina;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using namespace std::string_literals;

namespace {

void Conforme(clsPDFCreator& pdf)
{
    pdf.Conforming();
}

void UnaPagina(clsPDFCreator& pdf)
{
    pdf.BeginPage();
    pdf.EndPage();
}

std::string Informazioni(const Disegno& prima)
{
    return Documento(
               [&prima](clsPDFCreator& pdf) {
                   Conforme(pdf);
                   prima(pdf);
               },
               UnaPagina)
        .Oggetto(1);
}

std::string Catalogo(const Disegno& prima, const Disegno& pagine)
{
    return Documento(prima, pagine).Oggetto(2);
}

std::string Identificatore(const std::string& byte)
{
    const auto da = byte.rfind("/ID [<") + 6;
    return byte.substr(da, 32);
}

// The same document to a stream, under a moment and a title.
std::string Identificatore(int secondo, const std::string& titolo)
{
    std::ostringstream flusso;
    clsPDFCreator pdf;
    pdf.SetClock({[secondo] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, secondo}; },
                  [] { return 7; }});
    pdf.Conforming();
    pdf.SetDocProperty(titolo);
    pdf.BeginDocTo(flusso);
    UnaPagina(pdf);
    pdf.EndDoc();
    return Identificatore(flusso.str());
}

} // namespace

TEST(Conforming, UnDocumentoInteroByteAByte)
{
    const std::string byte = ByteDocumento(
        [](clsPDFCreator& pdf) {
            Conforme(pdf);
            pdf.SetDocProperty("Titolo", "", "Autore", "Chi", "Come");
        },
        UnaPagina);
    const auto id = Identificatore(byte);
    EXPECT_THAT(
        byte,
        StartsWith(
            "%PDF-1.7\r\n%\xE2\xE3\xCF\xD3\r\n% clsPDFCreator 2004-2026 Orvenna rel. 1.9.1\r\n"
            "1 0 obj\r\n<< /Title (Titolo) /Author (Autore) /Creator (Chi) /Producer (Come) "
            "/CreationDate (D:20260102030405+00'00') >>\r\nendobj\r\n"
            "5 0 obj\r\n<< /Length 6 0 R >>\r\nstream\r\n"
            "1 0 0 -1 0 842 cm \r\n0 0 0 rg\r\n0 0 0 RG\r\nendstream\r\nendobj\r\n"
            "6 0 obj\r\n40\r\nendobj\r\n"
            "4 0 obj\r\n<< /Type /Page /Parent 3 0 R /Contents 5 0 R /Resources << >> >>\r\n"
            "endobj\r\n"
            "7 0 obj\r\n<< /Type /Metadata /Subtype /XML /Length "));
    EXPECT_THAT(byte, HasSubstr("2 0 obj\r\n<< /Type /Catalog /Pages 3 0 R /PageLayout /OneColumn "
                                "/PageMode /UseNone /PageLabels << /Nums [0 << /S /D >> ] >> "
                                "/ViewerPreferences << /DisplayDocTitle true >> /Metadata 7 0 R "
                                ">>\r\nendobj\r\n"
                                "3 0 obj\r\n<< /Type /Pages /Count 1 /MediaBox [0 0 596 842] "
                                "/Kids [4 0 R ] >>\r\nendobj\r\nxref\r\n0 8\r\n"));
    EXPECT_THAT(byte, HasSubstr("trailer\r\n<< /Size 8 /Info 1 0 R /Root 2 0 R /ID [<" + id +
                                "> <" + id + ">] >>\r\nstartxref\r\n"));
    EXPECT_THAT(byte, EndsWith("\r\n%%EOF\r\n"));
}

TEST(Conforming, UnaVersionePiuAltaRestaQuella)
{
    const auto testa = [](int lettore) {
        return ByteDocumento(
                   [lettore](clsPDFCreator& pdf) {
                       Conforme(pdf);
                       pdf.PDFReader(lettore);
                   },
                   UnaPagina)
            .substr(0, 8);
    };
    EXPECT_EQ(testa(-3), "%PDF-1.7");
    EXPECT_EQ(testa(4), "%PDF-1.7");
    EXPECT_EQ(testa(5), "%PDF-1.8");
}

TEST(Conforming, VieneChiestoPrimaDelDocumentoEValePerTutto)
{
    const std::string conforme = ByteDocumento(Conforme, [](clsPDFCreator& pdf) {
        pdf.Conforming(false);
        UnaPagina(pdf);
    });
    EXPECT_EQ(conforme, ByteDocumento(Conforme, UnaPagina));
    const std::string classico = ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.Conforming();
        UnaPagina(pdf);
    });
    EXPECT_EQ(classico, ByteDocumento({}, UnaPagina));
    const std::string spento = ByteDocumento(
        [](clsPDFCreator& pdf) {
            pdf.Conforming();
            pdf.Conforming(false);
        },
        UnaPagina);
    EXPECT_EQ(spento, classico);
}

TEST(Conforming, LeProprietaSonoPreseAllaLettera)
{
    EXPECT_EQ(Informazioni([](clsPDFCreator& pdf) {
                  pdf.SetDocProperty("C# guide", "#d", "##", "#p", "a) >> endobj", "\\");
              }),
              "<< /Title (C# guide) /Author (##) /Subject (#d) /Keywords (\\\\) /Creator (#p) "
              "/Producer (a\\) >> endobj) /CreationDate (D:20260102030405+00'00') >>");
}

TEST(Conforming, LeProprietaSonoEsatteInOgniScrittura)
{
    EXPECT_THAT(
        Informazioni([](clsPDFCreator& pdf) { pdf.SetDocProperty("L'età - 10 €", "č", "þÿ"); }),
        StartsWith("<< /Title (L'et\xE0 - 10 \xA0) /Author (\xFE\xFF\0\xFE\0\xFF) "
                   "/Subject (\xFE\xFF\x01\\r) /Creator ("s));
}

TEST(Conforming, LaDataPortaIlSuoScarto)
{
    const auto informazioni = [](int scarto) {
        return Informazioni([scarto](clsPDFCreator& pdf) {
            pdf.SetClock({[scarto] { return clsPDFCreator::DateTime{2026, 7, 2, 3, 4, 5, scarto}; },
                          [] { return 7; }});
        });
    };
    EXPECT_THAT(informazioni(120), EndsWith("/CreationDate (D:20260702030405+02'00') >>"));
    EXPECT_THAT(informazioni(-210), EndsWith("/CreationDate (D:20260702030405-03'30') >>"));
}

TEST(Conforming, UnoScartoDiUnGiornoEUnErrore)
{
    for (const int scarto : {1440, -1440, 1000000}) {
        clsPDFCreator pdf;
        const auto errore = ErroreDi([&pdf, scarto] {
            pdf.SetClock({[scarto] { return clsPDFCreator::DateTime{2026, 7, 2, 3, 4, 5, scarto}; },
                          [] { return 7; }});
        });
        ASSERT_TRUE(errore) << scarto;
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
    }
}

TEST(Conforming, SenzaLoScartoNonSiScrive)
{
    const auto letto = Documento(
        [](clsPDFCreator& pdf) {
            pdf.SetClock({[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5, 90}; },
                          [] { return 7; }});
        },
        UnaPagina);
    EXPECT_THAT(letto.Oggetto(1), HasSubstr("(D:20260102030405Z+01'00')"));
}

TEST(Conforming, LIdentificatoreVieneDaDataNomeEProprieta)
{
    const auto id = Identificatore(5, "a");
    EXPECT_EQ(id, Identificatore(5, "a"));
    EXPECT_NE(id, Identificatore(6, "a"));
    EXPECT_NE(id, Identificatore(5, "b"));
    // The folder is no part of the name, which differs from one run of this test to another.
    EXPECT_EQ(Identificatore(ByteDocumento(Conforme, UnaPagina)),
              Identificatore(ByteDocumento(Conforme, UnaPagina)));
}

TEST(Conforming, LaLinguaEQuellaChiestaONessuna)
{
    const auto con = [](const char* lingua) {
        return Catalogo(
            [lingua](clsPDFCreator& pdf) {
                Conforme(pdf);
                if (lingua != nullptr) pdf.SetLanguage(lingua);
            },
            UnaPagina);
    };
    EXPECT_THAT(con(nullptr), Not(HasSubstr("/Lang")));
    EXPECT_THAT(con("en-GB"), HasSubstr(" /Lang (en-GB) "));
}

TEST(SetLanguage, InUnDocumentoClassicoAlzaLaVersione)
{
    const auto con = [](int lettore, const Disegno& poi) {
        return Catalogo([lettore](clsPDFCreator& pdf) { pdf.PDFReader(lettore); }, poi);
    };
    const auto inInglese = [](clsPDFCreator& pdf) {
        UnaPagina(pdf);
        pdf.SetLanguage("en");
    };
    EXPECT_THAT(con(0, UnaPagina), HasSubstr("\r/Lang (it) \r/"));
    EXPECT_THAT(con(0, UnaPagina), Not(HasSubstr("/Version")));
    EXPECT_THAT(con(0, inInglese), HasSubstr("\r/Lang (en) \r/Version /1.4\r/"));
    EXPECT_THAT(con(1, inInglese), HasSubstr("\r/Lang (en) \r/PageLabels"));
}

TEST(SetLanguage, AltroCheUnaLinguaEUnErrore)
{
    clsPDFCreator pdf;
    for (const char* lingua : {"it", "en-GB", "zh-Hant-TW", "abcdefgh-12345678", "x-1", "I"}) {
        EXPECT_FALSE(ErroreDi([&pdf, lingua] { pdf.SetLanguage(lingua); })) << lingua;
    }
    for (const std::string& lingua :
         {""s, "-"s, "it-"s, "-it"s, "it--IT"s, "abcdefghi"s, "it-123456789"s, "1t"s, "it IT"s,
          "it_IT"s, "it)"s, "è"s, "it\0"s, std::string(100000, 'a')}) {
        const auto errore = ErroreDi([&pdf, &lingua] { pdf.SetLanguage(lingua); });
        ASSERT_TRUE(errore) << lingua;
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
    }
}

TEST(Conforming, IMetadatiDiconoLeProprieta)
{
    const auto letto = Documento(
        [](clsPDFCreator& pdf) {
            Conforme(pdf);
            pdf.SetDocProperty("a < b & č", "S", "A\rB\x01\xFF", "C", "P", "K");
            pdf.SetLanguage("it");
        },
        UnaPagina);
    EXPECT_THAT(
        letto.Flusso(7),
        HasSubstr(
            "<dc:format>application/pdf</dc:format>\n"
            "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">a &lt; b &amp; č</rdf:li></rdf:Alt>"
            "</dc:title>\n"
            "<dc:creator><rdf:Seq><rdf:li>A&#13;B\?\?</rdf:li></rdf:Seq></dc:creator>\n"
            "<dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">S</rdf:li></rdf:Alt>"
            "</dc:description>\n"
            "<dc:language><rdf:Bag><rdf:li>it</rdf:li></rdf:Bag></dc:language>\n"
            "<pdf:Keywords>K</pdf:Keywords>\n<pdf:Producer>P</pdf:Producer>\n"
            "<xmp:CreatorTool>C</xmp:CreatorTool>\n"
            "<xmp:CreateDate>2026-01-02T03:04:05+00:00</xmp:CreateDate>\n"));
    EXPECT_THAT(letto.Flusso(7), StartsWith("<?xpacket begin=\"\xEF\xBB\xBF\" id=\""));
    EXPECT_THAT(letto.Flusso(7), EndsWith("\n<?xpacket end=\"r\"?>\r\n"));
}

TEST(Conforming, ISegnalibriContanoQuelCheSiVede)
{
    const auto letto = Documento(Conforme, [](clsPDFCreator& pdf) {
        UnaPagina(pdf);
        pdf.AddBookmark("č");
        pdf.AddBookmark("(sotto)", 2);
        pdf.AddBookmark("ultimo");
    });
    // The page takes 4 to 6; 7 is the root, 8 the title, which leads to the first page.
    EXPECT_EQ(letto.Oggetto(7), "<< /Type /Outlines /Count 3 /First 8 0 R /Last 8 0 R >>");
    EXPECT_THAT(letto.Oggetto(8), EndsWith("/Parent 7 0 R\r\n/First 9 0 R\r\n/Last 11 0 R\r\n"
                                           "/Count 2\r\n/Dest [4 0 R /Fit]\r\n>>"));
    EXPECT_EQ(letto.Oggetto(9),
              "<< /Title (\xFE\xFF\x01\\r)\r\n/Parent 8 0 R\r\n/First 10 0 R\r\n/Last 10 0 R\r\n"
              "/Next 11 0 R\r\n/Count -1\r\n/Dest [4 0 R /FitB]\r\n>>");
    EXPECT_THAT(letto.Oggetto(10), StartsWith("<< /Title (\\(sotto\\))\r\n/Parent 9 0 R\r\n"));
}

TEST(Conforming, LeEtichetteSonoEsatteECominciano)
{
    EXPECT_THAT(Catalogo(Conforme,
                         [](clsPDFCreator& pdf) {
                             pdf.BeginPage(0, -1);
                             pdf.EndPage();
                             pdf.BeginPage(0, 1, "Łódź (", 3);
                             pdf.EndPage();
                         }),
                HasSubstr("/PageLabels << /Nums [0 << /S /D >> 1 << /S /R /P "
                          "(\xFE\xFF\x01\x41\0\xF3\0d\x01\x7A\0 \0\\() /St 3 >> ] >>"s));
}

TEST(Conforming, MargineEFoglioGirato)
{
    const auto letto = Documento(
        [](clsPDFCreator& pdf) {
            Conforme(pdf);
            pdf.SetPaperSize(255, 100, 200);
            pdf.Margin(10);
            pdf.Orientation(1);
        },
        [](clsPDFCreator& pdf) {
            pdf.BeginPage(1);
            pdf.EndPage();
        });
    EXPECT_EQ(letto.Oggetto(3), "<< /Type /Pages /Count 1 /MediaBox [0 0 100 200] "
                                "/CropBox [10 10 90 190] /Rotate 90 /Kids [4 0 R ] >>");
    EXPECT_EQ(letto.Oggetto(4),
              "<< /Type /Page /Parent 3 0 R /Rotate 90 /Contents 5 0 R /Resources << >> >>");
}

TEST(Conforming, IlLimiteDelleClassicheNonVale)
{
    // Four times as many objects as a classic document holds, none of them drawn twice.
    std::ostringstream flusso;
    clsPDFCreator pdf;
    pdf.SetClock(aiuti::OrologioFermo());
    pdf.Conforming();
    pdf.BeginDocTo(flusso);
    constexpr int quanti = 45000;
    for (int i = 0; i < quanti; ++i) {
        pdf.BeginObject(std::to_string(i));
        pdf.EndObject();
    }
    UnaPagina(pdf);
    pdf.EndDoc();
    EXPECT_THAT(flusso.str(),
                HasSubstr("\r\n<< /Size " + std::to_string(3 * quanti + 8) + " /Info"));
}

TEST(Conforming, UnDocumentoSenzaPagineSiChiude)
{
    EXPECT_THAT(ByteDocumento(Conforme, {}),
                HasSubstr("/Count 0 /MediaBox [0 0 596 842] /Kids []"));
}
