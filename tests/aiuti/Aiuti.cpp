// Shoes by hand, folders and bytes for all tests: what Aiuti.h promises.
#include "Aiuti.h"

#include "Calendario.h"
#include "FileMazzi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include <unistd.h>

namespace aiuti {

std::int16_t Codice(std::string_view testo)
{
    for (std::int16_t codice = 1; codice <= modCarte::CarteMazzetto; ++codice) {
        if (modCarte::TestoCarta(codice) == testo) return codice;
    }
    ADD_FAILURE() << "no such card: " << testo;
    return 1;
}

void PreparaMazzo(std::initializer_list<std::string_view> carte, int inizio, double numero)
{
    std::array<bool, modCarte::CarteTaglia + 1> usata{};
    std::vector<std::int16_t> scelte;
    for (const auto carta : carte) {
        int codice = Codice(carta);
        while (codice <= modCarte::CarteTaglia && usata[static_cast<std::size_t>(codice)]) {
            codice += modCarte::CarteMazzetto;
        }
        ASSERT_LE(codice, modCarte::CarteTaglia) << carta << " more than six times";
        usata[static_cast<std::size_t>(codice)] = true;
        scelte.push_back(static_cast<std::int16_t>(codice));
    }
    std::vector<std::int16_t> mazzo;
    for (std::int16_t codice = 1; codice <= modCarte::CarteTaglia; ++codice) {
        if (!usata[static_cast<std::size_t>(codice)]) mazzo.push_back(codice);
    }
    mazzo.insert(mazzo.begin() + inizio, scelte.begin(), scelte.end());
    modCarte::ImpostaMazzo(mazzo);
    modCarte::Posizione = inizio;
    modCarte::NumeroColpo = numero;
}

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

std::vector<std::vector<std::int16_t>> MazziDorati(const std::string& nome)
{
    std::vector<std::vector<std::int16_t>> mazzi;
    std::istringstream righe(Dorato(nome));
    for (std::string riga; std::getline(righe, riga);) {
        if (const auto taglia = cli::LeggiTaglia(riga))
            mazzi.emplace_back(taglia->begin(), taglia->end());
    }
    EXPECT_FALSE(mazzi.empty()) << nome;
    return mazzi;
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

AmbienteDiProva::AmbienteDiProva()
    : m_prima(Stampe::AmbienteInUso)
{
    Stampe::Ambiente ambiente = Stampe::AmbienteNeutro();
    ambiente.Cartella = Cartella.Nome();
    ambiente.Cifre = {",", "."};
    ambiente.Apri = [this](const std::string& percorso, StileFinestra stile) {
        Aperti.push_back(percorso);
        Stili.push_back(stile);
    };
    ambiente.Avvisa = [this](const Stampe::Messaggio& messaggio) { Messaggi.push_back(messaggio); };
    Stampe::AmbienteInUso = ambiente;
}

AmbienteDiProva::~AmbienteDiProva()
{
    Stampe::AmbienteInUso = m_prima;
}

void AmbienteDiProva::Distribuisci(const std::vector<std::vector<std::int16_t>>& mazzi)
{
    Stampe::AmbienteInUso.PreparaTaglia = [mazzi](std::int64_t taglia) {
        modCarte::ImpostaMazzo(mazzi.at(static_cast<std::size_t>(taglia) - 1));
    };
}

CalendarioDorato::CalendarioDorato()
{
    CalendarioInUso = {[] { return DataOra{2026, 1, 2, 3, 4, 5}; }, [] { return 0; }};
}

CalendarioDorato::~CalendarioDorato()
{
    CalendarioInUso = CalendarioDelSistema();
}

} // namespace aiuti
