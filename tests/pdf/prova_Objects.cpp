// Documents whose writes and closes fail, each in its turn.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::Durata;
using aiuti::ErroreDi;
using aiuti::ScrittureGuaste;

namespace {

struct Ragione
{
    int Codice;
    NumeroErrore Numero;
    const char* Motivo;
};

constexpr Ragione Pieno = {ENOSPC, NumeroErrore::DiscoPieno, "spazio esaurito sul disco"};
constexpr Ragione Rotto = {EIO, NumeroErrore::ErroreInputOutput, "errore del dispositivo"};

void Confronta(const std::optional<ErroreRuntime>& errore, const Ragione& ragione,
               const std::string& file)
{
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), ragione.Numero);
    EXPECT_EQ(errore->Motivo(), ragione.Motivo);
    EXPECT_EQ(errore->File(), file);
}

// Pages of some 20 kB each.
void Pagine(clsPDFCreator& pdf, int quante)
{
    for (int pagina = 0; pagina < quante; ++pagina) {
        pdf.BeginPage();
        for (int riga = 0; riga < 1000; ++riga) pdf.DrawLine(0, 0, 500, static_cast<float>(riga));
        pdf.EndPage();
    }
}

void DocumentoIntero(clsPDFCreator& pdf, const std::string& nome)
{
    pdf.BeginDoc(nome);
    pdf.SetFont("Arial", 10);
    Pagine(pdf, 20);
    pdf.EndDoc();
}

std::string Atteso()
{
    static const std::string byte = [] {
        const CartellaDiProva cartella;
        clsPDFCreator pdf;
        pdf.SetClock(aiuti::OrologioFermo());
        DocumentoIntero(pdf, cartella.Nome() + "prova.pdf");
        return Byte(cartella.File("prova.pdf"));
    }();
    return byte;
}

// Every operation on this document fails in the same way.
void FallisceTutto(clsPDFCreator& pdf, const Ragione& ragione, const std::string& nome)
{
    Confronta(ErroreDi([&pdf] { pdf.DrawLine(1, 2, 3, 4); }), ragione, nome);
    Confronta(ErroreDi([&pdf] { pdf.DrawTextBox(1, 2, 3, 4, "testo"); }), ragione, nome);
    Confronta(ErroreDi([&pdf] { pdf.EndPage(); }), ragione, nome);
    Confronta(ErroreDi([&pdf] { pdf.BeginPage(); }), ragione, nome);
    Confronta(ErroreDi([&pdf] { pdf.BeginObject("Modulo"); }), ragione, nome);
    Confronta(ErroreDi([&pdf] { pdf.EndDoc(); }), ragione, nome);
    Confronta(ErroreDi([&pdf] { pdf.EndDoc(); }), ragione, nome);
}

int ScrittureDiUnDocumento()
{
    const CartellaDiProva cartella;
    const ScrittureGuaste scritture;
    clsPDFCreator pdf;
    DocumentoIntero(pdf, cartella.Nome() + "prova.pdf");
    EXPECT_EQ(scritture.Chiusure(), 1);
    return scritture.Scritture();
}

} // namespace

TEST(ScrittureDelPdf, OgnunaCheFallisceEUnErroreEPoiTuttiGliAltriLoStesso)
{
    const std::string atteso = Atteso();
    const int quante = ScrittureDiUnDocumento();
    ASSERT_GE(quante, 5);
    for (int quale = 1; quale <= quante; ++quale) {
        for (const auto& ragione : {Pieno, Rotto}) {
            for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
                SCOPED_TRACE(std::to_string(quale) + " " + ragione.Motivo);
                const CartellaDiProva cartella;
                const std::string nome = cartella.Nome() + "prova.pdf";
                ScrittureGuaste scritture;
                scritture.Guasta(quale, ragione.Codice, durata);
                clsPDFCreator pdf;
                pdf.SetClock(aiuti::OrologioFermo());
                Confronta(ErroreDi([&] { DocumentoIntero(pdf, nome); }), ragione, nome);
                FallisceTutto(pdf, ragione, nome);
                EXPECT_EQ(scritture.Scritture(), quale); // what failed is not tried again
                // As far as it was written, whole blocks only.
                EXPECT_TRUE(Byte(nome) == atteso.substr(0, scritture.Byte()));
            }
        }
    }
}

TEST(ScrittureDelPdf, AncheAMetaDiUnBlocco)
{
    for (const int quale : {1, 2, 10, 50}) {
        const CartellaDiProva cartella;
        const std::string nome = cartella.Nome() + "prova.pdf";
        ScrittureGuaste scritture;
        scritture.Spezza(1000);
        scritture.Guasta(quale, ENOSPC);
        clsPDFCreator pdf;
        pdf.SetClock(aiuti::OrologioFermo());
        Confronta(ErroreDi([&] { DocumentoIntero(pdf, nome); }), Pieno, nome);
        FallisceTutto(pdf, Pieno, nome);
        EXPECT_EQ(Byte(nome), ""); // all of this is the first block, which is cut off again
    }
}

TEST(ScrittureDelPdf, LaChiusuraCheFallisceEUnErrore)
{
    for (const auto& ragione : {Pieno, Rotto}) {
        const CartellaDiProva cartella;
        const std::string nome = cartella.Nome() + "prova.pdf";
        ScrittureGuaste scritture;
        scritture.GuastaChiusura(1, ragione.Codice);
        clsPDFCreator pdf;
        Confronta(ErroreDi([&] { DocumentoIntero(pdf, nome); }), ragione, nome);
        EXPECT_EQ(scritture.Chiusure(), 1);
        const auto dopo = ErroreDi([&pdf] { pdf.EndDoc(); });
        ASSERT_TRUE(dopo);
        EXPECT_EQ(dopo->Numero(), NumeroErrore::ChiamataNonValida); // it is closed
    }
}

TEST(ScrittureDelPdf, UnNuovoBeginDocFunzionaDiNuovo)
{
    for (const int quale : {1, 3, ScrittureDiUnDocumento()}) {
        const CartellaDiProva cartella;
        const std::string nome = cartella.Nome() + "prova.pdf";
        clsPDFCreator pdf;
        {
            ScrittureGuaste scritture;
            scritture.Guasta(quale, EIO);
            EXPECT_TRUE(ErroreDi([&] { DocumentoIntero(pdf, nome); }));
        }
        EXPECT_EQ(pdf.BeginDoc(nome), nome);
        Pagine(pdf, 1);
        pdf.EndDoc();
        const std::string byte = Byte(nome);
        EXPECT_THAT(byte, testing::StartsWith("%PDF-1.3\r\n"));
        EXPECT_THAT(byte, testing::HasSubstr("7 0 obj\r\n<< /Type /Page /Parent 4 0 R"));
        EXPECT_THAT(byte, testing::EndsWith("%%EOF\r\r\n"));
    }
}

TEST(ScrittureDelPdf, BeginDocDiceSeQuelloCheChiudeNonSiScrive)
{
    for (const bool chiusura : {false, true}) {
        const CartellaDiProva cartella;
        const std::string primo = cartella.Nome() + "primo.pdf";
        ScrittureGuaste scritture;
        if (chiusura) scritture.GuastaChiusura(1, EIO);
        else scritture.Guasta(1, EIO);
        clsPDFCreator pdf;
        pdf.BeginDoc(primo);
        Confronta(ErroreDi([&] { pdf.BeginDoc(cartella.Nome() + "secondo.pdf"); }), Rotto, primo);
        EXPECT_THAT(cartella.Contenuto(), testing::ElementsAre("primo.pdf"));
        pdf.BeginDoc(cartella.Nome() + "secondo.pdf");
        Pagine(pdf, 1);
        pdf.EndDoc();
        aiuti::Esamina(Byte(cartella.File("secondo.pdf")));
    }
}

TEST(ScrittureDelPdf, CorteEInterrotteNonCambianoIlFile)
{
    const std::string atteso = Atteso();
    for (const std::size_t pezzo : {std::size_t{1}, std::size_t{777}}) {
        const CartellaDiProva cartella;
        ScrittureGuaste scritture;
        scritture.Spezza(pezzo);
        scritture.Interrompi();
        clsPDFCreator pdf;
        pdf.SetClock(aiuti::OrologioFermo());
        DocumentoIntero(pdf, cartella.Nome() + "prova.pdf");
        EXPECT_TRUE(Byte(cartella.File("prova.pdf")) == atteso);
    }
}

TEST(ScrittureDelPdf, UnDocumentoDistruttoAMetaNonDiceNiente)
{
    const CartellaDiProva cartella;
    ScrittureGuaste scritture;
    scritture.Guasta(1, EIO, Durata::DaAllora);
    scritture.GuastaChiusura(1, EIO, Durata::DaAllora);
    EXPECT_FALSE(ErroreDi([&cartella] {
        clsPDFCreator pdf;
        pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    }));
}
