// Folders, bytes and the clock for all tests: what Aiuti.h promises.
#include "Aiuti.h"

#include "Calendario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

namespace aiuti {

std::string Byte(const std::filesystem::path& percorso)
{
    std::ifstream file(percorso, std::ios::binary);
    EXPECT_TRUE(file) << percorso;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Dorato(const std::string& nome)
{
    return Byte(std::filesystem::path(SCALVINO_GOLDEN) / nome);
}

std::vector<std::string> Righe(const std::string& testo)
{
    std::vector<std::string> righe;
    std::size_t inizio = 0;
    for (auto fine = testo.find("\r\n"); fine != std::string::npos;
         fine = testo.find("\r\n", inizio)) {
        righe.push_back(testo.substr(inizio, fine - inizio));
        inizio = fine + 2;
    }
    EXPECT_EQ(inizio, testo.size()) << "the last line has no CR LF";
    return righe;
}

CartellaDiProva::CartellaDiProva()
{
    static std::atomic<int> numero = 0;
    m_cartella = std::filesystem::temp_directory_path() /
                 ("prova-" + std::to_string(::getpid()) + "-" + std::to_string(++numero));
    std::filesystem::create_directories(m_cartella);
}

CartellaDiProva::~CartellaDiProva()
{
    std::error_code errore;
    std::filesystem::remove_all(m_cartella, errore);
}

std::vector<std::string> CartellaDiProva::Contenuto() const
{
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(m_cartella)) {
        nomi.push_back(voce.path().filename().string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

CalendarioDorato::CalendarioDorato()
{
    using namespace std::chrono;
    static constexpr local_seconds momento = local_days{2026y / 1 / 2} + 3h + 4min + 5s;
    CalendarioInUso = {[] { return momento; }, [] { return 0; }};
}

CalendarioDorato::~CalendarioDorato()
{
    CalendarioInUso = CalendarioDelSistema();
}

} // namespace aiuti
