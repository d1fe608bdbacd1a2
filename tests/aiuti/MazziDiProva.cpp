// Shoes by hand and golden ones: what MazziDiProva.h promises.
#include "MazziDiProva.h"

#include "Aiuti.h"
#include "FileMazzi.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

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

} // namespace aiuti
