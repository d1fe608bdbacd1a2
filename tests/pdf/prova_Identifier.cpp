// Sums worked out apart from the writer: the first half is the published FNV-1a of the text.

#include "Identifier.h"

#include <gtest/gtest.h>

#include <string>

using pdf::prIdentifier;

TEST(Identifier, SommeNote)
{
    EXPECT_EQ(prIdentifier(""), "CBF29CE484222325CBF29CE484222325");
    EXPECT_EQ(prIdentifier("a"), "AF63DC4C8601EC8C089C4307B54596B7");
    EXPECT_EQ(prIdentifier("foobar"), "85944171F73967E80EACEE9155645B45");
}

TEST(Identifier, OgniByteConta)
{
    EXPECT_NE(prIdentifier(std::string(1, '\0')), prIdentifier(""));
    EXPECT_NE(prIdentifier("ab"), prIdentifier("ba"));
    EXPECT_EQ(prIdentifier("\xFF").size(), 32U);
}
