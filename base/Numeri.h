// Numbers as the program reads, narrows and writes them. A locale never touches these.
#pragma once

#include "ErroreRuntime.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

// Rounds to the nearest whole number, exact halves to the even one. Error 6 (Overflow) when the
// result does not fit in 16 bits or valore is not a number.
std::int16_t Intero16(double valore);

// The same of a whole number. In the header so that it is inlined: the shuffle of one shoe calls it
// hundreds of times.
inline std::int16_t Intero16(std::int64_t valore)
{
    if (!std::in_range<std::int16_t>(valore)) throw ErroreRuntime(NumeroErrore::Overflow);
    return static_cast<std::int16_t>(valore);
}

// The number at the start of testo, read up to the first character that is not part of it; 0
// when there is none. Leading blanks, a sign, decimals with "." and an exponent are understood;
// a magnitude too large for a double reads as infinity. Never fails.
double NumeroIniziale(std::string_view testo);

// A number as plain text: shortest decimal form, "." as decimal mark, no grouping, never an
// exponent. valore: any finite number.
std::string TestoNumero(double valore);
std::string TestoNumero(std::int64_t valore);

// Reads testo as a whole number made of decimal digits only (no sign, blank or exponent, leading
// zeros allowed). False, with valore unchanged, when it is anything else or exceeds 64 bits.
bool LeggiInteroSenzaSegno(std::string_view testo, std::uint64_t& valore);
