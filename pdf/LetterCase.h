// Letters A to Z without regard to case.
#pragma once

#include <algorithm>
#include <string_view>

namespace pdf {

constexpr char prUpperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Whether text is upper, a text in upper case, in any case.
inline bool prSameInUpperCase(std::string_view text, std::string_view upper)
{
    return std::equal(text.begin(), text.end(), upper.begin(), upper.end(),
                      [](char c, char u) { return prUpperCase(c) == u; });
}

} // namespace pdf
