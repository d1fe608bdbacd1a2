// Shoes for tests of the game: by hand from the names of cards, or from a golden file.
#pragma once

#include "modCarte.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace aiuti {

// The code of a card text in the first pack ("AC" is 1); fails the test for anything else.
std::int16_t Codice(std::string_view testo);

// Puts the named cards at index inizio of a shoe of 312 cards (each of the 52 texts six times)
// and deals from there: Posizione inizio, NumeroColpo numero. The cards before and after are the
// remaining ones in order of their codes.
void PreparaMazzo(std::initializer_list<std::string_view> carte, int inizio = 5, double numero = 1);

// The shoes of a golden shoe file.
std::vector<std::vector<std::int16_t>> MazziDorati(const std::string& nome);

} // namespace aiuti
