// What a screen is drawn on: the window's card table, a terminal, a recorder in a test. Whoever
// draws does not know which of them it is.
#pragma once

#include "Flag.h"

#include <cstdint>
#include <string_view>

struct Colore
{
    std::uint8_t Rosso = 0;
    std::uint8_t Verde = 0;
    std::uint8_t Blu = 0;

    bool operator==(const Colore&) const = default;
};

// Weight of a caption that is not bold.
inline constexpr std::int32_t PesoNormale = 400;

// Angle of a caption that reads from bottom to top, its cells right of its position.
inline constexpr std::int32_t VersoLAlto = 900;

// A picture that keeps what is drawn on it until the next clear, and shows it when told to.
//
// Two systems of coordinates, both from the top left corner with y growing downwards: texts stand
// in twips (15 to a pixel at 96 dots per inch), cards in pixels. Texts are UTF-8. Colours, own
// font and position are properties that stay until they are set again. Nothing here fails.
class Superficie
{
public:
    Superficie() = default;
    virtual ~Superficie() = default;
    Superficie(const Superficie&) = delete;
    Superficie& operator=(const Superficie&) = delete;
    Superficie(Superficie&&) = delete;
    Superficie& operator=(Superficie&&) = delete;

    // Leaves only the background colour.
    virtual void Pulisci() = 0;

    // A new background refills the whole picture: set it before drawing.
    virtual void ImpostaSfondo(Colore colore) = 0;

    virtual void ImpostaColoreTesto(Colore colore) = 0;

    // The surface's own font, by face name and size in points.
    virtual void ImpostaFont(std::string_view nome, std::int32_t punti, Flag grassetto) = 0;

    // Where the next Stampa begins: top left corner of its first character cell, in twips.
    virtual void ImpostaPosizione(float x, float y) = 0;

    // Prints with the surface's own font at the current position, in the text colour.
    virtual void Stampa(std::string_view testo) = 0;

    // Prints one caption with a font made for this call, in the text colour, without a background
    // of its own. x, y: top left corner of the first character cell, in twips. altezza: of the
    // character cell, in pixels. angolo: tenths of a degree counter-clockwise. Flags: Falso off,
    // else on.
    virtual void PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
                           std::int32_t altezza, std::int32_t peso, std::int32_t angolo,
                           Flag corsivo, Flag sottolineato, Flag barrato) = 0;

    // Draws a card with its top left corner at x, y pixels. modo 0: face 0 (ace of clubs) to 51
    // (king of spades); modo 1: back 53. Anything else draws nothing. angoli: what shows outside
    // the card's rounded corners.
    virtual void cdtDraw(std::int32_t x, std::int32_t y, std::int32_t carta, std::int32_t modo,
                         Colore angoli) = 0;

    // Puts the finished picture on screen at once.
    virtual void Aggiorna() = 0;
};

// A caption as every screen of the program prints it: normal weight, no decoration.
inline void PrintSemplice(Superficie& superficie, std::string_view testo, float x, float y,
                          std::string_view nomeFont, std::int32_t altezza, std::int32_t angolo = 0)
{
    superficie.PrintText(testo, x, y, nomeFont, altezza, PesoNormale, angolo, Falso, Falso, Falso);
}
