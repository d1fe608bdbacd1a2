// How many shoes a run may have, and what the user is told of a number outside of that. The run
// refuses it in CorsaTaglie.cpp, the command before it in cli/Opzioni.cpp.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Stampe {

// 2^53: above it not every whole number exists as the double that the operations take.
inline constexpr std::int64_t MassimoTaglie = std::int64_t{1} << 53;

// What the refusals are about, and that of a number below 1.
inline constexpr const char* NumeroDiTaglie = "numero di taglie";
inline constexpr const char* PocheTaglie = "deve essere almeno 1";

// The refusal of a number above MassimoTaglie: of a value, and of what was typed, which is quoted
// because it may have more digits than any number holds.
std::string TroppeTaglie();
std::string TroppeTaglie(std::string_view scritte);

} // namespace Stampe
