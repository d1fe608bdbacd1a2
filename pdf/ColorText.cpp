// Reads colours that callers name, and writes them as PDF wants them; clsPDFCreator_Colors.cpp
// chooses them.

#include "ColorText.h"

#include "LetterCase.h"
#include "Numeri.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

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

// p percent of darkness; outside 0 to 100 there is nothing whiter or blacker.
std::string Grey(std::string_view percent)
{
    constexpr double whole = 100;
    const double p = std::clamp(NumeroIniziale(percent), 0.0, whole);
    const int component = LargestComponent - static_cast<int>(std::floor(p * 255 / whole));
    return prColorDigits({component, component, component});
}

// The value of each hexadecimal digit, NoDigit for all other characters.
constexpr std::int8_t NoDigit = -1;
constexpr std::array<std::int8_t, 256> DigitValues = [] {
    constexpr std::string_view upper = "0123456789ABCDEF";
    constexpr std::string_view lower = "0123456789abcdef";
    std::array<std::int8_t, 256> values = {};
    values.fill(NoDigit);
    for (std::size_t value = 0; value < upper.size(); ++value) {
        for (const char digit : {upper[value], lower[value]}) {
            values[static_cast<unsigned char>(digit)] = static_cast<std::int8_t>(value);
        }
    }
    return values;
}();

int DigitAt(std::string_view text, std::size_t place)
{
    return place < text.size() ? DigitValues[static_cast<unsigned char>(text[place])] : NoDigit;
}

// A component as a part of 1 in thousandths: "0", "0.004" and so on to "1". A table of pages is
// mostly frames, and each changes its colour four times.
struct ComponentText
{
    std::array<char, 5> Text;
    std::uint8_t Length;
};

constexpr ComponentText TextOfComponent(int component)
{
    const int thousandths = (component * 2000 + LargestComponent) / (2 * LargestComponent);
    const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
    const ComponentText text = {{digit(thousandths / 1000), '.', digit(thousandths / 100),
                                 digit(thousandths / 10), digit(thousandths)},
                                0};
    std::uint8_t length = 5;
    while (length > 2 && text.Text[length - 1] == '0') --length;
    return {text.Text, length == 2 ? std::uint8_t{1} : length};
}

constexpr std::array<ComponentText, LargestComponent + 1> ComponentTexts = [] {
    std::array<ComponentText, LargestComponent + 1> texts = {};
    for (int component = 0; component <= LargestComponent; ++component) {
        texts[static_cast<std::size_t>(component)] = TextOfComponent(component);
    }
    return texts;
}();

char* PutComponent(char* at, int component)
{
    const ComponentText& known = ComponentTexts[static_cast<std::size_t>(component)];
    std::memcpy(at, known.Text.data(), known.Text.size());
    return at + known.Length;
}

// "0.502 0.502 0.502": none is longer.
constexpr std::size_t LongestColor = 17;

// The number at the front of a pair of digits, up to the first that is none.
int PairValue(std::string_view color, std::size_t place)
{
    const int high = DigitAt(color, place);
    const int low = DigitAt(color, place + 1);
    if (high == NoDigit) return 0;
    return low == NoDigit ? high : high * 16 + low;
}

} // namespace

std::string prNamedColor(std::string_view color)
{
    if (prIsPlainColor(color)) return std::string(color);
    if (!color.empty() && color.front() == '%') return Grey(color.substr(1));
    for (const auto& named : NamedColors) {
        if (prSameInUpperCase(color, named.Name)) return std::string(named.Digits);
    }
    return std::string(color);
}

std::array<int, 3> prColorComponents(std::string_view color)
{
    return {PairValue(color, 1), PairValue(color, 3), PairValue(color, 5)};
}

void prAppendColor(std::string& text, std::string_view digits)
{
    const auto [red, green, blue] = prColorComponents(digits);
    std::array<char, LongestColor> numbers;
    char* at = PutComponent(numbers.data(), red);
    *at++ = ' ';
    at = PutComponent(at, green);
    *at++ = ' ';
    at = PutComponent(at, blue);
    text.append(numbers.data(), at);
}

std::string prColorNumbers(std::string_view digits)
{
    std::string text;
    prAppendColor(text, digits);
    return text;
}

std::string prColorDigits(const std::array<int, 3>& components)
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

std::string prColorOfValues(std::span<const float> values)
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
    return prColorDigits(components);
}

} // namespace pdf
