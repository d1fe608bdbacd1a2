// Undoes FlateDecode in a way of its own, so that no library judges what it has made itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace aiuti {

// The bytes of a whole zlib stream (RFC 1950 and 1951); nothing where it is not one, has a byte too
// many, or its checksum is another.
std::optional<std::string> Inflato(std::string_view byte);

} // namespace aiuti
