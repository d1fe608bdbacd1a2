// What the user is told of a list of cards that is no shoe.

#include "MotiviMazzo.h"

#include <gtest/gtest.h>

TEST(MotiviMazzo, UnaCartaELaParolaAlSingolare)
{
    EXPECT_EQ(modCarte::MotivoNumeroCarte(0), "le carte sono 0 invece di 312");
    EXPECT_EQ(modCarte::MotivoNumeroCarte(1), "la carta è 1 invece di 312");
    EXPECT_EQ(modCarte::MotivoNumeroCarte(313), "le carte sono 313 invece di 312");
}

TEST(MotiviMazzo, LaCartaRipetutaStaComeEScritta)
{
    EXPECT_EQ(modCarte::MotivoCartaRipetuta("007"), "la carta 007 si ripete");
}
