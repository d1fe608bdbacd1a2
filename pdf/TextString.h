// Texts that readers show outside the pages: titles, bookmarks, labels, notes.
#pragma once

#include <string>
#include <string_view>

namespace pdf {

// The text as a whole string object of the file, parentheses included (ISO 32000-1, 7.9.2.2 and
// 7.3.4.2): in PDFDocEncoding (annex D.3) where every character has a place there, else in UTF-16,
// big-endian, behind FE FF. Texts whose first characters would read as the mark of another encoding
// ("þÿ", "ï»¿") are in UTF-16, too. Readers give back the same characters, but for two kinds that
// become "?": each byte that is no valid UTF-8, and U+001B, which starts the name of a language
// there (7.9.2.2) instead of standing for itself.
//
// Whatever the bytes are, "\", "(" and ")" have a backslash before them and CR is "\r": nothing
// ends the string early, and no reader takes a line end for another one.
std::string prTextString(std::string_view utf8);

} // namespace pdf
