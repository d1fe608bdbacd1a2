#include "Number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace pdf {

namespace {

// Below this magnitude a rounded product is a whole number that 64 bits hold.
constexpr double LargestProduct = 9e18;

// Appends digits as a number with so many decimals, dropping the zeros at its end.
void AppendScaled(std::string& text, std::int64_t digits, int decimals)
{
    constexpr std::size_t room = 32;
    std::array<char, room> buffer = {};
    char* const end = buffer.data() + buffer.size();
    char* front = end;
    auto rest = static_cast<std::uint64_t>(digits < 0 ? -digits : digits);
    bool fraction = false;
    for (int i = 0; i < decimals; ++i, rest /= 10) {
        const auto digit = static_cast<char>(rest % 10);
        fraction = fraction || digit != 0;
        if (fraction) *--front = static_cast<char>('0' + digit);
    }
    if (fraction) *--front = '.';
    do {
        *--front = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (digits < 0) *--front = '-';
    text.append(front, static_cast<std::size_t>(end - front));
}

// A magnitude that has no fraction left at all.
void AppendHuge(std::string& text, double value)
{
    constexpr std::size_t room = 352; // the largest double has 309 digits
    std::array<char, room> buffer = {};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed);
    text.append(buffer.data(), end.ptr);
}

void AppendRounded(std::string& text, double value, double power, int decimals)
{
    const double product = value * power;
    if (std::abs(product) < LargestProduct) AppendScaled(text, std::llrint(product), decimals);
    else AppendHuge(text, value);
}

} // namespace

void prAppendNumber(std::string& text, double value)
{
    constexpr double power = 1000;
    AppendRounded(text, value, power, 3);
}

void prAppendInteger(std::string& text, std::int64_t value)
{
    AppendScaled(text, value, 0);
}

std::string prNumber(double value, int decimals)
{
    constexpr int most = 9;
    const int kept = std::clamp(decimals, 0, most);
    double power = 1;
    for (int i = 0; i < kept; ++i) power *= 10;
    std::string text;
    AppendRounded(text, value, power, kept);
    return text;
}

float prFloat(double value)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}

} // namespace pdf
