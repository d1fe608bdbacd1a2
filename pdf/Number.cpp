// Writes numbers for content streams, most of them from two tables of short texts: a page is mostly
// numbers.

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

// A text of at most four characters. It is copied whole whatever its length, so that no copy is a
// call or a loop: formatting coordinates is most of what writing a page costs.
struct ShortText
{
    std::array<char, 4> Text;
    std::uint32_t Length; // as wide as the text, so that an entry is found without a product
};
using ShortTexts = std::array<ShortText, 1000>;

constexpr char Digit(std::size_t number)
{
    return static_cast<char>('0' + number % 10);
}

// The whole numbers below 1000.
constexpr ShortTexts Wholes = [] {
    ShortTexts texts = {};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i < 10) texts[i] = {{Digit(i)}, 1};
        else if (i < 100) texts[i] = {{Digit(i / 10), Digit(i)}, 2};
        else texts[i] = {{Digit(i / 100), Digit(i / 10), Digit(i)}, 3};
    }
    return texts;
}();

// The thousandths as they stand after a whole number: a point and three digits, of which the zeros
// at the end do not count; nothing for none.
constexpr ShortTexts Thousandths = [] {
    ShortTexts texts = {};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::uint32_t length = i == 0 ? 0 : i % 100 == 0 ? 2 : i % 10 == 0 ? 3 : 4;
        texts[i] = {{'.', Digit(i / 100), Digit(i / 10), Digit(i)}, length};
    }
    return texts;
}();

// Writes over what follows, too, up to four characters in all.
char* PutShort(char* at, const ShortTexts& texts, std::uint64_t number)
{
    const ShortText& known = texts[static_cast<std::size_t>(number)];
    std::memcpy(at, known.Text.data(), known.Text.size());
    return at + known.Length;
}

// All three digits of a number below 1000.
char* PutTriple(char* at, std::uint64_t number)
{
    std::memcpy(at, Thousandths[static_cast<std::size_t>(number)].Text.data() + 1, 3);
    return at + 3;
}

[[gnu::noinline]] char* PutLong(char* at, std::uint64_t number);

char* PutWhole(char* at, std::uint64_t number)
{
    return number < Wholes.size() ? PutShort(at, Wholes, number) : PutLong(at, number);
}

// Apart from the short ones, which nearly all numbers are: they are no call.
char* PutLong(char* at, std::uint64_t number)
{
    constexpr std::uint64_t thousand = 1000;
    at = PutWhole(at, number / thousand);
    return PutTriple(at, number % thousand);
}

// A number of thousandths without its sign.
[[gnu::noinline]] char* PutLongMagnitude(char* at, std::uint64_t thousandths)
{
    constexpr std::uint64_t thousand = 1000;
    at = PutLong(at, thousandths / thousand);
    return PutShort(at, Thousandths, thousandths % thousand);
}

// The same with the quick way for coordinates on a page.
char* PutMagnitude(char* at, std::uint64_t thousandths)
{
    if (thousandths >= 1000 * 1000) return PutLongMagnitude(at, thousandths);
    const auto small = static_cast<std::uint32_t>(thousandths);
    at = PutShort(at, Wholes, small / 1000);
    return PutShort(at, Thousandths, small % 1000);
}

// What is too large for the quick way.
[[gnu::noinline]] char* PutLarge(char* at, double value)
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
