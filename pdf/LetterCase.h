// Letters A to Z without regard to case.
#pragma once

#include <algorithm>
#include <string_view>

namespace pdf {

constexpr char UpperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Whether text is upper, a text in upper case, in any case.
inline bool SameInUpperCase(std::string_view text, std::string_view upper)
{
    return std::equal(text.begin(), text.end(), upper.begin(), upper.end(),
                      [](char c, char u) { return UpperCase(c) == u; });
}

} // namespace pdf
