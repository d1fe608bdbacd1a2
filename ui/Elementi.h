// What stands on the card table, as plain data. Quadro.h draws it, Racconto.h tells it in words.
#pragma once

#include "Superficie.h"

#include <cstdint>
#include <string>
#include <variant>

// A caption: all that is known of it between the request and the picture.
struct Didascalia
{
    std::string Testo; // UTF-8, printed as one run
    float X = 0;       // twips, top left corner of the first character cell
    float Y = 0;
    std::string Faccia;
    int Corpo = 1; // size of the face in pixels
    int Peso = PesoNormale;
    std::int32_t Angolo = 0; // tenths of a degree counter-clockwise
    bool Corsivo = false;
    bool Sottolineato = false;
    bool Barrato = false;
    bool Cede = false;     // drawn narrower where the next such caption on its line is too near
    bool Ripetuta = false; // drawn over its own shadow, of the same text: not told again
    Colore Inchiostro{};
};

// A card, its top left corner in pixels; the others as cdtDraw takes them.
struct CartaPosata
{
    std::int32_t X = 0;
    std::int32_t Y = 0;
    std::int32_t Carta = 0;
    std::int32_t Modo = 0;
    Colore Angoli{};
};

using Elemento = std::variant<Didascalia, CartaPosata>;
