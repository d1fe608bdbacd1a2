// The name of a TrueType font, for TrueTypeFile.cpp.
#pragma once

#include "ByteReader.h"

#include <string>

namespace pdf {

// The PostScript name of a font, else its full name, as it may stand in a PDF name: see
// TrueTypeFont::Name. Reads the table "name"; at most 127 characters (ISO 32000-1, Annex C).
// Error: table.Fail() when neither is there or nothing is left of them.
std::string prReadFontName(const ByteReader& table);

} // namespace pdf
