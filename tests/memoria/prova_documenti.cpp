// The PDF writer when memory runs out at its k-th request, for every k: one error, nothing leaked,
// and no document that is said to be whole is broken.

#include "Aiuti.h"
#include "Deflate.h"
#include "ErroreRuntime.h"
#include "MemoriaFinita.h"
#include "StrutturaPdf.h"
#include "clsPDFCreator.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <optional>
#include <string>
#include <string_view>

using memoria::Durata;

namespace {

// What must be ended before the document can be.
enum class Aperto
{
    Niente,
    Pagina,
    Oggetto,
    Trama,
};

struct Figure
{
    std::string Gif = aiuti::Byte(SCALVINO_SEMI "/gif/4bit.gif");
    std::string Bmp = aiuti::Byte(SCALVINO_SEMI "/bmp/8bit_corse.bmp");
    std::string Jpeg = aiuti::Byte(SCALVINO_SEMI "/jpeg/colori.jpg");
    std::string Font = aiuti::Byte(SCALVINO_SEMI "/ttf/unicode.ttf");
};

const Figure& LeFigure()
{
    static const Figure figure;
    return figure;
}

void Oggetti(clsPDFCreator& pdf, Aperto& aperto)
{
    pdf.AddFontData(LeFigure().Font, "Un nome di carattere abbastanza lungo");
    pdf.BeginTiling("Trama con un nome lungo assai", 0, 0, 8, 8, 8, 8);
    aperto = Aperto::Trama;
    pdf.DrawCircle(4, 4, 3, 4);
    pdf.EndTiling();
    aperto = Aperto::Niente;
    pdf.BeginObject("Oggetto con un nome lungo assai", 7);
    aperto = Aperto::Oggetto;
    pdf.SetFont("Courier New", 8, 4);
    pdf.DrawText(10, 10, "in ogni pagina, comunque sia");
    pdf.EndObject();
    aperto = Aperto::Niente;
}

void Scritte(clsPDFCreator& pdf)
{
    pdf.SetFont("Un nome di carattere abbastanza lungo", 12);
    pdf.DrawText(20, 40, "Una riga di testo più lunga del solito, con un accento", 1, 10);
    pdf.SetFont("Times New Roman", 12, 1);
    pdf.DrawTextBox(20, 60, 100, 100, "Un riquadro di testo che va a capo più volte, si spera.",
                    1.2F, 5, 64);
    pdf.BeginTable(20, 200, "silver", 1, "gray");
    pdf.BeginRow(20);
    pdf.BeginColumn(80, "white");
    pdf.DrawText(2, 12, "una cella della tabella");
    pdf.EndColumn();
    pdf.EndRow();
    pdf.EndTable();
    pdf.DrawEAN13("400638133393", 20, 300);
    pdf.DrawCODE39("TAGLIA 7", 20, 400);
}

void Disegni(clsPDFCreator& pdf)
{
    pdf.SetColorFill("Trama con un nome lungo assai");
    pdf.DrawRect(200, 20, 50, 50, 5, 8);
    pdf.SetLinearFill({"#102030", "Red"}, 0, 0, 100, 100);
    pdf.DrawArc(230, 130, 40, 0, 200);
    pdf.DrawImageData(LeFigure().Gif, 200, 200, 40, 40);
    pdf.DrawImageData(LeFigure().Bmp, 250, 200, 40, 40, "una chiave abbastanza lunga");
    pdf.DrawImageData(LeFigure().Jpeg, 300, 200, 40, 40);
    pdf.PlayObject("Oggetto con un nome lungo assai");
}

void Note(clsPDFCreator& pdf)
{
    pdf.AddBookmark("Un segnalibro dal titolo lungo", 1, 4, 10, 10);
    pdf.AddNoteIcon("Una nota che dice qualcosa in più", 1, 300, 20);
    pdf.AddNoteBox("Una nota scritta sulla pagina", 300, 60, 80, 40);
    pdf.AddNoteStamp("Una nota dietro il timbro", 300, 120, 80, 40, 4, "Chi scrive la nota");
    pdf.AddWebLink("https://example.org/una/pagina", 300, 180, 80, 20);
}

void Documento(clsPDFCreator& pdf, Aperto& aperto)
{
    pdf.SetLanguage("it-IT-con-parti-in-piu");
    pdf.SetDocProperty("Un titolo che non è corto", "Un argomento che non è corto",
                       "Chi lo scrive");
    Oggetti(pdf, aperto);
    for (int pagina = 0; pagina < 3; ++pagina) {
        pdf.BeginPage(0, 1, "Parte prima, pagina ", pagina == 0 ? 1 : -1);
        aperto = Aperto::Pagina;
        Scritte(pdf);
        Disegni(pdf);
        Note(pdf);
        pdf.EndPage();
        aperto = Aperto::Niente;
    }
    pdf.EndDoc();
}

// How a piece of work ends; other exceptions fail the test.
enum class Fine
{
    Bene,
    Memoria,
    Errore,
};

template <typename Lavoro>
Fine Prova(const Lavoro& lavoro, std::string& detto)
{
    try {
        lavoro();
        return Fine::Bene;
    } catch (const std::bad_alloc&) {
        return Fine::Memoria;
    } catch (const ErroreRuntime& errore) {
        detto = errore.what();
        return Fine::Errore;
    }
}

using Modo = std::function<void(clsPDFCreator&)>;

// One document while request number k fails.
struct Corsa
{
    Fine Come = Fine::Bene;
    std::string Detto;
    bool FinitoLoStesso = false; // the document could be ended after a failure
    std::string Pdf;
    std::uint64_t Richieste = 0;
};

void Chiudi(clsPDFCreator& pdf, Aperto aperto)
{
    if (aperto == Aperto::Pagina) pdf.EndPage();
    if (aperto == Aperto::Oggetto) pdf.EndObject();
    if (aperto == Aperto::Trama) pdf.EndTiling();
    pdf.EndDoc();
}

Corsa Corri(const Modo& modo, std::uint64_t k, Durata durata)
{
    Corsa corsa;
    Aperto aperto = Aperto::Niente;
    bool iniziato = false;
    std::string pdf;
    memoria::Guasta(k, durata);
    {
        std::optional<clsPDFCreator> scrittore;
        corsa.Come = Prova(
            [&] {
                scrittore.emplace();
                scrittore->SetClock({[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}; },
                                     [] { return 7; }});
                modo(*scrittore);
                scrittore->BeginDocTo([&pdf](std::string_view pezzo) { pdf.append(pezzo); });
                iniziato = true;
                Documento(*scrittore, aperto);
            },
            corsa.Detto);
        corsa.Richieste = memoria::Ripara();
        if (corsa.Come != Fine::Bene && iniziato) {
            std::string detto;
            const Fine fine = Prova([&] { Chiudi(*scrittore, aperto); }, detto);
            corsa.FinitoLoStesso = fine == Fine::Bene;
            EXPECT_TRUE(corsa.Come != Fine::Errore || detto == corsa.Detto) << detto;
        }
    }
    corsa.Pdf = std::move(pdf);
    return corsa;
}

void Esaurisci(const Modo& modo)
{
    const Corsa bene = Corri(modo, 0, Durata::UnaVolta);
    ASSERT_EQ(bene.Come, Fine::Bene);
    ASSERT_GT(bene.Richieste, 100U);
    const auto difetti = aiuti::LeggiPdf(bene.Pdf).Difetti;
    ASSERT_TRUE(difetti.empty()) << difetti.front();
    for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
        for (std::uint64_t k = 1; k <= bene.Richieste; ++k) {
            SCOPED_TRACE(std::to_string(k) + " of " + std::to_string(bene.Richieste));
            const std::int64_t prima = memoria::Presi();
            {
                const Corsa corsa = Corri(modo, k, durata);
                EXPECT_TRUE(corsa.Come != Fine::Bene || corsa.Pdf == bene.Pdf);
                EXPECT_TRUE(corsa.Come != Fine::Errore || corsa.Detto == "Memoria esaurita");
                if (corsa.FinitoLoStesso) {
                    const auto letto = aiuti::LeggiPdf(corsa.Pdf);
                    EXPECT_TRUE(letto.Difetti.empty()) << letto.Difetti.front();
                }
            }
            EXPECT_EQ(memoria::Presi(), prima);
        }
    }
}

} // namespace

TEST(MemoriaDiUnDocumento, Classico)
{
    Esaurisci([](clsPDFCreator&) {});
}

TEST(MemoriaDiUnDocumento, ConFigureFiltrateECaratteriCondivisi)
{
    Esaurisci([](clsPDFCreator& pdf) {
        pdf.FilterDecode(6);
        pdf.ShareFonts(true);
    });
}

TEST(MemoriaDiUnDocumento, Conforme)
{
    Esaurisci([](clsPDFCreator& pdf) { pdf.Conforming(); });
}

TEST(MemoriaDiUnDocumento, Compresso)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << "la libreria è senza zlib";
    Esaurisci([](clsPDFCreator& pdf) { pdf.Compress(6); });
}

TEST(MemoriaDiUnDocumento, ConformeECompresso)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << "la libreria è senza zlib";
    Esaurisci([](clsPDFCreator& pdf) {
        pdf.Conforming();
        pdf.Compress(6);
    });
}
