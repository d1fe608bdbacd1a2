// Decimal digits, the same in every locale. Numeri.h reads the numbers that they make.
#pragma once

#include <algorithm>
#include <string_view>

constexpr bool Cifra(char c)
{
    return c >= '0' && c <= '9';
}

// Whether testo holds nothing but digits; true for an empty one.
constexpr bool SoloCifre(std::string_view testo)
{
    return std::all_of(testo.begin(), testo.end(), Cifra);
}
