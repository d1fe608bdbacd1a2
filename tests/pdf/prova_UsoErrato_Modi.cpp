// Switches and beginnings in the wrong order: what comes too late for a document leaves it sound,
// and a second beginning ends the first as it stands.

#include "Aiuti.h"
#include "Deflate.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

using aiuti::Byte;
using aiuti::ErroreDi;

namespace {

using Chiamata = std::function<void(clsPDFCreator&)>;

struct Nominata
{
    std::string Nome;
    Chiamata Chiama;
};

void Comprimi(clsPDFCreator& pdf, std::int32_t livello)
{
    if (pdf::prCanDeflate()) pdf.Compress(livello);
}

const std::vector<Nominata>& Modi()
{
    static const std::vector<Nominata> modi = {
        {"classico", [](auto&) {}},
        {"compresso", [](auto& pdf) { Comprimi(pdf, 6); }},
        {"conforme", [](auto& pdf) { pdf.Conforming(); }},
        {"conforme e compresso",
         [](auto& pdf) {
             pdf.Conforming();
             Comprimi(pdf, 6);
         }},
    };
    return modi;
}

// Calls that belong before BeginDoc, or anywhere.
const std::vector<Nominata>& Chiamate()
{
    static const std::vector<Nominata> chiamate = {
        {"Conforming", [](auto& pdf) { pdf.Conforming(); }},
        {"Conforming(false)", [](auto& pdf) { pdf.Conforming(false); }},
        {"Compress", [](auto& pdf) { Comprimi(pdf, 9); }},
        {"Compress(0)", [](auto& pdf) { pdf.Compress(0); }},
        {"SetLanguage", [](auto& pdf) { pdf.SetLanguage("it"); }},
        {"PDFReader", [](auto& pdf) { pdf.PDFReader(5); }},
        {"ShareFonts", [](auto& pdf) { pdf.ShareFonts(true); }},
        {"AddFontData",
         [](auto& pdf) { pdf.AddFontData(Byte(SCALVINO_SEMI "/ttf/unicode.ttf"), "Mio"); }},
    };
    return chiamate;
}

constexpr int Momenti = 6;

// A document with chiamata at one of its moments.
std::string Documento(const Chiamata& modo, const Chiamata& chiamata, int momento)
{
    std::string byte;
    clsPDFCreator pdf;
    int questo = 0;
    const auto ora = [&] {
        if (questo++ == momento) chiamata(pdf);
    };
    pdf.SetClock(aiuti::OrologioFermo());
    modo(pdf);
    ora();
    pdf.BeginDocTo([&byte](std::string_view pezzo) { byte.append(pezzo); });
    ora();
    for (int pagina = 0; pagina < 2; ++pagina) {
        pdf.BeginPage();
        pdf.SetFont("Mio", 10, 1);
        pdf.DrawText(10, 20, "uno");
        if (pagina == 0) ora();
        pdf.DrawImageData(Byte(SCALVINO_SEMI "/gif/4bit.gif"), 10, 30, 40, 50);
        pdf.AddNoteBox("nota", 10, 100, 40, 40);
        pdf.AddBookmark("voce");
        pdf.EndPage();
        if (pagina == 0) ora();
    }
    ora();
    pdf.EndDoc();
    ora();
    EXPECT_EQ(questo, Momenti);
    return byte;
}

} // namespace

TEST(OrdineErrato, CioCheArrivaTardiLasciaIlDocumentoIntero)
{
    for (const auto& modo : Modi()) {
        for (const auto& chiamata : Chiamate()) {
            for (int momento = 1; momento < Momenti; ++momento) {
                SCOPED_TRACE(modo.Nome + ", " + chiamata.Nome + " " + std::to_string(momento));
                const auto letto =
                    aiuti::LeggiPdf(Documento(modo.Chiama, chiamata.Chiama, momento));
                EXPECT_THAT(letto.Difetti, testing::IsEmpty());
                EXPECT_EQ(letto.Pagine(), 2);
            }
        }
    }
}

TEST(OrdineErrato, LUltimaParolaPrimaDiBeginDocVale)
{
    const auto niente = [](clsPDFCreator&) {};
    const std::string atteso = Documento(niente, niente, 0);
    const auto ripensa = [](clsPDFCreator& pdf) {
        pdf.Conforming();
        Comprimi(pdf, 9);
        pdf.Compress(0);
        pdf.Conforming(false);
    };
    EXPECT_TRUE(Documento(niente, ripensa, 0) == atteso);
}

TEST(OrdineErrato, UnLivelloCheNonCeLasciaQuelloDiPrima)
{
    for (const std::int32_t livello : {-1, 10, 1000}) {
        const auto errore = ErroreDi([livello] { clsPDFCreator().Compress(livello); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
    }
    const auto sei = [](clsPDFCreator& pdf) { Comprimi(pdf, 6); };
    const auto anche = [](clsPDFCreator& pdf) { EXPECT_TRUE(ErroreDi([&] { pdf.Compress(10); })); };
    for (int momento = 0; momento < Momenti; ++momento) {
        EXPECT_TRUE(Documento(sei, anche, momento) == Documento(
                                                          sei, [](auto&) {}, 0));
    }
}

TEST(OrdineErrato, DueIniziDiFilaDannoUnDocumentoInteroAlSecondo)
{
    std::ostringstream primo;
    std::ostringstream secondo;
    clsPDFCreator pdf;
    pdf.SetClock(aiuti::OrologioFermo());
    pdf.BeginDocTo(primo);
    pdf.BeginDocTo(secondo);
    pdf.BeginPage();
    pdf.EndPage();
    pdf.EndDoc();
    EXPECT_THAT(primo.str(), testing::Not(testing::HasSubstr("%%EOF")));
    aiuti::Esamina(secondo.str());
}

TEST(OrdineErrato, UnaFiguraDopoEndDocEUnErroreEUnCarattereServeAlDocumentoDopo)
{
    const std::string figura = Byte(SCALVINO_SEMI "/gif/4bit.gif");
    std::ostringstream flusso;
    clsPDFCreator pdf;
    pdf.BeginDocTo(flusso);
    pdf.EndDoc();
    const std::string prima = flusso.str();
    const auto errore = ErroreDi([&] { pdf.DrawImageData(figura, 1, 2, 3, 4); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "nessun documento è aperto: manca BeginDoc");
    EXPECT_FALSE(
        ErroreDi([&pdf] { pdf.AddFontData(Byte(SCALVINO_SEMI "/ttf/unicode.ttf"), "Mio"); }));
    EXPECT_EQ(flusso.str(), prima);
}
