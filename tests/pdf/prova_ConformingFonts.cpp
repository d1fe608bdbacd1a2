// Fonts of conforming documents: the standard 14 with their measures, files embedded once.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using aiuti::Disegno;
using aiuti::Documento;
using aiuti::ErroreDi;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr const char* File = SCALVINO_SEMI "/ttf/unicode.ttf";

void Conforme(clsPDFCreator& pdf)
{
    pdf.Conforming();
}

void Scrive(clsPDFCreator& pdf, const char* famiglia, int stile = 0)
{
    pdf.SetFont(famiglia, 12, stile);
    pdf.DrawText(10, 20, "a");
}

aiuti::PdfLetto Pagina(const Disegno& disegno, const Disegno& prima = Conforme)
{
    return Documento(prima, [&disegno](clsPDFCreator& pdf) {
        pdf.BeginPage();
        disegno(pdf);
        pdf.EndPage();
    });
}

std::size_t Quante(const aiuti::PdfLetto& letto, const std::string& inizio)
{
    std::size_t quante = 0;
    for (const auto& oggetto : letto.Oggetti) quante += oggetto.starts_with(inizio) ? 1U : 0U;
    return quante;
}

} // namespace

TEST(ConformingFonts, UnCarattereStandardConMisureEDescrizione)
{
    const auto letto = Pagina([](clsPDFCreator& pdf) { Scrive(pdf, "Times New Roman", 3); });
    EXPECT_THAT(letto.Oggetto(7),
                StartsWith("<< /Type /Font /Subtype /Type1 /BaseFont /Times-BoldItalic /Encoding "
                           "/WinAnsiEncoding /FirstChar 0 /LastChar 255 /FontDescriptor 8 0 R "
                           "/Widths [\r\n333 333 333 "));
    EXPECT_THAT(letto.Oggetto(7), EndsWith(" \r\n] >>"));
    EXPECT_EQ(letto.Oggetto(8),
              "<< /Type /FontDescriptor /FontName /Times-BoldItalic /Flags 98 /FontBBox [-200 -218 "
              "996 921] /ItalicAngle -15 /Ascent 683 /Descent -217 /CapHeight 669 /XHeight 462 "
              "/StemV 121 >>");
}

TEST(ConformingFonts, SymbolEZapfDingbatsSenzaStileESenzaCodifica)
{
    const auto letto = Pagina([](clsPDFCreator& pdf) {
        for (int stile = 0; stile < 4; ++stile) {
            Scrive(pdf, "Symbol", stile);
            Scrive(pdf, "ZapfDingbats", stile);
        }
    });
    EXPECT_EQ(Quante(letto, "<< /Type /Font /"), 2U);
    EXPECT_THAT(letto.Oggetto(7), HasSubstr("/BaseFont /Symbol /FirstChar 0 "));
    EXPECT_THAT(letto.Oggetto(9), HasSubstr("/BaseFont /ZapfDingbats /FirstChar 0 "));
}

TEST(ConformingFonts, OgniCarattereStaUnaVoltaSola)
{
    const auto prima = [](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10); // before anybody knows of it, and so twice in the table
        pdf.SetFont("Courier New", 10);
        pdf.Conforming();
    };
    const auto letto = Pagina(
        [](clsPDFCreator& pdf) {
            for (const char* famiglia :
                 {"Arial", "Helvetica", "Nessuno", "Courier New", "Courier"}) {
                for (int stile = 0; stile < 3; ++stile) Scrive(pdf, famiglia, stile);
            }
        },
        prima);
    EXPECT_EQ(Quante(letto, "<< /Type /Font /"), 6U);
}

TEST(ConformingFonts, UnoScelteENonUsatoNonCE)
{
    const auto letto = Pagina([](clsPDFCreator& pdf) { pdf.SetFont("Arial", 12); });
    EXPECT_EQ(Quante(letto, "<< /Type /Font /"), 0U);
}

TEST(ConformingFonts, UnFileStaDentroAncheSenzaChiederlo)
{
    for (const bool dentro : {true, false}) {
        const auto letto = Pagina([dentro](clsPDFCreator& pdf) {
            pdf.AddFont(File, "macchina", dentro);
            Scrive(pdf, "macchina");
        });
        EXPECT_THAT(letto.Oggetto(7), StartsWith("<< /Type /Font /Subtype /TrueType /BaseFont /"));
        EXPECT_THAT(letto.Oggetto(7),
                    HasSubstr(" /Encoding /WinAnsiEncoding /FirstChar 0 /LastChar "
                              "255 /FontDescriptor 8 0 R /Widths ["));
        EXPECT_THAT(letto.Oggetto(8), EndsWith(" /FontFile2 9 0 R >>"));
        EXPECT_THAT(letto.Oggetto(9), StartsWith("<< /Filter /LZWDecode /Length "));
    }
}

TEST(ConformingFonts, AggiuntoPrimaDelDocumentoStaDentroLoStesso)
{
    const auto aggiunge = [](clsPDFCreator& pdf) {
        pdf.AddFont(File, "macchina", false);
        pdf.Conforming();
    };
    const auto letto = Pagina([](clsPDFCreator& pdf) { Scrive(pdf, "macchina"); }, aggiunge);
    EXPECT_THAT(letto.Oggetto(9), StartsWith("<< /Filter /LZWDecode /Length "));
    const auto classico = Documento(
        [](clsPDFCreator& pdf) {
            pdf.Conforming();
            pdf.AddFont(File, "macchina", false);
            pdf.Conforming(false);
        },
        [](clsPDFCreator& pdf) {
            pdf.BeginPage();
            Scrive(pdf, "macchina");
            pdf.EndPage();
        });
    EXPECT_EQ(Quante(classico, "<< /Filter /LZWDecode"), 0U);
}

TEST(ConformingFonts, LoStessoFileSottoDueNomiStaUnaVolta)
{
    const auto letto = Pagina([](clsPDFCreator& pdf) {
        pdf.AddFont(File, "uno");
        pdf.AddFont(File, "due");
        Scrive(pdf, "uno");
        Scrive(pdf, "due");
    });
    EXPECT_EQ(Quante(letto, "<< /Type /Font /"), 1U);
    EXPECT_EQ(Quante(letto, "<< /Filter /LZWDecode"), 1U);
}
