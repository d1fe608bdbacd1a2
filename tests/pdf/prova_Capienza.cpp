// How much a document holds: what each thing costs, and that it can be ended when nothing more
// fits.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "PdfProdotti.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using aiuti::ByteDocumento;
using aiuti::ErroreDi;
using aiuti::LeggiPdf;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int Massimo = 32767;
constexpr const char* Pieno = "un documento può avere al massimo 32767 oggetti";

const std::string Semi = SCALVINO_SEMI;

using Lavoro = std::function<void(clsPDFCreator&)>;

// What must be there already, and how many objects it costs.
struct Premessa
{
    int Costa;
    Lavoro Fa;
};

struct Cosa
{
    std::string Nome;
    int Costa;     // objects, those that EndDoc writes included
    bool InPagina; // else between pages
    Lavoro Fa;     // begins and ends it
    Premessa Prima;
};

void Immagine(clsPDFCreator& pdf, const std::string& file)
{
    pdf.DrawImage(Semi + "/" + file, 0, 0, 10, 10);
}

void UnSegnalibro(clsPDFCreator& pdf)
{
    pdf.AddBookmark("Uno", 1);
}

void Arial(clsPDFCreator& pdf)
{
    pdf.SetFont("Arial", 10);
}

std::vector<Cosa> Cose()
{
    using Pdf = clsPDFCreator;
    const Premessa niente = {0, [](Pdf&) {}};
    const std::string font = Semi + "/ttf/unicode.ttf";
    return {
        {"carattere", 1, true, [](Pdf& pdf) { pdf.SetFont("Courier New", 9); }, niente},
        {"carattere che c'è", 0, true, Arial, {1, Arial}},
        {"font", 5, true, [font](Pdf& pdf) { pdf.AddFont(font, "Proprio"); }, niente},
        {"font fuori", 2, true, [font](Pdf& pdf) { pdf.AddFont(font, "Suo", false); }, niente},
        {"figura", 2, true, [](Pdf& pdf) { Immagine(pdf, "bmp/24bit_40.bmp"); }, niente},
        {"tavolozza", 3, true, [](Pdf& pdf) { Immagine(pdf, "bmp/4bit_40.bmp"); }, niente},
        {"gif", 3, true, [](Pdf& pdf) { Immagine(pdf, "gif/1bit.gif"); }, niente},
        {"jpeg", 2, true, [](Pdf& pdf) { Immagine(pdf, "jpeg/colori.jpg"); }, niente},
        {"la stessa figura",
         0,
         true,
         [](Pdf& pdf) { Immagine(pdf, "bmp/4bit_40.bmp"); },
         {3, [](Pdf& pdf) { Immagine(pdf, "bmp/4bit_40.bmp"); }}},
        {"sfumatura", 1, true, [](Pdf& pdf) { pdf.SetLinearFill({"Red"}, 0, 0, 9, 9); }, niente},
        {"sfumatura tonda", 1, true, [](Pdf& pdf) { pdf.SetRadialFill({"Red"}, 0, 0, 1, 9, 9, 2); },
         niente},
        {"primo segnalibro", 3, true, UnSegnalibro, niente},
        {"segnalibro", 1, true, UnSegnalibro, {3, UnSegnalibro}},
        {"nota", 1, true, [](Pdf& pdf) { pdf.AddNoteIcon("a", 0, 9, 9); }, niente},
        {"riquadro", 2, true, [](Pdf& pdf) { pdf.AddNoteBox("a", 9, 9, 9, 9); }, niente},
        {"riquadro con Arial",
         1,
         true,
         [](Pdf& pdf) { pdf.AddNoteBox("a", 9, 9, 9, 9); },
         {1, Arial}},
        {"timbro", 1, true, [](Pdf& pdf) { pdf.AddNoteStamp("a", 9, 9, 9, 9); }, niente},
        {"collegamento", 1, true, [](Pdf& pdf) { pdf.AddWebLink("a", 9, 9, 9, 9); }, niente},
        {"ean", 1, true, [](Pdf& pdf) { pdf.DrawEAN13("123456789012", 9, 9); }, niente},
        {"ean muto", 0, true, [](Pdf& pdf) { pdf.DrawEAN13("123456789012", 9, 9, false); }, niente},
        {"code39", 1, true, [](Pdf& pdf) { pdf.DrawCODE39("A", 9, 9); }, niente},
        {"code39 muto", 0, true, [](Pdf& pdf) { pdf.DrawCODE39("A", 9, 9, 0, false); }, niente},
        {"pagina", 4, false,
         [](Pdf& pdf) {
             pdf.BeginPage();
             pdf.EndPage();
         },
         niente},
        {"modulo", 2, false,
         [](Pdf& pdf) {
             pdf.BeginObject("Modulo", 7);
             pdf.EndObject();
         },
         niente},
        {"trama", 2, false,
         [](Pdf& pdf) {
             pdf.BeginTiling("Trama", 0, 0, 1, 1, 1, 1);
             pdf.EndTiling();
         },
         niente},
    };
}

constexpr int Fissi = 8; // the six at the start, the metadata and their length
constexpr int Pagina = 4;

// A document of one page with that done, behind so many fonts that exactly lascia objects are left.
std::string QuasiPieno(const Cosa& cosa, int lascia, bool fa = true)
{
    return ByteDocumento({}, [&](clsPDFCreator& pdf) {
        pdf.BeginPage();
        cosa.Prima.Fa(pdf);
        const int font = Massimo - Fissi - Pagina - cosa.Prima.Costa - lascia;
        for (int i = 0; i < font; ++i) pdf.SetFont("Times New Roman", 10);
        if (fa && cosa.InPagina) cosa.Fa(pdf);
        pdf.EndPage();
        if (fa && !cosa.InPagina) cosa.Fa(pdf);
    });
}

// What the page draws; fonts chosen draw nothing by themselves.
std::string Disegnato(const std::string& byte)
{
    const auto inizio = byte.find("\r\nstream\r\n");
    return byte.substr(inizio, byte.find("endstream") - inizio);
}

void HaOggetti(const std::string& byte, int quanti, const std::string& cosa)
{
    EXPECT_THAT(byte, HasSubstr("xref\r\n0 " + std::to_string(quanti + 1) + "\r\n")) << cosa;
    EXPECT_EQ(byte.find("0000000000 00000 n"), std::string::npos) << cosa;
    EXPECT_TRUE(byte.ends_with("%%EOF\r\r\n")) << cosa;
}

// Does it until there is no room any more.
int FinoAlRifiuto(const std::function<void(int)>& fa)
{
    int volte = 0;
    std::optional<ErroreRuntime> errore;
    while (!(errore = ErroreDi([&] { fa(volte); }))) ++volte;
    EXPECT_EQ(errore->Numero(), NumeroErrore::Overflow);
    EXPECT_EQ(errore->Motivo(), Pieno);
    return volte;
}

// A page full of something that can be ended.
std::string Colmo(int attese, const std::function<void(clsPDFCreator&, int)>& fa)
{
    std::string byte = ByteDocumento({}, [&](clsPDFCreator& pdf) {
        pdf.BeginPage();
        EXPECT_EQ(FinoAlRifiuto([&](int volta) { fa(pdf, volta); }), attese);
        pdf.EndPage();
    });
    EXPECT_THAT(LeggiPdf(byte).Difetti, IsEmpty());
    return byte;
}

} // namespace

// ---- What things cost --------------------------------------------------------------------------

TEST(Capienza, CioCheEntraGiustoEntra)
{
    for (const Cosa& cosa : Cose()) HaOggetti(QuasiPieno(cosa, cosa.Costa), Massimo, cosa.Nome);
}

TEST(Capienza, CioCheNonEntraSiRifiutaENonCambiaNiente)
{
    for (Cosa cosa : Cose()) {
        if (cosa.Costa == 0) continue;
        const std::string senza = QuasiPieno(cosa, Massimo - 100, false);
        cosa.Fa = [fa = cosa.Fa, nome = cosa.Nome](clsPDFCreator& pdf) {
            const auto errore = ErroreDi([&] { fa(pdf); });
            ASSERT_TRUE(errore) << nome;
            EXPECT_EQ(errore->Numero(), NumeroErrore::Overflow) << nome;
            EXPECT_EQ(errore->Motivo(), Pieno) << nome;
        };
        const std::string con = QuasiPieno(cosa, cosa.Costa - 1);
        HaOggetti(con, Massimo - cosa.Costa + 1, cosa.Nome);
        EXPECT_EQ(Disegnato(con), Disegnato(senza)) << cosa.Nome;
    }
}

// ---- Ended after a refusal ---------------------------------------------------------------------
//
// Kept for the foreign readers are those that do not cost them minutes.

TEST(Capienza, Pagine)
{
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        EXPECT_EQ(FinoAlRifiuto([&pdf](int) {
                      pdf.BeginPage();
                      pdf.EndPage();
                  }),
                  8189);
        EXPECT_EQ(pdf.Pages(), 8189);
    });
    const auto letto = LeggiPdf(byte);
    EXPECT_THAT(letto.Difetti, IsEmpty());
    EXPECT_EQ(letto.Pagine(), 8189);
}

TEST(Capienza, Caratteri)
{
    aiuti::ConservaPdf("capienza_caratteri",
                       Colmo(Massimo - Fissi - Pagina,
                             [](clsPDFCreator& pdf, int) { pdf.SetFont("Times New Roman", 10); }));
}

TEST(Capienza, CaratteriPrimaDelDocumentoLascianoUnaPagina)
{
    const std::string byte = ByteDocumento(
        [](clsPDFCreator& pdf) {
            EXPECT_EQ(FinoAlRifiuto([&pdf](int) { pdf.SetFont("Times New Roman", 10); }),
                      Massimo - Fissi - Pagina);
        },
        [](clsPDFCreator& pdf) {
            EXPECT_TRUE(ErroreDi([&pdf] { pdf.BeginObject("Modulo"); }));
            pdf.BeginPage();
            pdf.DrawText(9, 9, "a");
            pdf.EndPage();
            EXPECT_TRUE(ErroreDi([&pdf] { pdf.BeginPage(); }));
        });
    HaOggetti(byte, Massimo, "");
}

TEST(Capienza, FigureConTavolozza)
{
    aiuti::ConservaPdf("capienza_figure",
                       Colmo((Massimo - Fissi - Pagina) / 3, [](clsPDFCreator& pdf, int volta) {
                           const auto x = static_cast<float>(volta % 100);
                           pdf.DrawImage(Semi + "/gif/1bit.gif", x, x, 1, 1, std::to_string(volta));
                       }));
}

TEST(Capienza, Sfumature)
{
    Colmo(Massimo - Fissi - Pagina, [](clsPDFCreator& pdf, int) {
        pdf.SetLinearFill({"Red", "Blue"}, 0, 0, 99, 99);
    });
}

TEST(Capienza, Segnalibri)
{
    const int radiceETitolo = 2;
    aiuti::ConservaPdf("capienza_segnalibri", Colmo(Massimo - Fissi - Pagina - radiceETitolo,
                                                    [](clsPDFCreator& pdf, int volta) {
                                                        pdf.AddBookmark("a", volta % 40);
                                                    }));
}

// Not all on one page: poppler opens none with more than 10,000.
TEST(Capienza, Collegamenti)
{
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        FinoAlRifiuto([&pdf](int volta) {
            if (volta % 9000 == 8999) {
                pdf.EndPage();
                pdf.BeginPage();
            }
            pdf.AddWebLink("https://example.org/", 9, 9, 9, 9);
        });
        pdf.EndPage();
    });
    const auto letto = LeggiPdf(byte);
    EXPECT_THAT(letto.Difetti, IsEmpty());
    EXPECT_EQ(letto.Oggetti.size(), 32767U);
    aiuti::ConservaPdf("capienza_collegamenti", byte);
}

TEST(Capienza, TrameEModuliLascianoUnaPagina)
{
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        FinoAlRifiuto([&pdf](int volta) {
            const std::string nome = "Nome " + std::to_string(volta);
            if (volta % 2 == 0) {
                pdf.BeginObject(nome);
                pdf.EndObject();
            } else {
                pdf.BeginTiling(nome, 0, 0, 1, 1, 1, 1);
                pdf.EndTiling();
            }
        });
        pdf.BeginPage();
        pdf.PlayObject("Nome 0");
        pdf.EndPage();
    });
    EXPECT_THAT(LeggiPdf(byte).Difetti, IsEmpty());
}

TEST(Capienza, DiTuttoFinoAllUltimoOggetto)
{
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        for (const Cosa& cosa : Cose()) {
            if (!cosa.InPagina) cosa.Fa(pdf);
        }
        pdf.BeginPage();
        for (const Cosa& cosa : Cose()) {
            if (cosa.InPagina) cosa.Fa(pdf);
        }
        FinoAlRifiuto([&pdf](int) { pdf.SetFont("Times New Roman", 10); });
        pdf.EndPage();
        for (const Cosa& cosa : Cose()) {
            if (cosa.InPagina) continue;
            EXPECT_TRUE(ErroreDi([&] { cosa.Fa(pdf); })) << cosa.Nome;
        }
    });
    const auto letto = LeggiPdf(byte);
    EXPECT_THAT(letto.Difetti, IsEmpty());
    EXPECT_EQ(letto.Oggetti.size(), 32767U);
    aiuti::ConservaPdf("capienza_tutto", byte);
}
