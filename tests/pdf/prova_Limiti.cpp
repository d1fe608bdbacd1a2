// Weird texts, and as many of everything as a document can hold, and one more.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

using aiuti::Byte;
using aiuti::ByteDocumento;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;
using aiuti::LeggiPdf;
using aiuti::Scrive;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int Massimo = 32767;

void Troppi(const std::optional<ErroreRuntime>& errore, const std::string& che)
{
    ASSERT_TRUE(errore) << che;
    EXPECT_EQ(errore->Numero(), NumeroErrore::Overflow);
    EXPECT_EQ(errore->Motivo(), "un documento può avere al massimo 32767 " + che);
    EXPECT_EQ(errore->File(), "clsPDFCreator");
}

void PagineVuote(clsPDFCreator& pdf, int quante)
{
    for (int i = 0; i < quante; ++i) {
        pdf.BeginPage();
        pdf.EndPage();
    }
}

// A text in every place that takes one.
std::string OvunqueIlTesto(const std::string& testo)
{
    return ByteDocumento(
        [&testo](clsPDFCreator& pdf) {
            pdf.SetDocProperty(testo, testo, testo, testo, testo, testo);
        },
        [&testo](clsPDFCreator& pdf) {
            pdf.SetFont(testo, 10);
            pdf.SetFont("Arial", 10, 31);
            pdf.BeginPage(0, 9, testo);
            pdf.DrawText(0, 10, testo, 2, 30);
            pdf.DrawTextBox(0, 0, 1e9F, 100, testo, 1, 0, 64);
            EXPECT_GE(pdf.TextLength(testo), 0);
            pdf.EndPage();
        });
}

// Lines of one letter each.
std::string TanteRighe(int quante)
{
    std::string testo = "a";
    for (int i = 1; i < quante; ++i) testo += "\r\na";
    return testo;
}

} // namespace

// ---- Texts -----------------------------------------------------------------------------------

TEST(TestiStrani, DannoUnFileIntero)
{
    for (const std::string& testo :
         {std::string(), std::string("\0", 1), std::string("a\0b", 3), std::string("\r"),
          std::string("\n"), std::string("\r\n"), std::string("\n\r"), std::string("\r\n\r\n"),
          std::string(" "), std::string("     "), std::string("()"), std::string(")("),
          std::string("\\"), std::string("\\("), std::string("\t\x01\x1F\x7F"),
          std::string("endstream"), std::string("]]><!--"), std::string("%PDF")}) {
        EXPECT_THAT(LeggiPdf(OvunqueIlTesto(testo)).Difetti, IsEmpty()) << testo;
    }
}

TEST(TestiStrani, NonValidiInUtf8SonoPuntiInterrogativi)
{
    for (const std::string& testo :
         {std::string("\xFF"), std::string("\xC3"), std::string("\x80"), std::string("a\xE2\x82"),
          std::string("\xC0\x80"), std::string("\xED\xA0\x80"), std::string("\xF5\x80\x80\x80")}) {
        const std::string byte = OvunqueIlTesto(testo);
        EXPECT_THAT(LeggiPdf(byte).Difetti, IsEmpty());
        EXPECT_THAT(byte, HasSubstr("?) Tj"));
    }
}

TEST(TestiStrani, UnoZeroRestaNelTesto)
{
    EXPECT_EQ(Scrive([](clsPDFCreator& pdf) {
                  pdf.SetFont("Arial", 10);
                  pdf.DrawText(0, 10, std::string_view("a\0b", 3));
              })[2],
              std::string("1 0 0 -1 0 10 Tm (a\0b) Tj", 25));
}

TEST(TestiStrani, UnMegabyteDiUnaParolaSola)
{
    const std::string testo(1U << 20, 'm');
    const std::string byte = OvunqueIlTesto(testo);
    EXPECT_GT(byte.size(), 8U * testo.size());
    EXPECT_THAT(LeggiPdf(byte).Difetti, IsEmpty());
}

TEST(TestiStrani, UnMegabyteDiBianchiEDiRigheVuote)
{
    const std::string bianchi(1U << 20, ' ');
    std::string righe;
    for (int i = 0; i < 20000; ++i) righe += "\r\n";
    for (const auto& testo : {bianchi, righe}) {
        const std::string byte = ByteDocumento({}, [&testo](clsPDFCreator& pdf) {
            pdf.SetFont("Arial", 10);
            pdf.BeginPage();
            EXPECT_EQ(pdf.DrawTextBox(0, 0, 100, 100, testo), testo[0] == ' ' ? 1 : 20001);
            pdf.EndPage();
        });
        EXPECT_THAT(LeggiPdf(byte).Difetti, IsEmpty());
    }
}

TEST(TestiStrani, UnTitoloConUnCancellettoDiNumeroEUnErrore)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    pdf.SetDocProperty("voce n#i");
    const auto errore = ErroreDi([&] { pdf.BeginDoc(cartella.Nome() + "prova.pdf"); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::TipoNonCorrispondente);
    EXPECT_EQ(errore->Motivo(), "l'argomento non è adatto al segnaposto \"#i\"");
    pdf.SetDocProperty("voce");
    const std::string nome = pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    PagineVuote(pdf, 1);
    pdf.EndDoc();
    aiuti::Esamina(Byte(nome));
}

// ---- Counts ----------------------------------------------------------------------------------

TEST(Limiti, UnCarattereDiTroppoLasciaQuelloDiPrima)
{
    // Six fixed objects, two of the metadata, four kept back for a page.
    clsPDFCreator pdf;
    for (int i = 0; i < Massimo - 12; ++i) pdf.SetFont("Times New Roman", 10);
    EXPECT_FLOAT_EQ(pdf.TextLength("W"), 9.44F);
    Troppi(ErroreDi([&pdf] { pdf.SetFont("Courier New", 20, 4); }), "oggetti");
    // The present one stays, with its size.
    EXPECT_FLOAT_EQ(pdf.TextLength("W"), 9.44F);
    EXPECT_EQ(pdf.TextHeight(), 10);
}

TEST(Limiti, TantiCaratteriQuantiOggettiRestano)
{
    // Six fixed objects, four of the page, two of the metadata.
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        PagineVuote(pdf, 1);
        for (int i = 0; i < Massimo - 12; ++i) pdf.SetFont("Times New Roman", 10);
    });
    const auto letto = LeggiPdf(byte);
    EXPECT_THAT(letto.Difetti, IsEmpty());
    EXPECT_EQ(letto.Oggetti.size(), 32767U);
    EXPECT_THAT(byte, HasSubstr("\r\nxref\r\n0 32768\r\n"));
    EXPECT_THAT(byte, HasSubstr("\r\n<< /Size 32767 /Info 1 0 R /Root 2 0 R >>\r\n"));
}

TEST(Limiti, UnaPaginaCheNonTrovaQuattroNumeriNonComincia)
{
    // 6 + 4 * 8189 = 32762: five numbers are left, and the metadata need two of them.
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        PagineVuote(pdf, 8189);
        Troppi(ErroreDi([&pdf] { pdf.BeginPage(); }), "oggetti");
        EXPECT_EQ(pdf.Pages(), 8189);
        pdf.BeginObject("Modulo"); // two are free
        pdf.EndObject();
        Troppi(ErroreDi([&pdf] { pdf.BeginObject("Altro"); }), "oggetti");
    });
    EXPECT_EQ(LeggiPdf(byte).Oggetti.size(), 32766U);
}

TEST(Limiti, LePaginePossibiliDannoUnFileIntero)
{
    const auto letto =
        LeggiPdf(ByteDocumento({}, [](clsPDFCreator& pdf) { PagineVuote(pdf, 8189); }));
    EXPECT_THAT(letto.Difetti, IsEmpty());
    EXPECT_EQ(letto.Pagine(), 8189);
}

TEST(Limiti, DopoUnaPaginaRifiutataIlDocumentoSiFinisceAncora)
{
    // A form in the way: 6 + 2 + 4 * 8189 = 32764 leaves three numbers.
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.BeginObject("Modulo");
        pdf.EndObject();
        PagineVuote(pdf, 8189);
        Troppi(ErroreDi([&pdf] { pdf.BeginPage(0, 1, "x"); }), "oggetti");
    });
    const auto letto = LeggiPdf(byte);
    EXPECT_THAT(letto.Difetti, IsEmpty());
    EXPECT_EQ(letto.Pagine(), 8189);
    EXPECT_EQ(letto.Oggetti.size(), 32766U);
}

TEST(Limiti, UnModuloRifiutatoNonSiGioca)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    const std::string nome = pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    for (int i = 0; i < 16377; ++i) {
        pdf.BeginObject("Modulo");
        pdf.EndObject();
    }
    Troppi(ErroreDi([&pdf] { pdf.BeginObject("Rifiutato", 7); }), "oggetti");
    pdf.BeginDoc(cartella.Nome() + "altro.pdf"); // numbers start again
    PagineVuote(pdf, 1);
    pdf.EndDoc();
    EXPECT_EQ(Byte(cartella.File("altro.pdf")).find("Rifiutato"), std::string::npos);
}

TEST(Limiti, LaTrentaduemilasettecentosessantottesimaPagina)
{
    // One document runs out of numbers before; pages are counted on over several of them.
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    for (int documento = 0; documento < 4; ++documento) {
        pdf.BeginDoc(cartella.Nome() + "prova.pdf");
        PagineVuote(pdf, 8189);
    }
    pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    PagineVuote(pdf, 11);
    EXPECT_EQ(pdf.Pages(), Massimo);
    Troppi(ErroreDi([&pdf] { pdf.BeginPage(); }), "pagine");
    EXPECT_EQ(pdf.Pages(), Massimo);
}

TEST(Limiti, RigheDiUnRiquadro)
{
    const std::string byte = ByteDocumento({}, [](clsPDFCreator& pdf) {
        pdf.SetFont("Arial", 10);
        pdf.BeginPage();
        EXPECT_EQ(pdf.DrawTextBox(0, 0, 100, 100, TanteRighe(Massimo)), Massimo);
        pdf.EndPage();
    });
    EXPECT_THAT(LeggiPdf(byte).Difetti, IsEmpty());
}

TEST(Limiti, UnaRigaDiTroppoNonScriveNiente)
{
    EXPECT_THAT(Scrive([](clsPDFCreator& pdf) {
                    pdf.SetFont("Arial", 10);
                    for (const int righe : {Massimo + 1, 3 * Massimo}) {
                        Troppi(
                            ErroreDi([&] { pdf.DrawTextBox(5, 5, 100, 100, TanteRighe(righe)); }),
                            "righe in un riquadro di testo");
                    }
                    EXPECT_EQ(pdf.GetX(), 0);
                }),
                IsEmpty());
}
