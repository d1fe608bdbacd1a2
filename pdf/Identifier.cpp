// Sums up what a document is made from.

#include "Identifier.h"

#include <cstdint>

namespace pdf {

namespace {

constexpr std::uint64_t Basis = 0xCBF29CE484222325;
constexpr std::uint64_t Prime = 0x100000001B3;

std::uint64_t Sum(std::string_view text, std::uint64_t start)
{
    for (const char c : text) start = (start ^ static_cast<unsigned char>(c)) * Prime;
    return start;
}

void AppendDigits(std::string& text, std::uint64_t number)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr int highest = 60;
    for (int shift = highest; shift >= 0; shift -= 4) text.push_back(digits[number >> shift & 15U]);
}

} // namespace

std::string prIdentifier(std::string_view text)
{
    const std::uint64_t first = Sum(text, Basis);
    std::string identifier;
    AppendDigits(identifier, first);
    AppendDigits(identifier, Sum(text, first));
    return identifier;
}

} // namespace pdf
