// What the command tells of itself.

#include "Aiuto.h"

#include <gtest/gtest.h>

TEST(Aiuto, LaVersioneEDelProgramma)
{
    EXPECT_EQ(cli::TestoVersione(), "taglie 1.0.0\n");
    EXPECT_EQ(cli::TestoVersione(), "taglie " + cli::Versione() + "\n");
}
