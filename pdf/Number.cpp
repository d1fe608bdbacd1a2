#include "Number.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace pdf {

namespace {

// The three digits of a number below 1000, and how many of them are left without the zeros at
// their end. Formatting coordinates is most of what writing a page costs.
struct Triple
{
    std::array<char, 3> Digits;
    std::uint8_t Kept;
};

constexpr std::array<Triple, 1000> Triples = [] {
    std::array<Triple, 1000> triples = {};
    for (std::size_t i = 0; i < triples.size(); ++i) {
        triples[i].Digits = {static_cast<char>('0' + i / 100), static_cast<char>('0' + i / 10 % 10),
                             static_cast<char>('0' + i % 10)};
        triples[i].Kept = i % 10 != 0 ? 3 : i % 100 != 0 ? 2 : 1;
    }
    return triples;
}();

const Triple& TripleOf(std::uint64_t number)
{
    return Triples[static_cast<std::size_t>(number)];
}

char* PutTriple(char* at, std::uint64_t number)
{
    std::memcpy(at, TripleOf(number).Digits.data(), 3);
    return at + 3;
}

// A whole number below 1000 without needless zeros. Copies of a fixed size are no calls.
char* PutShort(char* at, std::uint64_t number)
{
    if (number < 10) {
        *at = static_cast<char>('0' + number);
        return at + 1;
    }
    if (number >= 100) return PutTriple(at, number);
    std::memcpy(at, TripleOf(number).Digits.data() + 1, 2);
    return at + 2;
}

char* PutWhole(char* at, std::uint64_t number)
{
    constexpr std::uint64_t thousand = 1000;
    if (number < thousand) return PutShort(at, number);
    at = PutWhole(at, number / thousand);
    return PutTriple(at, number % thousand);
}

// A number of thousandths without its sign.
template <typename Whole>
char* PutMagnitude(char* at, Whole thousandths)
{
    constexpr Whole thousand = 1000;
    at = PutWhole(at, thousandths / thousand);
    const Whole fraction = thousandths % thousand;
    if (fraction == 0) return at;
    *at++ = '.';
    PutTriple(at, fraction);
    return at + TripleOf(fraction).Kept;
}

// What is too large for the quick way.
char* PutLarge(char* at, double value)
{
    constexpr double largestWhole = 9e18;
    const double product = value * 1000;
    if (value < 0) *at++ = '-';
    if (std::abs(product) < largestWhole) {
        return PutMagnitude(at, static_cast<std::uint64_t>(std::abs(std::llrint(product))));
    }
    // No fraction is left in such a number.
    return std::to_chars(at, at + LongestNumber - 1, std::abs(value), std::chars_format::fixed).ptr;
}

// Runs a writer of numbers on a piece of memory and appends what it wrote.
template <typename Put>
void AppendPut(std::string& text, const Put& put)
{
    std::array<char, LongestNumber> digits;
    text.append(digits.data(), static_cast<std::size_t>(put(digits.data()) - digits.data()));
}

} // namespace

char* prPutNumber(char* at, double value)
{
    constexpr double largest = 1e9;
    const double product = value * 1000;
    if (!(std::abs(product) < largest)) return PutLarge(at, value);
    // Added to this number a small one is rounded to a whole one, halves to even, in its last
    // bits: the rounding that std::lrint gives, without a call.
    constexpr double rounder = 6755399441055744.0; // 1.5 * 2^52
    const auto bits = std::bit_cast<std::uint64_t>(product + rounder);
    const auto rounded = static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
    if (rounded >= 0) return PutMagnitude(at, static_cast<std::uint32_t>(rounded));
    *at = '-';
    return PutMagnitude(at + 1, static_cast<std::uint32_t>(-rounded));
}

char* prPutInteger(char* at, std::int64_t value)
{
    auto magnitude = static_cast<std::uint64_t>(value);
    if (value < 0) {
        *at++ = '-';
        magnitude = 0U - magnitude;
    }
    return PutWhole(at, magnitude);
}

char* prPutTenDigits(char* at, std::uint64_t value)
{
    constexpr std::uint64_t thousand = 1000;
    constexpr std::uint64_t million = 1000 * thousand;
    *at = static_cast<char>('0' + value / (1000 * million));
    PutTriple(at + 1, value / million % thousand);
    PutTriple(at + 4, value / thousand % thousand);
    return PutTriple(at + 7, value % thousand);
}

void prAppendNumber(std::string& text, double value)
{
    AppendPut(text, [value](char* at) { return prPutNumber(at, value); });
}

void prAppendInteger(std::string& text, std::int64_t value)
{
    AppendPut(text, [value](char* at) { return prPutInteger(at, value); });
}

std::string prNumber(double value, int decimals)
{
    constexpr double largestWhole = 9e18;
    constexpr int most = 9;
    const int kept = std::clamp(decimals, 0, most);
    double power = 1;
    for (int i = 0; i < kept; ++i) power *= 10;
    std::string text;
    const double product = value * power;
    if (!(std::abs(product) < largestWhole)) {
        prAppendNumber(text, value); // no decimals are left in such a number
        return text;
    }
    const std::int64_t rounded = std::llrint(product);
    text = std::to_string(rounded < 0 ? -rounded : rounded);
    const auto digits = static_cast<std::size_t>(kept);
    if (text.size() <= digits) text.insert(0, digits + 1 - text.size(), '0');
    if (kept > 0) {
        text.insert(text.size() - digits, 1, '.');
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    if (rounded < 0) text.insert(0, 1, '-');
    return text;
}

float prFloat(double value)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}

} // namespace pdf
