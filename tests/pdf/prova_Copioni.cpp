// Every script of the golden folder played on the writer gives its golden file, byte for byte. The
// golden files come from a second writer, which shares no line with this one.

#include "Aiuti.h"
#include "Copione.h"
#include "ErroreRuntime.h"
#include "PdfProdotti.h"
#include "StrutturaPdf.h"
#include "clsPDFCreator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

namespace {

const std::filesystem::path Cartella = std::filesystem::path(SCALVINO_GOLDEN) / "pdf";

std::vector<std::string> Copioni()
{
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(Cartella / "copioni")) {
        if (voce.path().extension() == ".json") nomi.push_back(voce.path().stem().string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

// The lines around the first difference, readable.
std::string Differenza(const std::string& atteso, const std::string& avuto)
{
    const auto [a, b] = std::mismatch(atteso.begin(), atteso.end(), avuto.begin(), avuto.end());
    const auto da = std::max<std::ptrdiff_t>(0, a - atteso.begin() - 120);
    const auto pezzo = [da](const std::string& testo) {
        return testo.substr(static_cast<std::size_t>(da), 200);
    };
    return "expected ..." + pezzo(atteso) + "\ngot      ..." +
           (b == avuto.end() && avuto.size() < static_cast<std::size_t>(da) ? "" : pezzo(avuto));
}

// What a document says, whichever zlib deflated it: its objects but for the lengths, its streams
// inflated.
std::vector<std::string> Detto(const aiuti::PdfLetto& letto)
{
    static const std::regex lunghezze("/Length [0-9]+|^[0-9]+$");
    std::vector<std::string> detto;
    for (std::size_t i = 0; i < letto.Oggetti.size(); ++i) {
        detto.push_back(std::regex_replace(letto.Oggetti[i], lunghezze, "") +
                        letto.Dati[i].value_or(""));
    }
    return detto;
}

bool SaComprimere()
{
    try {
        clsPDFCreator().Compress(1);
        return true;
    } catch (const ErroreRuntime&) {
        return false;
    }
}

class CopionePdf : public testing::TestWithParam<std::string>
{
};

TEST_P(CopionePdf, DaIlDocumentoDorato)
{
    const aiuti::CartellaDiProva cartella;
    const std::string copione = aiuti::Byte(Cartella / "copioni" / (GetParam() + ".json"));
    const bool comprime = copione.find("\"Compress\"") != std::string::npos;
    if (comprime && !SaComprimere()) GTEST_SKIP() << "built without zlib";
    const auto recita = aiuti::RecitaCopione(copione, cartella.Nome());
    for (const auto& mancata : recita.Mancate) ADD_FAILURE() << mancata;
    const std::string atteso = aiuti::Byte(Cartella / (GetParam() + ".pdf"));
    const auto letto = aiuti::LeggiPdf(recita.Pdf);
    EXPECT_TRUE(recita.Pdf == atteso ||
                (comprime && Detto(letto) == Detto(aiuti::LeggiPdf(atteso))))
        << Differenza(atteso, recita.Pdf);
    EXPECT_THAT(letto.Difetti, testing::IsEmpty());
    // Foreign readers have nothing to say of names that only a script of tests leaves undefined.
    if (letto.NomiMancanti.empty()) aiuti::ConservaPdf("copione_" + GetParam(), recita.Pdf);
}

INSTANTIATE_TEST_SUITE_P(Tutti, CopionePdf, testing::ValuesIn(Copioni()),
                         [](const auto& caso) { return caso.param; });

TEST(Copioni, SonoTutti)
{
    EXPECT_GE(Copioni().size(), 40U);
}

} // namespace
