// The one line that the command writes to standard error when something went wrong; who calls it
// last: Comando.cpp.
#pragma once

#include <initializer_list>
#include <string_view>

namespace cli {

// Writes "taglie: ", the parts and a line end to standard error. Bytes that a terminal could take
// for a command become "?": control characters (0 to 31, 127, and 128 to 159 as UTF-8 or as a
// byte that belongs to no UTF-8 character), separators of lines and paragraphs (U+2028, 2029) and
// those that turn the direction of writing (U+202A to 202E, U+2066 to 2069); all others stay as
// they are. Of a part above 4608 bytes only the beginning and the end are shown. Takes no memory,
// so that it still works when there is none left. A line that cannot be written is lost.
void ScriviErrore(std::initializer_list<std::string_view> parti) noexcept;

} // namespace cli
