// The icons of notes: one for each kind, in the note's colour.

#include "Appearance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

using testing::HasSubstr;

TEST(Icona, OgniSegnoELaSua)
{
    std::set<std::string> icone;
    for (std::int32_t segno = 0; segno < 7; ++segno) icone.insert(pdf::prIconContent(segno, ""));
    EXPECT_EQ(icone.size(), 7);
    for (const std::int32_t ignoto : {-1, 7, 2147483647}) {
        EXPECT_EQ(pdf::prIconContent(ignoto, ""), pdf::prIconContent(0, ""));
    }
}

// Signs are dark on a light ground and white on a dark one.
TEST(Icona, HaIlColoreDellaNota)
{
    EXPECT_THAT(pdf::prIconContent(0, "#00FFFF"), HasSubstr("\n0 1 1 rg\n"));
    EXPECT_THAT(pdf::prIconContent(0, "#00FFFF"), HasSubstr("B*\n0.2 g 0.2 G\n"));
    EXPECT_THAT(pdf::prIconContent(0, "#0000FF"), HasSubstr("B*\n1 g 1 G\n"));
    EXPECT_THAT(pdf::prIconContent(0, ""), HasSubstr("\n1 0.851 0.302 rg\n"));
}

// Lines, up to 1.8 points wide, are inside with all their width.
TEST(Icona, StaNelSuoQuadrato)
{
    for (std::int32_t segno = 0; segno < 7; ++segno) {
        std::istringstream parole(pdf::prIconContent(segno, ""));
        for (std::string parola; parole >> parola;) {
            if (parola.find_first_not_of("0123456789.") != std::string::npos) continue;
            EXPECT_LE(std::stod(parola), pdf::IconSize - 1) << segno;
        }
    }
}
