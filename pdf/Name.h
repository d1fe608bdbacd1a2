// Names that a caller's text becomes (ISO 32000-1, 7.3.5): of reusable objects, tilings and the
// patterns that colours are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace pdf {

// A name has so many bytes at most, escapes not counted (ISO 32000-1, Annex C).
inline constexpr std::size_t LongestName = 127;

// Error 5 when these Windows-1252 bytes can be no name: one of them is 0, or there are more than
// LongestName. what: whose name it is, for the message.
void prRequireName(std::string_view bytes, std::string_view what);

// The name as it stands in a document, without "/": a byte that is no regular character, and "#"
// itself, as "#" and two upper-case hexadecimal digits.
std::string prName(std::string_view bytes);

// The same written to a place with room for three times the bytes; returns the place after it.
char* prPutName(char* at, std::string_view bytes);

} // namespace pdf
