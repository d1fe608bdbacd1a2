// Shoe files: recorded shoes, one per line.
//
// A line holds 312 cards separated by commas or blanks: either all as codes 1 to 312, each once,
// or all as texts ("AC", "10F"), each of the 52 six times. "#" starts a comment; empty lines are
// passed over. Of equal texts the first one stands for the first pack, and so on.
#pragma once

#include "modCarte.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

using Taglia = std::array<std::int16_t, modCarte::CarteTaglia>;

// The shoe of a line, or nothing when it holds only blanks and a comment. Error 5 with the reason.
std::optional<Taglia> LeggiTaglia(std::string_view riga);

// All shoes of a file, at most massimo when given. Errors name the file, the line and the reason.
// Nothing when fermare said to stop.
std::optional<std::vector<Taglia>> LeggiMazzi(const std::string& percorso,
                                              std::optional<std::uint64_t> massimo,
                                              const std::function<bool()>& fermare);

// The line that LeggiTaglia reads as this shoe, with its line end.
std::string RigaTaglia(const Taglia& taglia);

} // namespace cli
