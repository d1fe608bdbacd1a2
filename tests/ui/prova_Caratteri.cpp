// Faces of captions: their sizes, and that each has a font to draw it here.

#include "Caratteri.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <gtest/gtest.h>

TEST(Caratteri, LAltezzaDellaCellaDecideLaMisura)
{
    using caratteri::PixelPerCella;
    EXPECT_EQ(PixelPerCella("Arial", 14), 12);
    EXPECT_EQ(PixelPerCella("Arial", 22), 20);
    EXPECT_EQ(PixelPerCella("Arial", 28), 25);
    EXPECT_EQ(PixelPerCella("Verdana", 16), 13);
    EXPECT_EQ(PixelPerCella("Arial Black", 32), 23);
    EXPECT_EQ(PixelPerCella("Arial", 0), 1);
    EXPECT_EQ(PixelPerCella("Arial", -5), 1);
    EXPECT_EQ(caratteri::PixelPerPunti(20), 27);
    EXPECT_EQ(caratteri::Ascendente("Arial", 20), 18);
    EXPECT_EQ(caratteri::Ascendente("Arial Black", 23), 25);
}

TEST(Caratteri, OgniFacciaHaChiLaDisegna)
{
    for (const char* faccia : {"Arial", "Verdana", "Arial Black"}) {
        const QFont font = caratteri::Font(faccia, 400, 20);
        EXPECT_EQ(QFontInfo(font).family(), font.family()) << faccia;
        EXPECT_EQ(QFontInfo(font).pixelSize(), 20);
    }
    EXPECT_GE(QFontInfo(caratteri::Font("Arial Black", 400, 20)).weight(), QFont::Bold);
    // The substitute at its heaviest, whatever weights it has here.
    const bool propria = QFontDatabase::hasFamily(QStringLiteral("Arial Black"));
    EXPECT_EQ(caratteri::Font("Arial Black", 400, 20).weight(), propria ? 400 : 900);
    EXPECT_LE(QFontInfo(caratteri::Font("Verdana", 400, 20)).weight(), QFont::Medium);
    // An unknown face is no failure.
    EXPECT_EQ(caratteri::Font("Nessuna Faccia", 400, 12).pixelSize(), 12);
}
