// The faces of the card table's captions, on systems that have them and on those that do
// not. Which faces there are: Scritte.h.
#pragma once

#include <QFont>

#include <cstdint>
#include <string_view>

namespace caratteri {

// The size in pixels of a face whose character cell is so many pixels high: the largest whole p
// with round(ascent p) + round(descent p) <= altezza, at least 1. Ascent and descent are those of
// the face that was asked for, even where a substitute draws it.
int PixelPerCella(std::string_view faccia, std::int32_t altezza);

// From the top of the character cell to the base line, for a size in pixels.
int Ascendente(std::string_view faccia, int pixel);

// The font that draws this face here: itself where it is installed, else its substitute, whose
// weight may differ. Looked up once for each face and weight. pixel: size, at least 1.
QFont Font(std::string_view faccia, int peso, int pixel);

// A size in points at 96 dots per inch, in whole pixels.
int PixelPerPunti(std::int32_t punti);

} // namespace caratteri
