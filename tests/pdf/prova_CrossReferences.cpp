// The rows of a cross-reference stream, byte by byte.

#include "CrossReferences.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace std::string_view_literals;

TEST(RimandiAgliOggetti, UnOggettoPerContoSuo)
{
    pdf::CrossReferences rimandi;
    rimandi.StandAt(2, 0x012345);
    EXPECT_EQ(rimandi.PositionOf(2), 0x012345U);
    EXPECT_EQ(rimandi.Row(2, 3), "\1\x01\x23\x45\0\0"sv);
    EXPECT_EQ(rimandi.Row(2, 4), "\1\0\x01\x23\x45\0\0"sv);
    rimandi.StandAt(2, 9999999999);
    EXPECT_EQ(rimandi.Row(2, 5), "\1\x02\x54\x0B\xE3\xFF\0\0"sv);
}

TEST(RimandiAgliOggetti, UnOggettoInUnFlusso)
{
    pdf::CrossReferences rimandi;
    rimandi.StandIn(1, 8388607, 199);
    EXPECT_EQ(rimandi.PositionOf(1), 0U);
    EXPECT_EQ(rimandi.Row(1, 3), "\2\x7F\xFF\xFF\0\xC7"sv);
    rimandi.StandIn(1, 5, 0);
    EXPECT_EQ(rimandi.Row(1, 1), "\2\5\0\0"sv);
}

TEST(RimandiAgliOggetti, DiCuiNonSiSaELibero)
{
    pdf::CrossReferences rimandi;
    rimandi.StandAt(3, 9);
    for (const int numero : {0, 1, 2, 4, 1000}) {
        EXPECT_EQ(rimandi.PositionOf(numero), 0U);
        EXPECT_EQ(rimandi.Row(numero, 2), "\0\0\0\xFF\xFF"sv);
    }
    rimandi.Clear();
    EXPECT_EQ(rimandi.PositionOf(3), 0U);
}

TEST(RimandiAgliOggetti, UnNumeroPrendeIByteCheServono)
{
    EXPECT_EQ(pdf::CrossReferences::WidthFor(0), 1);
    EXPECT_EQ(pdf::CrossReferences::WidthFor(255), 1);
    EXPECT_EQ(pdf::CrossReferences::WidthFor(256), 2);
    EXPECT_EQ(pdf::CrossReferences::WidthFor(65535), 2);
    EXPECT_EQ(pdf::CrossReferences::WidthFor(65536), 3);
    EXPECT_EQ(pdf::CrossReferences::WidthFor(9999999999), 5);
}
