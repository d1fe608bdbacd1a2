// What is wrong with a list of cards that shall be a shoe, as the user is told: ImpostaMazzo of
// modCarte.h says it of a list, the reader of shoe files of a line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace modCarte {

// Any other number of cards than 312: "le carte sono 311 invece di 312".
std::string MotivoNumeroCarte(std::size_t quante);

// A card that the list names more often than the shoe has it: "la carta 7 si ripete".
std::string MotivoCartaRipetuta(std::string_view carta);

} // namespace modCarte
