// Lengths of the layout. Where each control stands: Form1_Controlli.cpp.
#pragma once

#include <cmath>

inline constexpr double TwipPerPixel = 15;

// The window without its frame, in twips.
inline constexpr double LarghezzaFinestra = 11760;
inline constexpr double AltezzaFinestra = 6765;

// Twips in pixels of the layout, halves upwards.
inline int Pixel(double twip)
{
    return static_cast<int>(std::floor(twip / TwipPerPixel + 0.5));
}
