// The system's entropy.

#include "Entropia.h"

#include <gtest/gtest.h>

#include <set>

TEST(Entropia, OgniVoltaUnAltroNumero)
{
    std::set<std::uint64_t> numeri;
    for (int i = 0; i < 100; ++i) numeri.insert(Entropia64());
    EXPECT_EQ(numeri.size(), 100U); // two alike: once in 10^15 runs
}

TEST(Entropia, TuttiIBitCambiano)
{
    std::uint64_t accesi = 0;
    std::uint64_t spenti = 0;
    for (int i = 0; i < 100; ++i) {
        const std::uint64_t numero = Entropia64();
        accesi |= numero;
        spenti |= ~numero;
    }
    EXPECT_EQ(~accesi, 0U);
    EXPECT_EQ(~spenti, 0U);
}
