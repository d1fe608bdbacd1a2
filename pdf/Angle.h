// Angles: callers give degrees, the standard library takes radians.
#pragma once

#include <numbers>

namespace pdf {

inline constexpr double FullTurn = 360; // degrees

constexpr double prRadians(double degrees)
{
    return degrees * (std::numbers::pi / 180);
}

} // namespace pdf
