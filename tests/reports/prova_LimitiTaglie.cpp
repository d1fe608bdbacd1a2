// What the user is told of a number of shoes that no run can have.

#include "LimitiTaglie.h"

#include <gtest/gtest.h>

using namespace Stampe;

TEST(LimitiTaglie, LoStessoMassimoNelleDueForme)
{
    EXPECT_EQ(MassimoTaglie, 9007199254740992);
    EXPECT_EQ(TroppeTaglie(), "può essere al massimo 9007199254740992");
    EXPECT_EQ(TroppeTaglie("00999"), "00999 supera il massimo, 9007199254740992");
}
