// Templates with placeholders: how the objects of a PDF file that hold texts are filled.
#pragma once

#include "clsPDFCreator.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace pdf {

// "D:" and yyyymmddhhmmss (ISO 32000-1, 7.9.4) with the zone "Z+01'00'", which is always the same.
std::string prDate(const clsPDFCreator::DateTime& date);

// Texts are Windows-1252 bytes.
using Argument = std::variant<double, std::string, bool, clsPDFCreator::DateTime>;

// Fills the placeholders of pattern with the arguments, one after the other:
//
//   #i  a number rounded down           #p  a text as prPDFString escapes it
//   #s  a number in thousandths         #d  a date
//   #c  a number divided by 255, so     #b  "true" or "false"
//   #t  a text as it is                 ##  "#"
//
// After each the search goes on at the character after the place of its "#", in the text as it
// then stands: a "#" inside a value is a placeholder in its turn and takes the next argument, and
// what is no placeholder uses up an argument, too. When no argument is left the text stands as it
// is. Nothing when the placeholders end before the arguments do. Error 13 for an argument of
// another kind than the placeholder asks for, error 6 for a number that is not finite.
std::optional<std::string> prExpand(std::string_view pattern, std::span<const Argument> arguments);

// The text with a backslash before each backslash and parenthesis, as the inside of a literal
// string (ISO 32000-1, 7.3.4.2). All other bytes pass as they are.
std::string prPDFString(std::string_view text);

// The same written to a place with room for twice the text; returns the place after it.
char* prPutPDFString(char* at, std::string_view text);

} // namespace pdf
