#include "ColorText.h"

#include "Numeri.h"

#include <algorithm>
#include <cmath>

namespace pdf {

namespace {

constexpr int LargestComponent = 255;

struct NamedColor
{
    std::string_view Name;
    std::string_view Digits;
};

constexpr std::array<NamedColor, 12> NamedColors = {{
    {"BLACK", "#000000"},
    {"GRAY", "#808080"},
    {"SILVER", "#C0C0C0"},
    {"WHITE", "#FFFFFF"},
    {"FUCHSIA", "#FF00FF"},
    {"MAGENTA", "#FF00FF"},
    {"RED", "#FF0000"},
    {"YELLOW", "#FFFF00"},
    {"GREEN", "#00FF00"}, // full green on purpose, not the darker one that web pages call so
    {"AQUA", "#00FFFF"},
    {"CYAN", "#00FFFF"},
    {"BLUE", "#0000FF"},
}};

char Upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool SameName(std::string_view color, std::string_view name)
{
    return std::equal(color.begin(), color.end(), name.begin(), name.end(),
                      [](char c, char upper) { return Upper(c) == upper; });
}

// p percent of darkness; outside 0 to 100 there is nothing whiter or blacker.
std::string Grey(std::string_view percent)
{
    constexpr double whole = 100;
    const double p = std::clamp(NumeroIniziale(percent), 0.0, whole);
    const int component = LargestComponent - static_cast<int>(std::floor(p * 255 / whole));
    return ColorDigits({component, component, component});
}

int DigitValue(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    const char upper = Upper(c);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

// The number at the front of a pair of digits, up to the first that is none.
int PairValue(std::string_view pair)
{
    int value = 0;
    for (const char c : pair) {
        const int digit = DigitValue(c);
        if (digit < 0) break;
        value = value * 16 + digit;
    }
    return value;
}

} // namespace

std::string prNamedColor(std::string_view color)
{
    if (IsDigits(color)) return std::string(color);
    if (!color.empty() && color.front() == '%') return Grey(color.substr(1));
    for (const auto& named : NamedColors) {
        if (SameName(color, named.Name)) return std::string(named.Digits);
    }
    return std::string(color);
}

std::array<int, 3> ColorComponents(std::string_view color)
{
    const auto pair = [color](std::size_t place) {
        return place < color.size() ? PairValue(color.substr(place, 2)) : 0;
    };
    return {pair(1), pair(3), pair(5)};
}

std::string ColorDigits(const std::array<int, 3>& components)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const int component : components) {
        const auto value = static_cast<std::size_t>(std::clamp(component, 0, LargestComponent));
        text.push_back(digits[value / 16]);
        text.push_back(digits[value % 16]);
    }
    return text;
}

std::string ColorOfValues(std::span<const float> values)
{
    constexpr double whole = 100;
    // Not a number counts as 0, too: a comparison with it is false.
    const auto within = [](double value, double most) {
        return value > 0 ? std::min(value, most) : 0.0;
    };
    const auto rounded = [](double value) { return static_cast<int>(std::lrint(value)); };
    std::array<int, 3> components = {};
    if (values.size() == 3) {
        for (std::size_t i = 0; i < 3; ++i) {
            components[i] = rounded(within(values[i], LargestComponent));
        }
    } else if (values.size() == 4) {
        const double black = 1 - within(values[3], whole) / whole;
        for (std::size_t i = 0; i < 3; ++i) {
            components[i] =
                rounded(LargestComponent * (1 - within(values[i], whole) / whole) * black);
        }
    }
    return ColorDigits(components);
}

} // namespace pdf
