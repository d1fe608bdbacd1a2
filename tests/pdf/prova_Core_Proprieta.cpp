// The properties of a document; prova_Metadata.cpp has the metadata that repeat them.

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::Disegno;
using aiuti::Documento;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

void UnaPagina(clsPDFCreator& pdf)
{
    pdf.BeginPage();
    pdf.EndPage();
}

std::string Informazioni(const Disegno& prima)
{
    return Documento(prima, UnaPagina).Oggetto(1);
}

// /Title, /Author and so on of the information dictionary.
std::string Voce(const std::string& informazioni, const std::string& nome)
{
    const std::string inizio = "\r/" + nome + " (";
    const auto da = informazioni.find(inizio);
    if (da == std::string::npos) return "(nothing)";
    const auto dopo = da + inizio.size();
    return informazioni.substr(dopo, informazioni.find(")\r", dopo) - dopo);
}

} // namespace

TEST(SetDocProperty, ValoriDiPartenza)
{
    const std::string informazioni = Informazioni({});
    EXPECT_EQ(Voce(informazioni, "Title"), "\\(senza titolo\\)");
    EXPECT_THAT(informazioni, StartsWith("<<\r/Title (\\(senza titolo\\))\r/Author (Orvenna)\r"
                                         "/Creator ("));
    EXPECT_THAT(Voce(informazioni, "Producer"), StartsWith("clsPDFCreator "));
    EXPECT_NE(Voce(informazioni, "Creator"), "");
    EXPECT_THAT(informazioni, EndsWith("\r/CreationDate (D:20260102030405Z+01'00')\r/Subject ()\r"
                                       "/Keywords ()\r>>"));
}

TEST(SetDocProperty, LeSeiProprietaAlLoroPosto)
{
    EXPECT_EQ(Informazioni([](clsPDFCreator& pdf) {
                  pdf.SetDocProperty("Titolo", "Soggetto", "Autore", "Creatore", "Produttore",
                                     "Parole");
              }),
              "<<\r/Title (Titolo)\r/Author (Autore)\r/Creator (Creatore)\r"
              "/Producer (Produttore)\r/CreationDate (D:20260102030405Z+01'00')\r"
              "/Subject (Soggetto)\r/Keywords (Parole)\r>>");
}

TEST(SetDocProperty, TondeEBarreSonoProtette)
{
    EXPECT_THAT(
        Informazioni([](clsPDFCreator& pdf) { pdf.SetDocProperty("a (b) \\c", "(", ")(", "\\"); }),
        StartsWith("<<\r/Title (a \\(b\\) \\\\c)\r/Author (\\)\\()\r/Creator (\\\\)\r"));
}

TEST(SetDocProperty, UnAutoreVuotoLasciaQuelloDiPrima)
{
    const std::string informazioni = Informazioni([](clsPDFCreator& pdf) {
        pdf.SetDocProperty("t", "s", "Autore", "Creatore", "Produttore", "k");
        pdf.SetDocProperty("t", "s", "", "", "", "k");
    });
    EXPECT_EQ(Voce(informazioni, "Author"), "Autore");
    EXPECT_EQ(Voce(informazioni, "Creator"), "Creatore");
    EXPECT_EQ(Voce(informazioni, "Producer"), "Produttore");
}

TEST(SetDocProperty, UnTitoloVuotoLoCancella)
{
    const std::string informazioni = Informazioni([](clsPDFCreator& pdf) {
        pdf.SetDocProperty("Titolo", "Soggetto", "", "", "", "Parole");
        pdf.SetDocProperty();
    });
    EXPECT_EQ(Voce(informazioni, "Title"), "");
    EXPECT_EQ(Voce(informazioni, "Subject"), "");
    EXPECT_EQ(Voce(informazioni, "Keywords"), "");
}

TEST(SetDocProperty, ITestiDiventanoWindows1252)
{
    const std::string informazioni =
        Informazioni([](clsPDFCreator& pdf) { pdf.SetDocProperty("Perché 5 € – Ω", "\xFF"); });
    EXPECT_EQ(Voce(informazioni, "Title"), "Perch\xE9 5 \x80 \x96 ?");
    EXPECT_EQ(Voce(informazioni, "Subject"), "?");
}

TEST(SetDocProperty, DopoBeginDocNonCambiaPiuNiente)
{
    const auto letto = Documento([](clsPDFCreator& pdf) { pdf.SetDocProperty("Prima", "Prima"); },
                                 [](clsPDFCreator& pdf) {
                                     pdf.SetDocProperty("Dopo", "Dopo");
                                     UnaPagina(pdf);
                                 });
    EXPECT_EQ(Voce(letto.Oggetto(1), "Title"), "Prima");
    EXPECT_THAT(letto.Flusso(11), HasSubstr(">Prima<"));
    EXPECT_THAT(letto.Flusso(11), Not(HasSubstr("Dopo")));
}

TEST(SetDocProperty, UnCancellettoNelTitoloPrendeIlValoreSeguente)
{
    // The title's own "#p" eats the author, and each later value moves up by one.
    const std::string informazioni = Informazioni([](clsPDFCreator& pdf) {
        pdf.SetDocProperty("n#p", "Soggetto", "Autore", "Creatore", "Produttore", "Parole");
    });
    EXPECT_EQ(Voce(informazioni, "Title"), "nAutore");
    EXPECT_EQ(Voce(informazioni, "Author"), "Creatore");
    EXPECT_EQ(Voce(informazioni, "Keywords"), "#p");
}

TEST(SetDocProperty, UnCancellettoQualunqueNeFaPerdereUno)
{
    const std::string informazioni = Informazioni([](clsPDFCreator& pdf) {
        pdf.SetDocProperty("C# guide", "Soggetto", "Autore", "Creatore", "Produttore", "Parole");
    });
    EXPECT_EQ(Voce(informazioni, "Title"), "C# guide");
    EXPECT_EQ(Voce(informazioni, "Author"), "Creatore");
    EXPECT_EQ(Voce(informazioni, "Creator"), "Produttore");
    EXPECT_EQ(Voce(informazioni, "Producer"), "D:20260102030405Z+01'00'");
    EXPECT_EQ(Voce(informazioni, "CreationDate"), "Soggetto");
    EXPECT_EQ(Voce(informazioni, "Subject"), "Parole");
    EXPECT_EQ(Voce(informazioni, "Keywords"), "#p");
}

TEST(SetDocProperty, UnCancellettoAllInizioNonContaEDueSonoUno)
{
    const std::string informazioni = Informazioni([](clsPDFCreator& pdf) {
        pdf.SetDocProperty("#p", "Soggetto", "a ## b", "Creatore", "Produttore", "Parole");
    });
    EXPECT_EQ(Voce(informazioni, "Title"), "#p");
    EXPECT_EQ(Voce(informazioni, "Author"), "a # b");
    EXPECT_EQ(Voce(informazioni, "Creator"), "Produttore");
}

TEST(SetDocProperty, ColCancellettoTIlSeguenteEsceDallaStringa)
{
    const std::string informazioni = Informazioni([](clsPDFCreator& pdf) {
        pdf.SetDocProperty("a#t", "Soggetto", ") /Altro (", "Creatore", "Produttore", "Parole");
    });
    EXPECT_THAT(informazioni, StartsWith("<<\r/Title (a) /Altro ()\r/Author (Creatore)\r"));
}

TEST(SetDocProperty, NeiMetadatiIlCancellettoEUnSegnoComeGliAltri)
{
    const auto letto = Documento(
        [](clsPDFCreator& pdf) { pdf.SetDocProperty("C# guide ##", "Soggetto #t"); }, UnaPagina);
    EXPECT_THAT(letto.Flusso(11), HasSubstr("<pdf:Title>C# guide ##<"));
    EXPECT_THAT(letto.Flusso(11), HasSubstr("<pdf:Subject>Soggetto #t<"));
}

TEST(CreationDate, EQuellaDellOggettoNonDiBeginDoc)
{
    int chiamate = 0;
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    pdf.SetClock({[&chiamate] { return clsPDFCreator::DateTime{2000 + ++chiamate, 1, 1, 0, 0, 0}; },
                  [] { return 0; }});
    pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    UnaPagina(pdf);
    pdf.EndDoc();
    EXPECT_EQ(chiamate, 1);
    EXPECT_THAT(Byte(cartella.File("prova.pdf")), HasSubstr("(D:20010101000000Z+01'00')"));
}

TEST(CreationDate, OltreLAnno9999EUnErrore)
{
    const auto errore = [](int anno) {
        return aiuti::ErroreDi([anno] {
            clsPDFCreator pdf;
            pdf.SetClock({[anno] { return clsPDFCreator::DateTime{anno, 12, 31, 23, 59, 59}; },
                          [] { return 0; }});
        });
    };
    EXPECT_FALSE(errore(9999));
    ASSERT_TRUE(errore(10000));
    EXPECT_EQ(errore(10000)->Numero(), NumeroErrore::ChiamataNonValida);
}
