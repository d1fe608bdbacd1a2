// The card library: 52 faces and one back, from a file of pictures installed beside the
// program. Quadro.h draws with it.
#pragma once

#include "Superficie.h"
#include "Tela.h"

#include <cstdint>
#include <string>

// Size of every card in pixels.
inline constexpr std::int32_t LarghezzaDiCarta = 71;
inline constexpr std::int32_t AltezzaDiCarta = 96;

// The number of the back design.
inline constexpr std::int32_t DorsoCarta = 53;

// Draw modes.
inline constexpr std::int32_t ModoFaccia = 0;
inline constexpr std::int32_t ModoDorso = 1;

// Reads the pictures and tells the size of a card. Error 53 when the file is missing, damaged or
// lacks a card; the library then stays as it was. Needs the application object.
void cdtInit(std::int32_t& larghezza, std::int32_t& altezza);

// Draws a card with its top left corner at x, y pixels of the layout, its four outside corners in
// the given colour. modo 0: face carta, 0 (ace of clubs) to 51 (king of spades); modo 1: back
// carta, 53. Anything else, or a library that is not started, draws nothing. What reaches past the
// picture is cut off.
void cdtDraw(Tela& dc, std::int32_t x, std::int32_t y, std::int32_t carta, std::int32_t modo,
             Colore angoli);

// Gives everything back. Must run before the application object ends; without effect when there
// is nothing to give back.
void cdtTerm();

// The file that the next cdtInit reads; empty: the installed one. For tests.
void ImpostaFileCarte(const std::string& percorso);
