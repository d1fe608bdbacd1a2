// The table of the 14 standard fonts.

#include "StandardFonts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

using testing::HasSubstr;

TEST(StandardFonts, QuattordiciNomi)
{
    std::set<std::string> nomi;
    for (const auto famiglia : {pdf::Family::Times, pdf::Family::Courier, pdf::Family::Arial,
                                pdf::Family::Symbol, pdf::Family::ZapfDingbats}) {
        for (int stile = 0; stile < 4; ++stile) {
            const auto& faccia = pdf::prStandardFace(famiglia, (stile & 1) != 0, (stile & 2) != 0);
            nomi.insert(faccia.Name);
            EXPECT_THAT(faccia.Descriptor, HasSubstr("/FontBBox ["));
            const bool simboli =
                famiglia == pdf::Family::Symbol || famiglia == pdf::Family::ZapfDingbats;
            EXPECT_EQ(faccia.OwnEncoding, simboli);
        }
    }
    EXPECT_EQ(nomi, (std::set<std::string>{"Courier", "Courier-Bold", "Courier-BoldOblique",
                                           "Courier-Oblique", "Helvetica", "Helvetica-Bold",
                                           "Helvetica-BoldOblique", "Helvetica-Oblique", "Symbol",
                                           "Times-Bold", "Times-BoldItalic", "Times-Italic",
                                           "Times-Roman", "ZapfDingbats"}));
}
