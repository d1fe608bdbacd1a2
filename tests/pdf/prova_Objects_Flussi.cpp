// Objects packed into streams, and the references as one: read back by the strict reader.

#include "Aiuti.h"
#include "Objects.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>

using aiuti::ErroreDi;
using aiuti::PdfLetto;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

constexpr const char* SenzaZlib = "la libreria è senza zlib";
constexpr pdf::Format Impacchettato = {true, 6};

using Lavoro = std::function<void(pdf::Objects&)>;

void Oggetto(pdf::Objects& oggetti, std::int32_t numero, const std::string& testo)
{
    oggetti.prInitObj(numero);
    oggetti.prWriteRaw(testo);
    oggetti.prEndObj();
}

// The least document around what a test adds: information, catalog, page tree without pages.
std::string Scritto(const Lavoro& lavoro)
{
    std::ostringstream flusso;
    pdf::Objects oggetti;
    oggetti.prOpen(pdf::prToStream(flusso), Impacchettato);
    oggetti.prWriteRaw("%PDF-1.7");
    oggetti.prWriteRaw("%\xE2\xE3\xCF\xD3");
    oggetti.prWriteRaw("% prova");
    EXPECT_EQ(oggetti.prReserve(3), 1);
    lavoro(oggetti);
    Oggetto(oggetti, 1, "<< /Title (Prova) >>");
    Oggetto(oggetti, 2, "<< /Type /Catalog /Pages 3 0 R >>");
    Oggetto(oggetti, 3, "<< /Type /Pages /Count 0 /Kids [ ] >>");
    oggetti.prWriteTrailer("/Info 1 0 R /Root 2 0 R");
    oggetti.prClose();
    return flusso.str();
}

PdfLetto Letto(const Lavoro& lavoro)
{
    PdfLetto letto = aiuti::LeggiPdf(Scritto(lavoro));
    EXPECT_THAT(letto.Difetti, IsEmpty());
    return letto;
}

// How many object streams there are, and how many objects each says to hold.
std::vector<std::string> Pacchi(const PdfLetto& letto)
{
    std::vector<std::string> conti;
    for (const std::string& oggetto : letto.Oggetti) {
        const std::string inizio = "<< /Type /ObjStm /N ";
        if (!oggetto.starts_with(inizio)) continue;
        conti.push_back(oggetto.substr(inizio.size(), oggetto.find(" /First") - inizio.size()));
    }
    return conti;
}

} // namespace

TEST(OggettiImpacchettati, SiLeggonoComeSonoScritti)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto letto = Letto([](pdf::Objects& oggetti) {
        EXPECT_EQ(oggetti.prReserve(2), 4);
        Oggetto(oggetti, 5, "[ 4 0 R ]");
        Oggetto(oggetti, 4, "(testo)");
    });
    EXPECT_EQ(letto.Oggetto(1), "<< /Title (Prova) >>");
    EXPECT_EQ(letto.Oggetto(4), "(testo)");
    EXPECT_EQ(letto.Oggetto(5), "[ 4 0 R ]");
    EXPECT_THAT(letto.Oggetto(6), StartsWith("<< /Type /ObjStm /N 5 /First 24 /Filter"));
    EXPECT_THAT(letto.Oggetto(7),
                StartsWith("<< /Type /XRef /Size 8 /W [1 1 2] /Info 1 0 R /Root"));
    EXPECT_EQ(letto.Oggetti.size(), 7U);
}

TEST(OggettiImpacchettati, UnFlussoStaPerContoSuo)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto letto = Letto([](pdf::Objects& oggetti) {
        Oggetto(oggetti, 0, "(prima)");
        const std::int32_t flusso = oggetti.prReserve(3);
        oggetti.prInitObj(flusso);
        oggetti.prPrint("<< ", oggetti.prContentFilter(), "/Length ", flusso + 1, " 0 R >>");
        oggetti.prBeginContent();
        oggetti.prWriteRaw("0 0 m 1 1 l S");
        oggetti.prEndStream();
        oggetti.prWriteStreamLength(flusso + 1);
        oggetti.prInitObj(flusso + 2);
        oggetti.prWriteRaw("<< /Length 5 >>");
        oggetti.prBeginStream();
        oggetti.prPart("abc\r\n");
        oggetti.prEndStream();
        Oggetto(oggetti, 0, "(dopo)");
    });
    EXPECT_EQ(letto.Oggetto(4), "(prima)");
    EXPECT_EQ(letto.Flusso(5), "0 0 m 1 1 l S\r\n");
    EXPECT_EQ(letto.Flusso(7), "abc\r\n");
    EXPECT_EQ(letto.Oggetto(8), "(dopo)");
    EXPECT_THAT(Pacchi(letto), testing::ElementsAre("6"));
}

TEST(OggettiImpacchettati, StannoInDuecentoAlMassimo)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto letto = Letto([](pdf::Objects& oggetti) {
        const std::int32_t primo = oggetti.prReserve(450);
        for (std::int32_t i = 0; i < 450; ++i) {
            Oggetto(oggetti, primo + 449 - i, "(" + std::to_string(i) + ")");
        }
    });
    for (int i = 0; i < 450; ++i) {
        EXPECT_EQ(letto.Oggetto(4 + 449 - i), "(" + std::to_string(i) + ")");
    }
    EXPECT_THAT(Pacchi(letto), testing::ElementsAre("200", "200", "53"));
}

TEST(OggettiImpacchettati, QuelliGrandiNonAspettano)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const std::string grande(300000, 'x');
    const auto letto = Letto([&grande](pdf::Objects& oggetti) {
        Oggetto(oggetti, 0, "(piccolo)");
        Oggetto(oggetti, 0, "(" + grande + ")");
        Oggetto(oggetti, 0, "(" + grande + "y)");
    });
    EXPECT_EQ(letto.Oggetto(5), "(" + grande + ")");
    EXPECT_THAT(Pacchi(letto), testing::ElementsAre("2", "1", "3"));
}

TEST(OggettiImpacchettati, UnNumeroNonUsatoELibero)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto letto = Letto([](pdf::Objects& oggetti) { oggetti.prReserve(2); });
    EXPECT_THAT(letto.Liberi, testing::ElementsAre(4, 5));
}

// What was written of it does not get in front of the next one.
TEST(OggettiImpacchettati, UnOggettoLasciatoAMetaNonResta)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    const auto letto = Letto([](pdf::Objects& oggetti) {
        oggetti.prInitObj(0);
        oggetti.prWriteRaw("<< mai finito");
        Oggetto(oggetti, 0, "(sano)");
    });
    EXPECT_THAT(letto.Liberi, testing::ElementsAre(4));
    EXPECT_EQ(letto.Oggetto(5), "(sano)");
}

TEST(OggettiImpacchettati, ANumeriEsauritiRestaPostoPerILoroFlussi)
{
    if (!pdf::prCanDeflate()) GTEST_SKIP() << SenzaZlib;
    std::ostringstream flusso;
    pdf::Objects oggetti;
    oggetti.prOpen(pdf::prToStream(flusso), Impacchettato);
    oggetti.prWriteRaw("%PDF-1.7");
    oggetti.prSetCounter(oggetti.prLargestNumber() - 500);
    const std::int32_t primo = oggetti.prReserve(500);
    for (std::int32_t i = 0; i < 500; ++i) Oggetto(oggetti, primo + i, "null");
    EXPECT_TRUE(ErroreDi([&oggetti] { oggetti.prReserve(); }));
    oggetti.prWriteTrailer("");
    EXPECT_EQ(oggetti.prCounter(), oggetti.prLargestNumber() + 4);
    EXPECT_LT(oggetti.prCounter(), pdf::LargestNumber);
}
