// What the drawings of a conforming document use: their resources, names and circles.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

using aiuti::Disegno;
using aiuti::Documento;
using aiuti::ErroreDi;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace {

void Acceso(clsPDFCreator& pdf)
{
    pdf.Conforming();
}

aiuti::PdfLetto Conforme(const Disegno& disegno)
{
    return Documento(Acceso, disegno);
}

// The same with drawings that nothing plays, on which a strict reader remarks.
aiuti::PdfLetto ConInutili(const Disegno& disegno)
{
    auto letto = aiuti::LeggiPdf(aiuti::ByteDocumento(Acceso, disegno));
    EXPECT_EQ(letto.Difetti, std::vector<std::string>{});
    return letto;
}

void Modulo(clsPDFCreator& pdf, const std::string& nome, const Disegno& disegno = {})
{
    pdf.BeginObject(nome);
    if (disegno) disegno(pdf);
    pdf.EndObject();
}

void Trama(clsPDFCreator& pdf, const std::string& nome, const Disegno& disegno = {}, int genere = 1)
{
    pdf.BeginTiling(nome, 0, 0, 10, 10, 10, 10, genere);
    if (disegno) disegno(pdf);
    pdf.EndTiling();
}

void Pagina(clsPDFCreator& pdf, const Disegno& disegno = {})
{
    pdf.BeginPage();
    if (disegno) disegno(pdf);
    pdf.EndPage();
}

std::string Risorse(const std::string& pagina)
{
    return pagina.substr(pagina.find("/Resources"));
}

// Whether the lines are refused inside a document, which must then still be a whole one after poi.
void Rifiutato(
    const Disegno& prima, const Disegno& rifiutata, const std::string& motivo,
    const Disegno& poi = [](clsPDFCreator&) {})
{
    ConInutili([&](clsPDFCreator& pdf) {
        prima(pdf);
        const auto errore = ErroreDi([&] { rifiutata(pdf); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
        EXPECT_EQ(errore->Motivo(), motivo);
        poi(pdf);
        Pagina(pdf);
    });
}

void FineModulo(clsPDFCreator& pdf)
{
    pdf.EndObject();
}

void FineTrama(clsPDFCreator& pdf)
{
    pdf.EndTiling();
}

} // namespace

TEST(Drawings, UnaPaginaNominaSoloQuelCheUsaEUnaVolta)
{
    const auto letto = Conforme([](clsPDFCreator& pdf) {
        pdf.SetFont("Courier New", 10);
        pdf.SetFont("Arial", 12); // the other one is used nowhere
        Pagina(pdf, [](clsPDFCreator& p) {
            p.DrawText(10, 10, "a");
            p.DrawText(10, 20, "b");
            p.PlayObject("m");
            p.PlayObject("m");
        });
        Pagina(pdf);
        Modulo(pdf, "m");
    });
    EXPECT_EQ(Risorse(letto.Oggetto(letto.NumeriPagina[0])),
              "/Resources << /Font << /_FNT_2 7 0 R >> /XObject << /m 9 0 R >> >> >>");
    EXPECT_EQ(Risorse(letto.Oggetto(letto.NumeriPagina[1])), "/Resources << >> >>");
    EXPECT_THAT(letto.Oggetto(7), HasSubstr("/BaseFont /Helvetica "));
    EXPECT_EQ(letto.NomiMancanti, std::vector<std::string>{});
}

TEST(Drawings, UnModuloHaLeSueRisorse)
{
    const auto letto = Conforme([](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 12);
        Modulo(pdf, "é #", [](clsPDFCreator& p) { p.DrawText(10, 10, "a"); });
        Pagina(pdf, [](clsPDFCreator& p) { p.PlayObject("é #"); });
    });
    EXPECT_EQ(letto.Oggetto(4), "<< /Type /XObject /Subtype /Form /BBox [0 0 596 842] "
                                "/Resources 5 0 R /Length 6 0 R >>");
    EXPECT_EQ(letto.Oggetto(5), "<< /Font << /_FNT_1 7 0 R >> >>");
    EXPECT_EQ(Risorse(letto.Oggetto(letto.NumeriPagina[0])),
              "/Resources << /XObject << /#E9#20#23 4 0 R >> >> >>");
}

TEST(Drawings, ITasselliELeSfumature)
{
    const auto letto = Conforme([](clsPDFCreator& pdf) {
        Trama(pdf, "quadri");
        Trama(pdf, "punti", {}, 2);
        Pagina(pdf, [](clsPDFCreator& p) {
            p.SetColorFill("quadri");
            p.SetColorLine("punti", "Red");
            p.SetLinearFill({"Red", "#0000FF"}, 1, 2, 3, 4, true, false);
        });
    });
    EXPECT_EQ(letto.Oggetto(4), "<< /Type /Pattern /PatternType 1 /PaintType 1\r\n/TilingType 1\r\n"
                                "/BBox [0 0 10 10]\r\n/XStep 10 /YStep 10\r\n/Resources 5 0 R\r\n"
                                "/Length 6 0 R >>");
    EXPECT_EQ(Risorse(letto.Oggetto(letto.NumeriPagina[0])),
              "/Resources << /ColorSpace << /xxCSxx [/Pattern /DeviceRGB] >> /Pattern << /quadri "
              "4 0 R /punti 7 0 R /SHAD_1_ING 13 0 R >> >> >>");
    EXPECT_EQ(
        letto.Oggetto(13),
        "<< /Type /Pattern /PatternType 2 /Matrix [1 0 0 -1 0 842] /Shading << /ShadingType 2 "
        "/ColorSpace /DeviceRGB /Coords [1 2 3 4] /Extend [true false] /Function << "
        "/FunctionType 2 /Domain [0 1] /C0 [1 0 0 ] /C1 [0 0 1 ] /N 1 >> >> >>");
}

TEST(Drawings, UnaTramaInTabellaEDellaPagina)
{
    const auto letto = Conforme([](clsPDFCreator& pdf) {
        Trama(pdf, "fondo");
        Trama(pdf, "bordo");
        const auto tabella = [](clsPDFCreator& p) {
            p.BeginTable(10, 10, "fondo", 1, "bordo");
            for (int riga = 0; riga < 3; ++riga) {
                p.BeginRow(10);
                p.BeginColumn(50);
                p.EndColumn();
                p.EndRow();
            }
            p.EndTable();
        };
        Pagina(pdf, tabella);
        Pagina(pdf, tabella);
    });
    for (const int pagina : letto.NumeriPagina) {
        EXPECT_THAT(Risorse(letto.Oggetto(pagina)),
                    HasSubstr("/Pattern << /fondo 4 0 R /bordo 7 0 R >>"));
    }
}

TEST(Drawings, QuelCheNessunoFaStaLiVuoto)
{
    const auto letto = Conforme([](clsPDFCreator& pdf) {
        Pagina(pdf, [](clsPDFCreator& p) {
            p.PlayObject("mai");
            p.SetColorFill("manca");
            p.SetColorLine("manca2", "Blue");
        });
    });
    EXPECT_EQ(letto.NomiMancanti, std::vector<std::string>{});
    EXPECT_THAT(letto.Oggetto(7), HasSubstr("/Type /XObject /Subtype /Form /BBox [0 0 1 1]"));
    EXPECT_THAT(letto.Oggetto(8), HasSubstr("/PatternType 1 /PaintType 1 "));
    EXPECT_THAT(letto.Oggetto(9), HasSubstr("/PatternType 1 /PaintType 2 "));
}

TEST(Drawings, UnNomeEDiUnDisegnoSolo)
{
    const std::string motivo = "il nome \"m\" è già di un altro disegno";
    Rifiutato([](clsPDFCreator& pdf) { Modulo(pdf, "m"); },
              [](clsPDFCreator& pdf) { pdf.BeginObject("m"); }, motivo);
    Rifiutato([](clsPDFCreator& pdf) { Trama(pdf, "m"); },
              [](clsPDFCreator& pdf) { pdf.BeginTiling("m", 0, 0, 1, 1, 1, 1); }, motivo);
    // An object and a tiling have names of their own.
    ConInutili([](clsPDFCreator& pdf) {
        Modulo(pdf, "m");
        Trama(pdf, "m");
        Pagina(pdf);
    });
}

TEST(Drawings, INomiDelloScrittoreRestanoSuoi)
{
    Rifiutato(
        {[](clsPDFCreator&) {}}, [](clsPDFCreator& pdf) { pdf.BeginObject("_IMG_1"); },
        "il nome \"_IMG_1\" è di una figura");
    Rifiutato(
        {[](clsPDFCreator&) {}},
        [](clsPDFCreator& pdf) { pdf.BeginTiling("SHAD_12_ING", 0, 0, 1, 1, 1, 1); },
        "il nome \"SHAD_12_ING\" è di una sfumatura");
    ConInutili([](clsPDFCreator& pdf) {
        Modulo(pdf, "_IMG_");
        Modulo(pdf, "_IMG_1a");
        Trama(pdf, "SHAD__ING");
        Pagina(pdf);
    });
}

TEST(Drawings, UnDisegnoNonContieneSeStesso)
{
    const auto motivo = [](const std::string& nome) {
        return "il nome \"" + nome + "\" porta in cerchio: un disegno non può contenere se stesso";
    };
    Rifiutato([](clsPDFCreator& pdf) { pdf.BeginObject("a"); },
              [](clsPDFCreator& pdf) { pdf.PlayObject("a"); }, motivo("a"), FineModulo);
    Rifiutato(
        [](clsPDFCreator& pdf) {
            Modulo(pdf, "a", [](clsPDFCreator& p) { p.PlayObject("b"); });
            Modulo(pdf, "b", [](clsPDFCreator& p) { p.SetColorFill("t"); });
            pdf.BeginTiling("t", 0, 0, 1, 1, 1, 1);
        },
        [](clsPDFCreator& pdf) { pdf.PlayObject("a"); }, motivo("a"), FineTrama);
    Rifiutato([](clsPDFCreator& pdf) { pdf.BeginTiling("t", 0, 0, 1, 1, 1, 1); },
              [](clsPDFCreator& pdf) { pdf.SetColorFill("t"); }, motivo("t"), FineTrama);
}

TEST(Drawings, UnRomboNonEUnCerchio)
{
    const auto letto = Conforme([](clsPDFCreator& pdf) {
        Modulo(pdf, "su", [](clsPDFCreator& p) {
            p.PlayObject("uno");
            p.PlayObject("due");
        });
        Modulo(pdf, "uno", [](clsPDFCreator& p) { p.PlayObject("giu"); });
        Modulo(pdf, "due", [](clsPDFCreator& p) { p.PlayObject("giu"); });
        Modulo(pdf, "giu");
        Pagina(pdf, [](clsPDFCreator& p) { p.PlayObject("su"); });
    });
    EXPECT_EQ(letto.NomiMancanti, std::vector<std::string>{});
}

TEST(Drawings, UnColoreRifiutatoLasciaQuelloDiPrima)
{
    const auto letto = ConInutili([](clsPDFCreator& pdf) {
        pdf.BeginTiling("t", 0, 0, 10, 10, 10, 10);
        pdf.SetColorFill("Red");
        EXPECT_TRUE(ErroreDi([&pdf] { pdf.SetColorFill("t"); }));
        pdf.BeginTable(0, 0); // takes the present fill
        pdf.BeginRow(5);
        pdf.BeginColumn(5);
        pdf.EndColumn();
        pdf.EndRow();
        pdf.EndTable();
        pdf.EndTiling();
        Pagina(pdf);
    });
    EXPECT_THAT(letto.Flusso(4), Not(HasSubstr("scn")));
}

TEST(Drawings, UnaLungaCatenaDiModuliNonCostaTempo)
{
    // Each plays the one before it: were all of them searched each time, this would take minutes.
    const auto letto = ConInutili([](clsPDFCreator& pdf) {
        constexpr int quanti = 20000;
        for (int i = 1; i <= quanti; ++i) {
            Modulo(pdf, std::to_string(i),
                   [i](clsPDFCreator& p) { p.PlayObject(std::to_string(i - 1)); });
        }
        Pagina(pdf);
    });
    EXPECT_EQ(letto.Pagine(), 1);
}

TEST(Drawings, UnDocumentoClassicoNonRifiutaNomi)
{
    Documento({}, [](clsPDFCreator& pdf) {
        Modulo(pdf, "_IMG_1");
        Trama(pdf, "SHAD_1_ING");
        Pagina(pdf);
    });
}
