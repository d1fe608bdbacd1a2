// The number by which a document is told from all others.
#pragma once

#include <string>
#include <string_view>

namespace pdf {

// 32 upper-case hexadecimal digits made from the text (ISO 32000-1, 14.4): the same for the same
// text, and hardly ever the same for another one. They are two FNV-1a sums of 64 bits, the second
// started with the first one's result; no secret can be kept by them.
std::string prIdentifier(std::string_view text);

} // namespace pdf
