// Compress: what is deflated and what is not, the levels, and that everything else stays.

#include "Aiuti.h"
#include "Deflate.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using aiuti::ByteDocumento;
using aiuti::Documento;
using aiuti::ErroreDi;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr const char* SenzaZlib = "la libreria è senza zlib";
constexpr const char* Filtro = "/Filter /FlateDecode ";

void Pagine(clsPDFCreator& pdf)
{
    pdf.SetFont("Arial", 12);
    pdf.BeginObject("Cornice", 7);
    pdf.DrawRect(10, 10, 500, 700, 1);
    pdf.EndObject();
    pdf.BeginTiling("Righe", 0, 0, 4, 4, 4, 4);
    pdf.DrawLine(0, 0, 4, 4);
    pdf.EndTiling();
    for (int pagina = 0; pagina < 3; ++pagina) {
        pdf.BeginPage();
        pdf.SetColorFill("Righe");
        pdf.DrawRect(50, 500, 100, 100, 4);
        pdf.SetColorFill("Black");
        for (int riga = 1; riga < 400; ++riga) {
            pdf.DrawText(30, static_cast<float>(riga), "Riga " + std::to_string(riga));
        }
        pdf.EndPage();
    }
}

void Figure(clsPDFCreator& pdf)
{
    const std::string semi = SCALVINO_SEMI "/";
    pdf.BeginPage();
    float x = 0;
    for (const char* file :
         {"bmp/24bit_40.bmp", "bmp/4bit_40.bmp", "gif/8bit.gif", "jpeg/colori.jpg"}) {
        pdf.DrawImage(semi + file, x += 50, 50, 40, 40);
    }
    pdf.EndPage();
}

// More than two hundred of what a document is made of.
void DiTutto(clsPDFCreator& pdf)
{
    const std::string semi = SCALVINO_SEMI "/";
    const char* figure[] = {"bmp/24bit_40.bmp", "bmp/4bit_40.bmp", "gif/8bit.gif",
                            "jpeg/colori.jpg"};
    pdf.AddFont(semi + "ttf/unicode.ttf", "Mio");
    for (int pagina = 0; pagina < 60; ++pagina) {
        const std::string n = std::to_string(pagina);
        pdf.BeginObject("O" + n);
        pdf.SetFont("Arial", 10);
        pdf.DrawText(10, 20, "Oggetto " + n);
        pdf.EndObject();
        pdf.BeginTiling("T" + n, 0, 0, 5, 5, 5, 5);
        pdf.DrawLine(0, 0, 5, 5);
        pdf.EndTiling();
        pdf.BeginPage();
        pdf.SetFont(pagina % 2 == 0 ? "Mio" : "Times New Roman", 12, pagina % 4);
        pdf.DrawText(50, 50, "A");
        pdf.PlayObject("O" + n);
        pdf.SetColorFill("T" + n);
        pdf.DrawRect(200, 200, 50, 50, 4);
        pdf.SetLinearFill({"Red", "Blue"}, 300, 300, 350, 350);
        pdf.DrawRect(300, 300, 50, 50, 4);
        pdf.DrawImage(semi + figure[pagina % 4], 100, 400, 40, 40, n);
        for (int i = 0; i < pagina % 5; ++i) {
            const auto x = 100 + 60 * static_cast<float>(i);
            pdf.AddNoteIcon("Nota è " + n, 1, x, 500);
            pdf.AddNoteBox("Riquadro", x, 550, 50, 30);
            pdf.AddWebLink("http://example.org/" + n, x, 650, 50, 30);
        }
        pdf.AddBookmark("Segnalibro č " + n, 1 + pagina % 3);
        pdf.EndPage();
    }
}

aiuti::Disegno Livello(int livello)
{
    return [livello](clsPDFCreator& pdf) { pdf.Compress(livello); };
}

} // namespace

TEST(Compressione, LeStesseOperazioniStannoNeiFlussiCompressi)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto intero = Documento({}, Pagine);
    for (int livello = 1; livello <= 9; ++livello) {
        const auto letto = Documento(Livello(livello), Pagine);
        ASSERT_EQ(letto.Oggetti.size(), intero.Oggetti.size());
        EXPECT_EQ(letto.Versione, "1.3");
        for (std::size_t n = 0; n < letto.Oggetti.size(); ++n) {
            EXPECT_EQ(letto.Dati[n], intero.Dati[n]) << n + 1;
            std::string oggetto = letto.Oggetti[n];
            const auto filtro = oggetto.find(Filtro);
            const bool compresso = filtro != std::string::npos;
            if (compresso) oggetto.erase(filtro, std::string(Filtro).size());
            EXPECT_EQ(compresso, letto.Dati[n] && !oggetto.starts_with("<< /Type /Metadata"));
            // Numbers by themselves are the lengths of streams.
            if (oggetto.find_first_not_of("0123456789") != std::string::npos) {
                EXPECT_EQ(oggetto, intero.Oggetti[n]);
            }
        }
    }
}

TEST(Compressione, ZeroNonCambiaUnByte)
{
    EXPECT_TRUE(ByteDocumento(Livello(0), Pagine) == ByteDocumento({}, Pagine));
}

TEST(Compressione, GliStessiDatiDannoGliStessiByte)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const std::string uno = ByteDocumento(Livello(6), Pagine);
    EXPECT_TRUE(uno == ByteDocumento(Livello(6), Pagine));
    EXPECT_LT(uno.size(), ByteDocumento({}, Pagine).size() / 3);
}

TEST(Compressione, UnTestoLunghissimoPassaIntero)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto pagina = [](clsPDFCreator& pdf) {
        pdf.BeginPage();
        pdf.SetFont("Arial", 1);
        for (const std::size_t lunga : {4096U, 100U, 300000U, 4095U, 1U}) {
            pdf.DrawText(0, 10, std::string(lunga, 'x'));
        }
        pdf.EndPage();
    };
    EXPECT_EQ(Documento(Livello(6), pagina).Contenuto(1), Documento({}, pagina).Contenuto(1));
}

TEST(Compressione, FigureETavolozzeSenzaFiltroSonoCompresse)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto intero = Documento({}, Figure);
    const auto letto = Documento(Livello(6), Figure);
    ASSERT_EQ(letto.Oggetti.size(), intero.Oggetti.size());
    int compresse = 0;
    for (std::size_t n = 0; n < letto.Oggetti.size(); ++n) {
        if (!letto.Dati[n] || letto.Dati[n] == intero.Dati[n]) continue;
        // As they are they end in a line end that readers skip; deflated they stand alone.
        EXPECT_EQ(*letto.Dati[n] + "\r\r\n", *intero.Dati[n]);
        EXPECT_THAT(letto.Oggetti[n], HasSubstr(Filtro));
        ++compresse;
    }
    EXPECT_EQ(compresse, 5); // three pictures, two palettes
    EXPECT_THAT(letto.Oggetti,
                testing::Contains(AllOf(HasSubstr("/DCTDecode"), Not(HasSubstr("FlateDecode")))));
}

TEST(Compressione, IFiltriSceltiRestano)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    for (const int filtro : {1, 2, 4, 8, 15}) {
        const auto scelto = [filtro](clsPDFCreator& pdf) {
            pdf.FilterDecode(filtro);
            Figure(pdf);
        };
        const auto intero = Documento({}, scelto);
        const auto letto = Documento(Livello(9), scelto);
        for (std::size_t n = 0; n < intero.Oggetti.size(); ++n) {
            if (intero.Oggetti[n].find("/Filter") == std::string::npos) continue;
            EXPECT_EQ(letto.Oggetti[n], intero.Oggetti[n]);
            EXPECT_EQ(letto.Dati[n], intero.Dati[n]);
        }
    }
}

// Fonts are deflated when they are added, before BeginDoc or while a page is open.
TEST(Compressione, ICaratteriIncorporatiSonoCompressi)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const std::string file = SCALVINO_SEMI "/ttf/unicode.ttf";
    const auto letto = Documento(
        [&file](clsPDFCreator& pdf) {
            pdf.AddFont(file, "Prima");
            pdf.Compress(6);
            pdf.AddFont(file, "Dopo");
        },
        [&file](clsPDFCreator& pdf) {
            pdf.BeginPage();
            pdf.SetFont("Dopo", 12);
            pdf.DrawText(10, 20, "A");
            pdf.AddFont(file, "Sulla pagina");
            pdf.DrawText(10, 40, "A");
            pdf.EndPage();
        });
    std::vector<std::string> filtri;
    for (std::size_t n = 0; n < letto.Oggetti.size(); ++n) {
        if (letto.Oggetti[n].find("/Length1") == std::string::npos) continue;
        const bool compresso = letto.Oggetti[n].find("/FlateDecode") != std::string::npos;
        filtri.emplace_back(compresso ? "FlateDecode" : "LZWDecode");
        EXPECT_EQ(letto.Dati[n] == aiuti::Byte(file), compresso);
    }
    EXPECT_THAT(filtri, testing::ElementsAre("LZWDecode", "FlateDecode", "FlateDecode"));
}

// Numbers are given out otherwise, since packed objects need some for their streams: the pages draw
// the same with them.
TEST(Compressione, UnConformeImpacchettatoHaLeStessePagine)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto conforme = [](int livello) {
        return Documento(
            [livello](clsPDFCreator& pdf) {
                pdf.Conforming();
                pdf.Compress(livello);
            },
            DiTutto);
    };
    const auto intero = conforme(0);
    const auto letto = conforme(6);
    ASSERT_EQ(letto.Pagine(), 60);
    for (int pagina = 1; pagina <= 60; ++pagina) {
        EXPECT_EQ(letto.Contenuto(pagina), intero.Contenuto(pagina));
    }
    EXPECT_THAT(letto.Liberi, testing::IsEmpty());
    const auto pacchi = [](const std::string& o) { return o.starts_with("<< /Type /ObjStm"); };
    EXPECT_GE(std::count_if(letto.Oggetti.begin(), letto.Oggetti.end(), pacchi), 4);
}

TEST(Compressione, AltriLivelliSonoErrori)
{
    for (const int livello : {-1, 10, -2147483647 - 1, 2147483647}) {
        clsPDFCreator pdf;
        const auto errore = ErroreDi([&] { pdf.Compress(livello); });
        ASSERT_TRUE(errore) << livello;
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
        EXPECT_EQ(errore->Motivo(), "i documenti si comprimono da 0 a 9");
    }
}

TEST(Compressione, SenzaZlibEUnErroreSolo)
{
    if (pdf::prCanDeflate()) GTEST_SKIP() << "la libreria ha zlib";
    clsPDFCreator pdf;
    for (int livello = 1; livello <= 9; ++livello) {
        const auto errore = ErroreDi([&] { pdf.Compress(livello); });
        ASSERT_TRUE(errore) << livello;
        EXPECT_EQ(errore->Numero(), NumeroErrore::ChiamataNonValida);
        EXPECT_EQ(errore->Motivo(),
                  "i documenti non si possono comprimere: la libreria è senza zlib");
    }
    pdf.Compress(0);
}

// The level is that of BeginDoc: a document is compressed as a whole or not at all.
TEST(Compressione, DopoBeginDocValePerIlProssimoDocumento)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const aiuti::CartellaDiProva cartella;
    clsPDFCreator pdf;
    const std::string nome = cartella.Nome() + "prova.pdf";
    for (const bool compresso : {false, true}) {
        pdf.BeginDoc(nome);
        pdf.Compress(compresso ? 0 : 6);
        Pagine(pdf);
        pdf.EndDoc();
        EXPECT_EQ(aiuti::Byte(nome).find(Filtro) != std::string::npos, compresso);
    }
}
