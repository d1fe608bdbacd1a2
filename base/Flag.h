// The yes/no values that the interfaces of game, reports and window hand on; inside, plain bool.
#pragma once

#include <cstdint>

// Flags and yes/no results are 16-bit integers with these two values.
using Flag = std::int16_t;
inline constexpr Flag Falso = 0;
inline constexpr Flag Vero = -1;

constexpr Flag ComeFlag(bool condizione)
{
    return condizione ? Vero : Falso;
}
