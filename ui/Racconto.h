// What stands on the card table, in words: what a screen reader is told. No widget is known
// here; what stands there comes from Elementi.h.
#pragma once

#include "Elementi.h"

#include <cstdint>
#include <string>
#include <vector>

namespace racconto {

// "sei di quadri", "asso di cuori", "fante di picche" for the card library's numbers 0 to 51; empty
// for any other.
std::string NomeCarta(std::int32_t numero);

// The picture from top to bottom, parts joined by "; ". A row with a name, which reads upwards at
// its left, is one part: name, cards from left to right in the order in which they were laid down,
// total
// ("NERO: asso di cuori, dieci di fiori, totale 11"). Cards outside such rows are mere decoration
// and not told, nor is what lies face down.
std::string Racconta(const std::vector<Elemento>& elementi);

} // namespace racconto
