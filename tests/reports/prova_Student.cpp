// Student's distribution against values that others have computed.

#include "Student.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <utility>

using Stampe::Student95;

TEST(Student95, ValoriDelleTabelle)
{
    // As printed in books, to three decimals.
    for (const auto& [gradi, valore] : {std::pair{1, 12.706},
                                        {2, 4.303},
                                        {3, 3.182},
                                        {4, 2.776},
                                        {5, 2.571},
                                        {10, 2.228},
                                        {15, 2.131},
                                        {20, 2.086},
                                        {30, 2.042},
                                        {40, 2.021},
                                        {60, 2.000},
                                        {120, 1.980}}) {
        EXPECT_NEAR(Student95(gradi), valore, 0.0005) << gradi;
    }
}

TEST(Student95, ValoriDiUnAltroProgramma)
{
    // scipy.stats.t.ppf(0.975, gradi) of SciPy; the way of computing changes at 500.
    constexpr auto massimo = std::int64_t{1} << 53;
    for (const auto& [gradi, valore] : {std::pair<std::int64_t, double>{1, 12.706204736174694},
                                        {2, 4.302652729749462},
                                        {3, 3.1824463052837078},
                                        {4, 2.7764451051977934},
                                        {5, 2.5705818356363146},
                                        {19, 2.0930240544083087},
                                        {29, 2.045229642132703},
                                        {30, 2.0422724563012378},
                                        {99, 1.9842169515864174},
                                        {100, 1.9839715185235518},
                                        {499, 1.9647293909876886},
                                        {500, 1.9647198374673676},
                                        {501, 1.9647103221754827},
                                        {1000, 1.9623390808264083},
                                        {9999, 1.960201263621357},
                                        {999999, 1.9599663568164791},
                                        {massimo, 1.9599639845400543}}) {
        EXPECT_NEAR(Student95(gradi), valore, 1e-13 * valore) << gradi;
    }
}

TEST(Student95, PiuGradiUnIntervalloPiuStretto)
{
    for (std::int64_t gradi = 1; gradi < 600; ++gradi) {
        EXPECT_GT(Student95(gradi), Student95(gradi + 1)) << gradi;
    }
}
