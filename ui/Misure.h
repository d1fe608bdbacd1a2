// Lengths of the layout.
#pragma once

#include <cmath>

inline constexpr double TwipPerPixel = 15;

// Twips in pixels of the layout, halves upwards.
inline int Pixel(double twip)
{
    return static_cast<int>(std::floor(twip / TwipPerPixel + 0.5));
}
