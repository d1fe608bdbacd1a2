// What the tests of the clock share.
#pragma once

#include "Orologio.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

namespace orologio {

inline constexpr double Giorno = 86400;

inline std::tm OraLocale()
{
    const std::time_t adesso = std::time(nullptr);
    return *std::localtime(&adesso);
}

// The C library's answer and ours agree, also when midnight passes in between.
inline void ConfrontaConLaLibreria()
{
    const std::tm locale = OraLocale();
    const double secondi = SecondiDaMezzanotte();
    EXPECT_GE(secondi, 0);
    EXPECT_LT(secondi, Giorno);
    const double attesi = locale.tm_hour * 3600 + locale.tm_min * 60 + locale.tm_sec;
    const double scarto = std::remainder(secondi - attesi, Giorno);
    EXPECT_LT(std::abs(scarto), 2) << secondi << " " << attesi;
}

} // namespace orologio
