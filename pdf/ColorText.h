// Colours as texts: names, "#" and hexadecimal digits, "%" and a grey; clsPDFCreator_Colors.cpp
// chooses them.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace pdf {

// The colour that a name (any case) or a grey stands for, as "#" and six hexadecimal digits; any
// other text as it is (digits already, or the name of a pattern).
std::string prNamedColor(std::string_view color);

// True for a colour in digits, false for the name of a pattern.
inline bool prIsPlainColor(std::string_view color)
{
    return !color.empty() && color.front() == '#';
}

// Red, green and blue, 0 to 255, of a colour in digits. Missing digits count as 0.
std::array<int, 3> prColorComponents(std::string_view color);

// The components of a colour in digits as PDF writes them, from 0 to 1 with blanks between.
std::string prColorNumbers(std::string_view digits);

// The same at the end of a text.
void prAppendColor(std::string& text, std::string_view digits);

// "#" and the three components as two upper-case hexadecimal digits each.
std::string prColorDigits(const std::array<int, 3>& components);

// The colour of red, green, blue (0 to 255), or of cyan, magenta, yellow and black (percent, at
// most 100); black for any other count. What lies outside the range counts as its end.
std::string prColorOfValues(std::span<const float> values);

} // namespace pdf
