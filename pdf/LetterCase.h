// Texts compared without regard to upper and lower case, A to Z only: names of colours, fonts and
// kinds of files.
#pragma once

#include <algorithm>
#include <string_view>

namespace pdf {

// c itself unless it is one of a to z.
constexpr char prUpperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Whether text reads like upper when its letters are made capitals. upper: in capitals already.
inline bool prSameInUpperCase(std::string_view text, std::string_view upper)
{
    return std::equal(text.begin(), text.end(), upper.begin(), upper.end(),
                      [](char c, char u) { return prUpperCase(c) == u; });
}

} // namespace pdf
