// Compressed documents whose writes and closes fail, each in its turn, and whose readers throw.

#include "Aiuti.h"
#include "Deflate.h"
#include "Inflato.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <ostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::Durata;
using aiuti::ErroreDi;
using aiuti::ScrittureGuaste;

namespace {

constexpr const char* SenzaZlib = "la libreria è senza zlib";
constexpr const char* Motivo = "errore del dispositivo";

struct Modo
{
    int Livello;
    bool Conforme;
};

std::ostream& operator<<(std::ostream& flusso, const Modo& modo)
{
    return flusso << (modo.Conforme ? "conforme, " : "") << "livello " << modo.Livello;
}

void Prepara(clsPDFCreator& pdf, const Modo& modo)
{
    pdf.SetClock(aiuti::OrologioFermo());
    pdf.Compress(modo.Livello);
    pdf.Conforming(modo.Conforme);
}

// Pages of lines that are all different, so that also deflated there are several writes.
void Pagine(clsPDFCreator& pdf)
{
    std::mt19937 caso(1);
    const auto numero = [&caso] { return static_cast<float>(caso() % 500000) / 1000; };
    pdf.SetFont("Arial", 10);
    for (int pagina = 0; pagina < 15; ++pagina) {
        pdf.BeginPage();
        pdf.DrawText(10, 10, "Pagina");
        for (int riga = 0; riga < 1000; ++riga) {
            pdf.DrawLine(numero(), numero(), numero(), numero());
        }
        pdf.EndPage();
    }
}

void DocumentoIntero(clsPDFCreator& pdf, const std::string& nome)
{
    pdf.BeginDoc(nome);
    Pagine(pdf);
    pdf.EndDoc();
}

void Confronta(const std::optional<ErroreRuntime>& errore, const std::string& file)
{
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::ErroreInputOutput);
    EXPECT_EQ(errore->Motivo(), Motivo);
    EXPECT_EQ(errore->File(), file);
}

void FallisceTutto(clsPDFCreator& pdf, const std::string& nome)
{
    for (const auto& operazione : std::vector<std::function<void()>>{
             [&pdf] { pdf.DrawLine(1, 2, 3, 4); }, [&pdf] { pdf.EndPage(); },
             [&pdf] { pdf.BeginPage(); }, [&pdf] { pdf.BeginObject("Modulo"); },
             [&pdf] { pdf.EndObject(); }, [&pdf] { pdf.EndDoc(); }, [&pdf] { pdf.EndDoc(); }}) {
        Confronta(ErroreDi(operazione), nome);
    }
}

class DocumentiCompressi : public testing::TestWithParam<Modo>
{
protected:
    void SetUp() override
    {
        if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    }

    static std::string Atteso()
    {
        std::ostringstream flusso;
        clsPDFCreator pdf;
        Prepara(pdf, GetParam());
        pdf.BeginDocTo(flusso);
        Pagine(pdf);
        pdf.EndDoc();
        return flusso.str();
    }
};

} // namespace

TEST_P(DocumentiCompressi, OgniScritturaCheFallisceEUnErroreEPoiTutteLoStesso)
{
    const CartellaDiProva cartella;
    const std::string nome = cartella.Nome() + "prova.pdf";
    int quante = 0;
    std::string atteso;
    {
        const ScrittureGuaste scritture;
        clsPDFCreator pdf;
        Prepara(pdf, GetParam());
        DocumentoIntero(pdf, nome);
        quante = scritture.Scritture();
        atteso = Byte(nome);
    }
    ASSERT_GE(quante, 4);
    for (int quale = 1; quale <= quante; ++quale) {
        SCOPED_TRACE(quale);
        ScrittureGuaste scritture;
        scritture.Guasta(quale, EIO, quale % 2 == 0 ? Durata::UnaVolta : Durata::DaAllora);
        clsPDFCreator pdf;
        Prepara(pdf, GetParam());
        Confronta(ErroreDi([&] { DocumentoIntero(pdf, nome); }), nome);
        FallisceTutto(pdf, nome);
        EXPECT_EQ(scritture.Scritture(), quale); // what failed is not tried again
        EXPECT_TRUE(Byte(nome) == atteso.substr(0, scritture.Byte()));
    }
}

TEST_P(DocumentiCompressi, LaChiusuraCheFallisceEUnErrore)
{
    const CartellaDiProva cartella;
    const std::string nome = cartella.Nome() + "prova.pdf";
    ScrittureGuaste scritture;
    scritture.GuastaChiusura(1, EIO);
    clsPDFCreator pdf;
    Prepara(pdf, GetParam());
    Confronta(ErroreDi([&] { DocumentoIntero(pdf, nome); }), nome);
}

TEST_P(DocumentiCompressi, OgniPezzoRifiutatoEUnErroreEUnoDopoESano)
{
    const std::string atteso = Atteso();
    for (int rifiutato = 1; rifiutato <= 4; ++rifiutato) {
        int pezzi = 0;
        std::string byte;
        clsPDFCreator pdf;
        Prepara(pdf, GetParam());
        const auto errore = ErroreDi([&] {
            pdf.BeginDocTo([&](std::string_view pezzo) {
                if (++pezzi == rifiutato) throw 7; // no exception of any library
                byte += pezzo;
            });
            Pagine(pdf);
            pdf.EndDoc();
        });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->Numero(), NumeroErrore::ErroreInputOutput);
        EXPECT_EQ(pezzi, rifiutato);
        EXPECT_TRUE(byte == atteso.substr(0, byte.size()));
        pdf = clsPDFCreator();
        Prepara(pdf, GetParam());
        byte.clear();
        pdf.BeginDocTo([&byte](std::string_view pezzo) { byte += pezzo; });
        Pagine(pdf);
        pdf.EndDoc();
        EXPECT_TRUE(byte == atteso);
    }
}

// What was drawn is in the file, though it is no document.
TEST_P(DocumentiCompressi, UnoLasciatoAMetaSiChiudeComEConIlProssimo)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    Prepara(pdf, GetParam());
    const std::string primo = pdf.BeginDoc(cartella.Nome() + "primo.pdf");
    pdf.BeginPage();
    pdf.DrawLine(1, 2, 3, 4);
    pdf.BeginDoc(cartella.Nome() + "secondo.pdf");
    const std::string byte = Byte(primo);
    const std::string inizio = "\r\nstream\r\n";
    const auto dati = byte.rfind(inizio);
    ASSERT_NE(dati, byte.npos);
    const auto contenuto = aiuti::Inflato(byte.substr(dati + inizio.size()));
    ASSERT_TRUE(contenuto);
    EXPECT_THAT(*contenuto, testing::EndsWith("1 2 m 3 4 l\r\nS\r\n"));
}

// Nothing that a caller does in the wrong order leaves memory that is not its own; what it leaves
// is no document.
TEST_P(DocumentiCompressi, ChiamateFuoriPostoNonFannoDanni)
{
    const std::vector<std::function<void(clsPDFCreator&)>> chiamate = {
        [](clsPDFCreator& pdf) { pdf.BeginPage(); },
        [](clsPDFCreator& pdf) { pdf.EndPage(); },
        [](clsPDFCreator& pdf) { pdf.BeginObject("A" + std::to_string(pdf.Pages())); },
        [](clsPDFCreator& pdf) { pdf.EndObject(); },
        [](clsPDFCreator& pdf) { pdf.DrawLine(0, 0, 9, 9); },
        [](clsPDFCreator& pdf) { pdf.EndTiling(); },
    };
    std::mt19937 caso(2);
    for (int volta = 0; volta < 200; ++volta) {
        std::ostringstream flusso;
        clsPDFCreator pdf;
        Prepara(pdf, GetParam());
        pdf.BeginDocTo(flusso);
        for (int i = 0; i < 30; ++i) {
            ErroreDi([&] { chiamate[caso() % chiamate.size()](pdf); });
        }
        ErroreDi([&pdf] { pdf.EndDoc(); });
        EXPECT_GT(flusso.str().size(), 0U);
    }
}

INSTANTIATE_TEST_SUITE_P(Modi, DocumentiCompressi,
                         testing::Values(Modo{1, false}, Modo{6, false}, Modo{6, true}));
