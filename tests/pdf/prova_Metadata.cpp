// The metadata stream: an XMP packet with what the information dictionary says.

#include "PaginaDiProva.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

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

} // namespace

TEST(Metadati, LaLunghezzaDettaEQuellaDelPacchetto)
{
    // Three digits are not possible; from four to five the number's own length changes it.
    for (const std::size_t lungo : {0U, 1U, 3000U, 3900U, 20000U}) {
        const auto letto =
            Documento([lungo](clsPDFCreator& pdf) { pdf.SetDocProperty(std::string(lungo, 't')); },
                      UnaPagina);
        const std::string& pacchetto = letto.Flusso(11);
        // The stream holds the packet and its CR LF.
        EXPECT_THAT(pacchetto,
                    StartsWith("<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d' bytes='" +
                               std::to_string(pacchetto.size() - 2) + "'?>\r"));
        EXPECT_THAT(pacchetto, EndsWith("\r</rdf:RDF>\r<?xpacket end='r'?>\r\n"));
    }
}

TEST(Metadati, AutoreCreatoreEProduttoreSonoQuelliDellaClasse)
{
    const std::string pacchetto = Documento(
                                      [](clsPDFCreator& pdf) {
                                          pdf.SetDocProperty("Titolo", "Soggetto", "Autore",
                                                             "Creatore", "Produttore", "Parole");
                                      },
                                      UnaPagina)
                                      .Flusso(11);
    EXPECT_THAT(pacchetto, HasSubstr("<pdf:Author>Orvenna</pdf:Author>"));
    EXPECT_THAT(pacchetto, HasSubstr("<xap:Author>Orvenna</xap:Author>"));
    EXPECT_THAT(pacchetto, HasSubstr("<pdf:Producer>clsPDFCreator "));
    for (const auto* altrui : {"Autore", "Creatore", "Produttore"}) {
        EXPECT_THAT(pacchetto, Not(HasSubstr(altrui)));
    }
    EXPECT_THAT(pacchetto, HasSubstr("<pdf:Title>Titolo</pdf:Title>"));
    EXPECT_THAT(pacchetto, HasSubstr("<pdf:Subject>Soggetto</pdf:Subject>"));
    EXPECT_THAT(pacchetto, HasSubstr("<pdf:Keywords>Parole</pdf:Keywords>"));
}

TEST(Metadati, TreDescrizioniConIlTitoloInOgniModo)
{
    const std::string pacchetto =
        Documento([](clsPDFCreator& pdf) { pdf.SetDocProperty("Titolo", "Soggetto"); }, UnaPagina)
            .Flusso(11);
    const auto conta = [&pacchetto](const std::string& pezzo) {
        int volte = 0;
        for (auto p = pacchetto.find(pezzo); p != std::string::npos;
             p = pacchetto.find(pezzo, p + 1)) {
            ++volte;
        }
        return volte;
    };
    EXPECT_EQ(conta(" <rdf:Description about=''\r"), 3);
    EXPECT_EQ(conta(" </rdf:Description>\r"), 3);
    EXPECT_EQ(conta("   <rdf:li xml:lang='x-default'>Titolo</rdf:li>\r"), 2);
    EXPECT_EQ(conta("   <rdf:li xml:lang='x-default'>Soggetto</rdf:li>\r"), 2);
    for (const auto* nome : {"pdf:ModDate", "pdf:CreationDate", "xap:ModifyDate", "xap:CreateDate",
                             "xap:MetadataDate"}) {
        const std::string data = nome;
        EXPECT_EQ(conta("  <" + data + ">D:20260102030405Z+01'00'</" + data + ">\r"), 1) << data;
    }
    EXPECT_EQ(conta("  <dc:title>\r   <rdf:Alt>\r"), 1);
    EXPECT_EQ(conta("  <xap:Description>\r   <rdf:Alt>\r"), 1);
    EXPECT_EQ(conta("  <dc:description>\r"), 1);
    EXPECT_EQ(conta("  <dc:creator>"), 1);
    EXPECT_EQ(conta("  <pdf:Creator>"), 1);
}

TEST(Metadati, SonoXmlConQualunqueTitolo)
{
    const std::string pacchetto =
        Documento([](clsPDFCreator& pdf) { pdf.SetDocProperty("<a & b> \x01\t'\" è € \x7F"); },
                  UnaPagina)
            .Flusso(11);
    EXPECT_THAT(pacchetto, HasSubstr("<pdf:Title>&lt;a &amp; b&gt; ?\t'\" &#232; &#8364; \x7F<"));
}
