// Measuring and breaking text, with a font all of whose characters are one unit wide.

#include "TextLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

using pdf::prBreakLines;
using pdf::TextLine;
using pdf::TextMetrics;
using testing::ElementsAre;

namespace {

constexpr std::array<std::uint16_t, 256> TuttiUguali = [] {
    std::array<std::uint16_t, 256> tutti = {};
    tutti.fill(1000);
    return tutti;
}();

constexpr TextMetrics Uno = {&TuttiUguali, 1, 0, 0, 100, 1};

// The lines as texts.
std::vector<std::string> Spezzato(std::string_view testo, float larghezza, float rientro = 0)
{
    std::vector<TextLine> righe;
    prBreakLines(testo, larghezza, rientro, Uno, righe);
    std::vector<std::string> testi;
    for (const auto& riga : righe) testi.emplace_back(riga.Text);
    return testi;
}

std::vector<TextLine> RigheDi(std::string_view testo, float larghezza, float rientro = 0)
{
    std::vector<TextLine> righe;
    prBreakLines(testo, larghezza, rientro, Uno, righe);
    return righe;
}

std::string prNormalizeText(std::string testo)
{
    pdf::prNormalizeText(testo);
    return testo;
}

} // namespace

TEST(WidthOf, SommaDelleLarghezzePerIlCorpo)
{
    EXPECT_DOUBLE_EQ(Uno.WidthOf("abc"), 3);
    EXPECT_DOUBLE_EQ(Uno.WidthOf(""), 0);
    const TextMetrics dieci = {&TuttiUguali, 10, 0, 0, 100, 1};
    EXPECT_DOUBLE_EQ(dieci.WidthOf("abc"), 30);
}

TEST(WidthOf, SpaziaturaScalaEUnita)
{
    // 4 characters, 1 blank: (4 * 10 + 4 * 2 + 1 * 5) * 50 percent / 2
    const TextMetrics misure = {&TuttiUguali, 10, 2, 5, 50, 2};
    EXPECT_DOUBLE_EQ(misure.WidthOf("a bc"), 53 * 0.5 / 2);
}

TEST(WidthOf, OgniByteHaLaSuaLarghezza)
{
    std::array<std::uint16_t, 256> larghezze = {};
    larghezze[0] = 100;
    larghezze[127] = 200;
    larghezze[255] = 400;
    const TextMetrics misure = {&larghezze, 1000, 0, 0, 100, 1};
    EXPECT_DOUBLE_EQ(misure.WidthOf(std::string_view("\0\x7F\xFF", 3)), 700);
}

TEST(WidthOf, SenzaUnitaNonCELarghezza)
{
    const TextMetrics misure = {&TuttiUguali, 10, 0, 0, 100, 0};
    EXPECT_EQ(misure.WidthOf("abc"), 0);
}

TEST(PrNormalizeText, PiuBianchiSonoUno)
{
    EXPECT_EQ(prNormalizeText("a  b"), "a b");
    EXPECT_EQ(prNormalizeText("a       b   c d"), "a b c d");
    EXPECT_EQ(prNormalizeText("  a  "), " a ");
    EXPECT_EQ(prNormalizeText(""), "");
}

TEST(PrNormalizeText, UnaRigaVuotaRestaConUnBianco)
{
    EXPECT_EQ(prNormalizeText("a\r\n\r\nb"), "a\r\n \r\nb");
    EXPECT_EQ(prNormalizeText("a\r\n\r\n\r\nb"), "a\r\n \r\n \r\nb");
    EXPECT_EQ(prNormalizeText("\r\n\r\n\r\n\r\n"), "\r\n \r\n \r\n \r\n");
    EXPECT_EQ(prNormalizeText("a\r\nb"), "a\r\nb");
    EXPECT_EQ(prNormalizeText("a\n\nb\r\rc"), "a\n\nb\r\rc"); // no line ends alone
}

TEST(PrBreakLines, LeParoleStannoFinCheCEPosto)
{
    EXPECT_THAT(Spezzato("aa bb cc dd", 5), ElementsAre("aa bb", "cc dd"));
    EXPECT_THAT(Spezzato("aa bb cc dd", 4.99F), ElementsAre("aa", "bb", "cc", "dd"));
    EXPECT_THAT(Spezzato("aa bb cc dd", 8), ElementsAre("aa bb cc", "dd"));
    EXPECT_THAT(Spezzato("aa bb cc dd", 1000), ElementsAre("aa bb cc dd"));
}

TEST(PrBreakLines, SiConfrontaInTrentaduebit)
{
    std::vector<TextLine> righe;
    for (const float corpo : {0.1F, 0.7F, 2.1F, 4.3F, 9.3F, 11.9F}) {
        const TextMetrics misure = {&TuttiUguali, corpo, 0, 0, 100, 1};
        for (const std::string_view testo : {"a b", "a b c", "aaa bb c d", "a b c d e f g"}) {
            const auto larga = static_cast<float>(misure.WidthOf(testo));
            prBreakLines(testo, larga, 0, misure, righe);
            EXPECT_EQ(righe.size(), 1U) << corpo << " " << testo;
            prBreakLines(testo, std::nextafterf(larga, 0), 0, misure, righe);
            EXPECT_EQ(righe.size(), 2U) << corpo << " " << testo;
        }
    }
}

TEST(PrBreakLines, ColRientroSommatoInTrentaduebit)
{
    constexpr TextMetrics misure = {&TuttiUguali, 2.1F, 0, 0, 100, 1};
    std::vector<TextLine> righe;
    for (const float rientro : {0.1F, 0.7F, 3.33F, 33.3F, 700.1F, -1.1F}) {
        const float larga = static_cast<float>(misure.WidthOf("a b c")) + rientro;
        prBreakLines("a b c", larga, rientro, misure, righe);
        EXPECT_EQ(righe.size(), 1U) << rientro;
        prBreakLines("a b c", std::nextafterf(larga, -1), rientro, misure, righe);
        EXPECT_EQ(righe.size(), 2U) << rientro;
    }
}

TEST(PrBreakLines, UnTestoCheSiAccorciaCrescendoStaTuttoIntero)
{
    // A blank is 1 - 3 wide: "aa bbbb" is 4, the whole is 3, "aa bbbb c" in between as well.
    constexpr TextMetrics misure = {&TuttiUguali, 1, 0, -3, 100, 1};
    std::vector<TextLine> righe;
    prBreakLines("aa bbbb c", 3, 0, misure, righe);
    EXPECT_EQ(righe.size(), 1U);
    prBreakLines("aa bbbb c d", 1.5F, 0, misure, righe); // 2 wide: word by word
    EXPECT_EQ(righe.size(), 3U);
}

TEST(PrBreakLines, IlRientroAccorciaLaPrimaRigaDiOgniParagrafo)
{
    EXPECT_THAT(Spezzato("aa bb cc\r\ndd ee ff", 5, 1), ElementsAre("aa", "bb cc", "dd", "ee ff"));
    const auto righe = RigheDi("aa bb cc", 5, 1);
    EXPECT_EQ(righe[0].Width, 3); // with the indent
    EXPECT_EQ(righe[1].Width, 5);
    EXPECT_THAT(Spezzato("aa bb cc", 5, -3), ElementsAre("aa bb cc"));
}

TEST(PrBreakLines, UnaParolaTroppoLargaStaSullaRigaCheComincia)
{
    EXPECT_THAT(Spezzato("lunghissima bb cc", 5), ElementsAre("lunghissima", "bb cc"));
    EXPECT_THAT(Spezzato("aa lunghissima bb", 5), ElementsAre("aa", "lunghissima", "bb"));
    EXPECT_THAT(Spezzato("a b", 0), ElementsAre("a", "b"));
    EXPECT_THAT(Spezzato("a b", -10), ElementsAre("a", "b"));
}

TEST(PrBreakLines, OgniParagrafoHaLeSueRighe)
{
    EXPECT_THAT(Spezzato("aa\r\n \r\nbb", 5), ElementsAre("aa", " ", "bb"));
    EXPECT_THAT(Spezzato("aa\r\n", 5), ElementsAre("aa", ""));
    EXPECT_THAT(Spezzato("", 5), ElementsAre(""));
    EXPECT_THAT(Spezzato("aa\nbb", 50), ElementsAre("aa\nbb"));
}

TEST(PrBreakLines, BianchiAllInizioEAllaFineSonoParoleVuote)
{
    EXPECT_THAT(Spezzato(" a", 5), ElementsAre(" a"));
    EXPECT_THAT(Spezzato("aaaaa ", 5), ElementsAre("aaaaa", ""));
}

TEST(PrBreakLines, ContaIBianchiESegnaIParagrafi)
{
    const auto righe = RigheDi("aa bb cc dd\r\nee", 5);
    ASSERT_EQ(righe.size(), 3U);
    EXPECT_EQ(righe[0].Blanks, 1);
    EXPECT_EQ(righe[2].Blanks, 0);
    EXPECT_TRUE(righe[0].FirstOfParagraph && !righe[0].LastOfParagraph);
    EXPECT_TRUE(!righe[1].FirstOfParagraph && righe[1].LastOfParagraph);
    EXPECT_TRUE(righe[2].FirstOfParagraph && righe[2].LastOfParagraph);
}

TEST(PrLayOutWord, UnaParolaSolaStaSuUnaRigaSua)
{
    for (const std::string_view parola : {"", "abc", "a\nb", "troppolarga"}) {
        std::vector<TextLine> righe(2);
        ASSERT_TRUE(pdf::prLayOutWord(parola, 2, Uno, righe));
        const auto attese = RigheDi(parola, 5, 2);
        ASSERT_EQ(righe.size(), 1U);
        ASSERT_EQ(attese.size(), 1U);
        EXPECT_EQ(righe[0].Text.data(), parola.data()); // not copied
        EXPECT_EQ(righe[0].Text, attese[0].Text);
        EXPECT_EQ(righe[0].Width, attese[0].Width);
        EXPECT_EQ(righe[0].Blanks, 0);
        EXPECT_TRUE(righe[0].FirstOfParagraph && righe[0].LastOfParagraph);
    }
}

TEST(PrLayOutWord, IlRestoNonEUnaParola)
{
    std::vector<TextLine> righe(2);
    for (const std::string_view testo : {"a b", " ", "a\r\nb", "a\r"}) {
        EXPECT_FALSE(pdf::prLayOutWord(testo, 0, Uno, righe)) << testo;
        EXPECT_EQ(righe.size(), 2U);
    }
}
