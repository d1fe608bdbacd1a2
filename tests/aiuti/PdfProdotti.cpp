// Keeps a finished document in the folder that SCALVINO_PDF_PRODOTTI names, under the test's name;
// tests/lettori/ reads it there.
#include "PdfProdotti.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace aiuti {

namespace {

void Scrivi(const std::filesystem::path& percorso, const std::string& byte)
{
    ASSERT_FALSE(std::filesystem::exists(percorso)) << percorso << " conservato due volte";
    std::ofstream file(percorso, std::ios::binary);
    file << byte << std::flush;
    ASSERT_TRUE(file.good()) << percorso;
}

} // namespace

void ConservaPdf(std::string_view nome, const std::string& byte,
                 std::initializer_list<std::string_view> testi)
{
    const char* cartella = std::getenv("SCALVINO_PDF_PRODOTTI");
    if (!cartella) return;
    std::filesystem::create_directories(cartella);
    std::string attese;
    for (const std::string_view testo : testi) attese.append(testo).append("\n");
    const std::string pdf = std::string(nome) + ".pdf";
    Scrivi(std::filesystem::path(cartella) / pdf, byte);
    if (!attese.empty()) Scrivi(std::filesystem::path(cartella) / (pdf + ".attese"), attese);
}

} // namespace aiuti
