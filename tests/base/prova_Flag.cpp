// The 16-bit yes and no.

#include "Flag.h"

#include <gtest/gtest.h>

TEST(Flag, VeroEMenoUnoESediciBit)
{
    EXPECT_EQ(ComeFlag(true), -1);
    EXPECT_EQ(ComeFlag(false), 0);
    EXPECT_EQ(Vero, ~Falso);
    EXPECT_EQ(sizeof(Flag), 2U);
}
