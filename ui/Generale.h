// What the whole window uses: captions on the card table, the folder of its files and the program's
// own resources. A caption goes on to Quadro.h.
#pragma once

#include "Flag.h"

#include <cstdint>
#include <string_view>

class Quadro;

namespace Generale {

// Prints one caption on the card table's picture in its text colour, with a font made for this
// call. testo: UTF-8, printed as one run. x, y: twips, top left corner of the first character cell.
// altezza: of the character cell, in pixels. peso and angolo (tenths of a degree counter-clockwise)
// have names in Superficie.h. Flags: Falso off, else on. A level caption is drawn narrower where
// the next one on its line leaves it less room than it takes. Never fails; a face that the system
// lacks is drawn by its substitute.
void PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
               std::int32_t altezza, std::int32_t peso, std::int32_t angolo, Flag corsivo,
               Flag sottolineato, Flag barrato, Quadro& superficie);

// Makes the temporary folder the one of the reports and the help page, unless they have one. Error
// 76 when there is none: ask again when the next file is wanted, it may be there by then.
void TrovaCartella();

// The help page among the program's resources.
inline constexpr std::int32_t PaginaGuida = 101;
inline constexpr std::string_view NomeGuida = "scalvino.htm";

// Writes the HTML resource of this number unchanged into the report folder under this name and
// opens it. An earlier copy is replaced; what belongs to somebody else is neither written nor
// opened. Whatever goes wrong is ignored: then nothing opens.
void ApriRisorsa(std::string_view nome, std::int32_t numero);

} // namespace Generale
