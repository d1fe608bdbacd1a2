// Numbers as PDF writes them (ISO 32000-1, 7.3.3): no locale, no exponent, no needless digit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace pdf {

// No number that prPutNumber or prPutInteger writes is longer.
inline constexpr std::size_t LongestNumber = 336;

// Writes value rounded to thousandths, exact halves of the product with 1000 to the even one, in
// its shortest form: "12", "0.5", "841.89", never "-0"; returns the place after it. value: any
// finite number; at: room for LongestNumber.
char* prPutNumber(char* at, double value);

// Writes a whole number.
char* prPutInteger(char* at, std::int64_t value);

// Writes a whole number below 10^10 with zeros at its front where it has fewer than ten digits.
char* prPutTenDigits(char* at, std::uint64_t value);

// The same at the end of a text.
void prAppendNumber(std::string& text, double value);
void prAppendInteger(std::string& text, std::int64_t value);

// The same rounding to so many decimals, 0 to 9.
std::string prNumber(double value, int decimals);

// value as 32 bits; what does not fit becomes the largest float of its sign.
float prFloat(double value);

} // namespace pdf
