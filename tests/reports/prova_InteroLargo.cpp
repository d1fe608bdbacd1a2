// Whole numbers beyond 64 bits.

#include "InteroLargo.h"

#include <gtest/gtest.h>

#include <cmath>

using Stampe::InteroLargo;

namespace {

constexpr std::uint64_t Tutti = ~std::uint64_t{0};

} // namespace

TEST(InteroLargo, ProdottiESommePassanoDaUnaParteAllAltra)
{
    EXPECT_EQ(InteroLargo(0).InDouble(), 0);
    EXPECT_EQ(InteroLargo(Tutti).InDouble(), std::ldexp(1.0, 64));
    // (2^64 - 1) + 1
    EXPECT_EQ((InteroLargo(Tutti) + InteroLargo(1)).InDouble(), std::ldexp(1.0, 64));
    // (2^64 - 1)^2 + 2 (2^64 - 1) + 1 = 2^128
    const auto quadrato = InteroLargo(Tutti) * Tutti + InteroLargo(Tutti) * 2 + InteroLargo(1);
    EXPECT_EQ(quadrato.InDouble(), std::ldexp(1.0, 128));
    EXPECT_EQ(
        (quadrato - InteroLargo(std::uint64_t{1} << 63) * (std::uint64_t{1} << 63) * 4).InDouble(),
        0);
    EXPECT_EQ((quadrato * (std::uint64_t{1} << 63)).InDouble(), std::ldexp(1.0, 191));
    EXPECT_EQ((quadrato * (std::uint64_t{1} << 63) * 2).InDouble(), 0); // modulo 2^192
}

TEST(InteroLargo, UnaDifferenzaPiccolaDiNumeriGrandiEEsatta)
{
    const auto grande = InteroLargo(Tutti) * Tutti * (Tutti >> 1);
    EXPECT_EQ((grande + InteroLargo(7) - grande).InDouble(), 7);
    EXPECT_EQ((grande + InteroLargo(Tutti) * 3 - grande).InDouble(), 3 * std::ldexp(1.0, 64));
}
