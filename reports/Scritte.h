// What the screens of the program have in common: faces, colours, the program's name in large
// letters. They are drawn on a Superficie.h.
#pragma once

#include "Superficie.h"

#include <string_view>

namespace scritte {

inline constexpr std::string_view Insegna = "SCALVINO"; // as a heading, in reports, too

inline constexpr std::string_view Arial = "Arial";
inline constexpr std::string_view ArialBlack = "Arial Black";
inline constexpr std::string_view Verdana = "Verdana";

inline constexpr Colore Nero{0, 0, 0};
inline constexpr Colore Grigio{127, 127, 127};
inline constexpr Colore Rosso{255, 0, 0};

// Prints Insegna in red over its grey shadow, 20 twips further right and further down; x, y:
// twips, top left corner of the red name. Leaves its face (Arial Black, bold, 20 points) as the
// surface's own font, and the text colour black.
void StampaNome(Superficie& superficie, float x, float y);

} // namespace scritte
