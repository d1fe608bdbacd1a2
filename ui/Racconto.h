// What stands on the card table, in words: what a screen reader is told. No widget is known here.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace racconto {

// A caption at x, y in twips, the top left corner of its first cell.
struct Scritta
{
    float X;
    float Y;
    std::string Testo;      // UTF-8
    bool Verticale = false; // reads upwards: the name of the row of cards on its right
};

// A face-up card, its top left corner in pixels.
struct Carta
{
    std::int32_t X;
    std::int32_t Y;
    std::int32_t Numero;
};

// "sei di quadri", "asso di cuori", "fante di picche" for the card library's numbers 0 to 51; empty
// for any other.
std::string NomeCarta(std::int32_t numero);

// The picture from top to bottom, parts joined by "; ". A row with a name is one part: name, cards
// from left to right in the order in which they were laid down, total ("NERO: asso di cuori, dieci
// di fiori, totale 11"). Cards outside such rows are mere decoration and not told.
std::string Racconta(const std::vector<Scritta>& scritte, const std::vector<Carta>& carte);

} // namespace racconto
