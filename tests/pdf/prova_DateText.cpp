// The two forms of a date, by hand.

#include "DateText.h"

#include <gtest/gtest.h>

using pdf::prDateWithOffset;
using pdf::prIsoDate;

TEST(DateText, LeDueForme)
{
    EXPECT_EQ(prDateWithOffset({2026, 1, 2, 3, 4, 5, 60}), "D:20260102030405+01'00'");
    EXPECT_EQ(prIsoDate({2026, 1, 2, 3, 4, 5, 60}), "2026-01-02T03:04:05+01:00");
    EXPECT_EQ(prDateWithOffset({2026, 12, 31, 23, 59, 58}), "D:20261231235958+00'00'");
    EXPECT_EQ(prIsoDate({2026, 12, 31, 23, 59, 58}), "2026-12-31T23:59:58+00:00");
}

TEST(DateText, LoScartoHaUnSegnoEDueParti)
{
    EXPECT_EQ(prIsoDate({2026, 1, 2, 3, 4, 5, -210}), "2026-01-02T03:04:05-03:30");
    EXPECT_EQ(prDateWithOffset({2026, 1, 2, 3, 4, 5, 345}), "D:20260102030405+05'45'");
    EXPECT_EQ(prDateWithOffset({2026, 1, 2, 3, 4, 5, -1}), "D:20260102030405-00'01'");
    EXPECT_EQ(prDateWithOffset({2026, 1, 2, 3, 4, 5, -1439}), "D:20260102030405-23'59'");
}

TEST(DateText, LeParti)
{
    EXPECT_EQ(prIsoDate({7, 1, 2, 0, 0, 60}), "0007-01-02T00:00:59+00:00"); // a leap second
    EXPECT_EQ(prIsoDate({0, 0, 0, 0, 0, 0}), "0000-00-00T00:00:00+00:00");
    EXPECT_EQ(prIsoDate({-5, 112, -1, 0, 0, -3}), "0000-12-00T00:00:00+00:00");
}
