// Shoes by place and fingerprint.

#include "IndiceMazzi.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using cli::IndiceMazzi;

namespace {

constexpr std::uint64_t Grande = (std::uint64_t{1} << 48) - 1;

IndiceMazzi Di(const std::vector<std::pair<std::uint64_t, std::uint64_t>>& voci)
{
    IndiceMazzi indice;
    for (const auto& [inizio, impronta] : voci) indice.Aggiungi(inizio, impronta);
    return indice;
}

bool Sempre(std::uint64_t /*una*/, std::uint64_t /*altra*/)
{
    return true;
}

} // namespace

TEST(IndiceMazzi, TuttiIBitRestano)
{
    const auto indice = Di({{0, 0}, {0x123456789ABC, 0xFEDCBA987654}, {Grande, Grande}});
    ASSERT_EQ(indice.Quante(), 3U);
    EXPECT_EQ(indice.Inizio(0), 0U);
    EXPECT_EQ(indice.Inizio(1), 0x123456789ABCU);
    EXPECT_EQ(indice.Inizio(2), Grande);
    EXPECT_TRUE(indice.Conosce(1, 0xFEDCBA987654));
    EXPECT_TRUE(indice.Conosce(1, 0x1234FEDCBA987654)); // of more bits the lowest 48
    for (int bit = 0; bit < IndiceMazzi::BitImpronta; ++bit) {
        EXPECT_FALSE(indice.Conosce(2, Grande ^ (std::uint64_t{1} << bit))) << bit;
    }
}

TEST(IndiceMazzi, SenzaImpronteUgualiNessunaSiRipete)
{
    auto indice = Di({{5, 9}, {6, 8}, {7, 1}});
    EXPECT_FALSE(indice.Ripetizioni(Sempre));
    EXPECT_EQ(indice.Inizio(0), 5U);
    EXPECT_TRUE(indice.Conosce(2, 1));
}

TEST(IndiceMazzi, LaPrimaRipetutaSecondoIlPosto)
{
    auto indice = Di({{10, 7}, {20, 3}, {30, 9}, {40, 3}, {50, 7}, {60, 3}});
    const auto ripetute = indice.Ripetizioni(Sempre);
    ASSERT_TRUE(ripetute);
    EXPECT_EQ(ripetute->Quante, 3U);
    EXPECT_EQ(ripetute->Prima, 3U);
    EXPECT_EQ(ripetute->Come, 1U);
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(indice.Inizio(i), 10 * (i + 1));
    EXPECT_TRUE(indice.Conosce(4, 7));
}

TEST(IndiceMazzi, UnImprontaUgualePerCasoNonBasta)
{
    auto indice = Di({{1, 4}, {2, 4}, {3, 4}});
    std::vector<std::pair<std::uint64_t, std::uint64_t>> chieste;
    const auto mai = [&](std::uint64_t una, std::uint64_t altra) {
        chieste.emplace_back(una, altra);
        return false;
    };
    EXPECT_FALSE(indice.Ripetizioni(mai));
    EXPECT_EQ(chieste, (decltype(chieste){{1, 2}, {2, 3}}));
}
