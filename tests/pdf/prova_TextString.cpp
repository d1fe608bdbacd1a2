// Texts outside the pages, by hand: which encoding they are written in and what is escaped.

#include "TextString.h"

#include <gtest/gtest.h>

#include <string>

using pdf::prTextString;
using namespace std::string_literals;

TEST(TextString, AsciiStaComeE)
{
    EXPECT_EQ(prTextString(""), "()");
    EXPECT_EQ(prTextString("Taglia 31 ~!"), "(Taglia 31 ~!)");
    EXPECT_EQ(prTextString("a\tb\nc"), "(a\tb\nc)");
}

TEST(TextString, TondeBarreERitorniSonoSempreProtetti)
{
    EXPECT_EQ(prTextString("a (b) \\c"), "(a \\(b\\) \\\\c)");
    EXPECT_EQ(prTextString(")>>"), "(\\)>>)");
    EXPECT_EQ(prTextString("a\rb\r\nc"), "(a\\rb\\r\nc)");
}

TEST(TextString, LettereEuropeeInCodificaDelDocumento)
{
    EXPECT_EQ(prTextString("L'età - 10 €"), "(L'et\xE0 - 10 \xA0)");
    EXPECT_EQ(prTextString("“x” ‘y’ „z‚"), "(\x8Dx\x8E \x8Fy\x90 \x8Cz\x91)");
    EXPECT_EQ(prTextString("Łódź"), "(\xFE\xFF\x01\x41\0\xF3\0d\x01\x7A)"s); // no "ź" there
    EXPECT_EQ(prTextString("Łódł"), "(\x95\xF3"
                                    "d\x9B)");
    EXPECT_EQ(prTextString("¡ÿÆ"), "(\xA1\xFF\xC6)");
}

TEST(TextString, OgniCodiceDellaTabella)
{
    EXPECT_EQ(prTextString("˘ˇˆ˙˝˛˚˜"), "(\x18\x19\x1A\x1B\x1C\x1D\x1E\x1F)");
    EXPECT_EQ(prTextString("•†‡…—–ƒ⁄‹›−‰„“”‘"),
              "(\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8D\x8E\x8F)");
    EXPECT_EQ(prTextString("’‚™ﬁﬂŁŒŠŸŽıłœšž"),
              "(\x90\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9D\x9E)");
}

TEST(TextString, IlRestoInUtf16)
{
    EXPECT_EQ(prTextString("č"), "(\xFE\xFF\x01\\r)");
    EXPECT_EQ(prTextString("日本"), "(\xFE\xFF\x65\xE5\x67\x2C)");
    EXPECT_EQ(prTextString("😀"), "(\xFE\xFF\xD8\x3D\xDE\0)"s);
    EXPECT_EQ(prTextString("\U0010FFFF"), "(\xFE\xFF\xDB\xFF\xDF\xFF)");
}

TEST(TextString, CaratteriSenzaCodiceLiMandanoInUtf16)
{
    EXPECT_EQ(prTextString("\u00A0"), "(\xFE\xFF\0\xA0)"s);   // there A0 is the euro sign
    EXPECT_EQ(prTextString("\u00AD"), "(\xFE\xFF\0\xAD)"s);   // there AD is nothing
    EXPECT_EQ(prTextString("\x7F"), "(\xFE\xFF\0\x7F)"s);     //
    EXPECT_EQ(prTextString("\u009F"), "(\xFE\xFF\0\x9F)"s);   //
    EXPECT_EQ(prTextString("\0"s), "(\xFE\xFF\0\0)"s);        //
    EXPECT_EQ(prTextString("\x18"), "(\xFE\xFF\0\x18)"s);     // there 18 is a breve
    EXPECT_EQ(prTextString("a\x01"), "(\xFE\xFF\0a\0\x01)"s); //
}

TEST(TextString, ByteDiUtf16CheSonoTondeOBarre)
{
    EXPECT_EQ(prTextString("\u2828"), "(\xFE\xFF\\(\\()");
    EXPECT_EQ(prTextString("\u2829"), "(\xFE\xFF\\(\\))");
    EXPECT_EQ(prTextString("\u5C5C"), "(\xFE\xFF\\\\\\\\)");
    EXPECT_EQ(prTextString("\u0D0D"), "(\xFE\xFF\\r\\r)");
    EXPECT_EQ(prTextString("\u0A0A"), "(\xFE\xFF\n\n)");
}

TEST(TextString, QuelCheSembraUnSegnoDiCodificaVaInUtf16)
{
    EXPECT_EQ(prTextString("þÿ"), "(\xFE\xFF\0\xFE\0\xFF)"s);
    EXPECT_EQ(prTextString("þÿa"), "(\xFE\xFF\0\xFE\0\xFF\0a)"s);
    EXPECT_EQ(prTextString("ï»¿a"), "(\xFE\xFF\0\xEF\0\xBB\0\xBF\0a)"s);
    EXPECT_EQ(prTextString("þ"), "(\xFE)");
    EXPECT_EQ(prTextString("aþÿ"), "(a\xFE\xFF)");
    EXPECT_EQ(prTextString("ï»"), "(\xEF\xBB)");
}

TEST(TextString, QuelCheNonHaPostoEUnPuntoInterrogativo)
{
    EXPECT_EQ(prTextString("a\xFFz"), "(a?z)");
    EXPECT_EQ(prTextString("\xED\xA0\x80"), "(\?\?\?)"); // half of a pair
    EXPECT_EQ(prTextString("\xE2\x82"), "(\?\?)");
    EXPECT_EQ(prTextString("a\x1Bit\x1B"), "(a?it?)"); // would name a language
    EXPECT_EQ(prTextString("\x1B日"), "(\xFE\xFF\0?\x65\xE5)"s);
}
