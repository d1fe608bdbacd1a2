// Palette indices packed into the rows of a picture.

#include "Picture.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

using namespace pdf;
using namespace std::string_literals;

TEST(PrPackIndices, RigheInteroByteETavolozzaAllungata)
{
    Picture figura;
    figura.Width = 3;
    figura.Height = 2;
    figura.Palette = "rgb";
    prPackIndices(figura, "\0\1\2\2\1\0"s, 1);
    EXPECT_EQ(figura.BitsPerPixel, 2); // index 2 needs more than the one bit asked for
    EXPECT_EQ(figura.Pixels, "\x18\x90");
    EXPECT_EQ(figura.Palette, "rgb\0\0\0\0\0\0"s);
    EXPECT_EQ(figura.Space, ColorSpace::Indexed);
}

TEST(PrPackIndices, RigheCheRiempionoIByteNonNeHannoDiPiu)
{
    Picture figura;
    figura.Width = 8;
    figura.Height = 2;
    prPackIndices(figura,
                  "\1\0\1\0\1\0\1\0"
                  "\1\1\1\1\0\0\0\0"s,
                  1);
    EXPECT_EQ(figura.Pixels, "\xAA\xF0");
    figura.Width = 9;
    figura.Height = 1;
    prPackIndices(figura, "\0\0\0\0\0\0\0\0\1"s, 1);
    EXPECT_EQ(figura.Pixels, "\0\x80"s);
}

TEST(PrPackIndices, QuantiBitVuoleIlPiuAlto)
{
    const auto bit = [](int indice, int chiesti) {
        Picture figura;
        figura.Width = 1;
        figura.Height = 1;
        prPackIndices(figura, std::string(1, static_cast<char>(indice)), chiesti);
        EXPECT_EQ(figura.Palette.size(), 3 * (static_cast<std::size_t>(indice) + 1));
        return figura.BitsPerPixel;
    };
    EXPECT_EQ(bit(1, 1), 1);
    EXPECT_EQ(bit(2, 1), 2);
    EXPECT_EQ(bit(3, 1), 2);
    EXPECT_EQ(bit(4, 1), 4);
    EXPECT_EQ(bit(15, 1), 4);
    EXPECT_EQ(bit(16, 1), 8);
    EXPECT_EQ(bit(255, 1), 8);
    EXPECT_EQ(bit(0, 3), 4);
    EXPECT_EQ(bit(0, 5), 8);
}
