// The code page of the files, by hand.

#include "Windows1252.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

std::string Utf8(char32_t carattere)
{
    std::string testo;
    AggiungiUtf8(testo, carattere);
    return testo;
}

} // namespace

TEST(InWindows1252, IVentisetteCaratteriDaOttantaANovantanove)
{
    EXPECT_EQ(InWindows1252("€‚ƒ„…†‡"), "\x80\x82\x83\x84\x85\x86\x87");
    EXPECT_EQ(InWindows1252("ˆ‰Š‹ŒŽ"), "\x88\x89\x8A\x8B\x8C\x8E");
    EXPECT_EQ(InWindows1252("‘’“”•–—"), "\x91\x92\x93\x94\x95\x96\x97");
    EXPECT_EQ(InWindows1252("˜™š›œžŸ"), "\x98\x99\x9A\x9B\x9C\x9E\x9F");
}

TEST(InWindows1252, ICinqueCodiciIndefinitiRestanoSeStessi)
{
    EXPECT_EQ(InWindows1252("\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
    EXPECT_TRUE(EntraInWindows1252("\u0081\u008D\u008F\u0090\u009D"));
}

TEST(InWindows1252, AsciiEDaA0InPoiIlCodiceStesso)
{
    EXPECT_EQ(InWindows1252("Carte: 10\r\n\t~\x7F"), "Carte: 10\r\n\t~\x7F");
    EXPECT_EQ(InWindows1252(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(InWindows1252("31 après"), "31 apr\xE8s");
    EXPECT_EQ(InWindows1252("\u00A0ÀÿÈ"), "\xA0\xC0\xFF\xC8");
    EXPECT_EQ(InWindows1252(""), "");
}

TEST(InWindows1252, SenzaCopiaDoveNonCENullaDaTradurre)
{
    std::string byte = "di prima";
    const std::string_view ascii = "Colpo\x7F";
    EXPECT_EQ(InWindows1252(ascii, byte).data(), ascii.data());
    EXPECT_EQ(InWindows1252("", byte), "");
    EXPECT_EQ(byte, "di prima");
    EXPECT_EQ(InWindows1252("31 après", byte), "31 apr\xE8s");
    EXPECT_EQ(byte, "31 apr\xE8s");
}

TEST(InWindows1252, UnCarattereEstraneoEUnPuntoInterrogativo)
{
    EXPECT_EQ(InWindows1252("\u202F"), "?");
    EXPECT_EQ(InWindows1252("aЖb♥c"), "a?b?c");
    EXPECT_EQ(InWindows1252("\U0001F0A1"), "?");
    EXPECT_EQ(InWindows1252("\u0080\u0085\u009F"), "???"); // these codes hold other characters
    EXPECT_EQ(InWindows1252("\U0010FFFF"), "?");
}

TEST(InWindows1252, OgniByteCheNonEUtf8EUnPuntoInterrogativo)
{
    EXPECT_EQ(InWindows1252("\xE8"), "?");
    EXPECT_EQ(InWindows1252("a\xE8z"), "a?z");
    EXPECT_EQ(InWindows1252("\x80\xBF"), "??"); // continuations of nothing
    EXPECT_EQ(InWindows1252("\xC3("), "?(");
    EXPECT_EQ(InWindows1252("\xE2\x82z"), "??z");
    EXPECT_EQ(InWindows1252("\xFE\xFF"), "??");
    EXPECT_EQ(InWindows1252("\xF8\x88\x80\x80\x80"), "?????");
}

TEST(InWindows1252, LeFormeTroppoLungheNonValgono)
{
    EXPECT_EQ(InWindows1252("\xC0\x80"), "??");
    EXPECT_EQ(InWindows1252("\xC0\xAF"), "??");
    EXPECT_EQ(InWindows1252("\xC1\xBF"), "??");
    EXPECT_EQ(InWindows1252("\xE0\x80\xAF"), "???");
    EXPECT_EQ(InWindows1252("\xE0\x9F\xBF"), "???");
    EXPECT_EQ(InWindows1252("\xE0\x83\xA8"), "???"); // would be "è"
    EXPECT_EQ(InWindows1252("\xF0\x82\x82\xAC"), "????");
}

TEST(InWindows1252, SurrogatiEOltreLUltimoCarattereNonValgono)
{
    EXPECT_EQ(InWindows1252("\xED\xA0\x80"), "???");
    EXPECT_EQ(InWindows1252("\xED\xBF\xBF"), "???");
    EXPECT_EQ(InWindows1252("\xED\x9F\xBF"), "?"); // the last before them is a character
    EXPECT_EQ(InWindows1252("\xF4\x90\x80\x80"), "????");
    EXPECT_EQ(InWindows1252("\xF5\x80\x80\x80"), "????");
}

TEST(InWindows1252, UnaSequenzaTroncataNonLeggeOltre)
{
    EXPECT_EQ(InWindows1252("abc\xC3"), "abc?");
    EXPECT_EQ(InWindows1252("abc\xE2\x82"), "abc??");
    EXPECT_EQ(InWindows1252("abc\xF0\x9F\x82"), "abc???");
    const std::string_view testo = "è€";
    EXPECT_EQ(InWindows1252(testo.substr(0, 1)), "?");
    EXPECT_EQ(InWindows1252(testo.substr(0, 4)), "\xE8??");
}

TEST(InWindows1252, DopoUnErroreIlRestoSiLegge)
{
    EXPECT_EQ(InWindows1252("\xE2\xC3\xA8"), "?\xE8");
    EXPECT_EQ(InWindows1252("\xF0\x9F€"), "??\x80");
}

TEST(EntraInWindows1252, SoloSeTuttoHaUnPosto)
{
    EXPECT_TRUE(EntraInWindows1252(""));
    EXPECT_TRUE(EntraInWindows1252("1.234,5 € è\u00A0"));
    EXPECT_FALSE(EntraInWindows1252("è\u202F"));
    EXPECT_FALSE(EntraInWindows1252("\u202Fè"));
    EXPECT_FALSE(EntraInWindows1252("a\xE8"));
    EXPECT_FALSE(EntraInWindows1252("\u0080"));
    EXPECT_TRUE(EntraInWindows1252("?")); // a question mark of its own is no failure
}

TEST(AggiungiUtf8, LunghezzeDaUnoAQuattro)
{
    EXPECT_EQ(Utf8(0), std::string(1, '\0'));
    EXPECT_EQ(Utf8(0x7F), "\x7F");
    EXPECT_EQ(Utf8(0x80), "\xC2\x80");
    EXPECT_EQ(Utf8(0x7FF), "\xDF\xBF");
    EXPECT_EQ(Utf8(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(Utf8(0x202F), "\xE2\x80\xAF");
    EXPECT_EQ(Utf8(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(Utf8(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(Utf8(0x10FFFF), "\xF4\x8F\xBF\xBF");
}

TEST(AggiungiUtf8, SurrogatiEOltreSonoUnPuntoInterrogativo)
{
    EXPECT_EQ(Utf8(0xD7FF), "\xED\x9F\xBF");
    EXPECT_EQ(Utf8(0xD800), "?");
    EXPECT_EQ(Utf8(0xDFFF), "?");
    EXPECT_EQ(Utf8(0xE000), "\xEE\x80\x80");
    EXPECT_EQ(Utf8(0x110000), "?");
    EXPECT_EQ(Utf8(0xFFFFFFFF), "?");
}

TEST(AggiungiUtf8, SiAggiungeInFondo)
{
    std::string testo = "a";
    AggiungiUtf8(testo, 0x20AC);
    AggiungiUtf8(testo, 'b');
    EXPECT_EQ(testo, "a€b");
}

TEST(DaWindows1252, RifaIlCarattereDiOgniCodice)
{
    EXPECT_EQ(DaWindows1252('A'), U'A');
    EXPECT_EQ(DaWindows1252(0x7F), U'\x7F');
    EXPECT_EQ(DaWindows1252(0x80), U'€');
    EXPECT_EQ(DaWindows1252(0x81), U'\x81');
    EXPECT_EQ(DaWindows1252(0x9F), U'Ÿ');
    EXPECT_EQ(DaWindows1252(0xA0), U'\xA0');
    for (int codice = 0; codice < 256; ++codice) {
        const auto byte = static_cast<unsigned char>(codice);
        std::string utf8;
        AggiungiUtf8(utf8, DaWindows1252(byte));
        EXPECT_EQ(InWindows1252(utf8), std::string(1, static_cast<char>(byte))) << codice;
    }
}

TEST(PrendiCarattere, UnoAllaVoltaDalDavanti)
{
    std::string_view testo = "a€\xFF😀";
    EXPECT_EQ(PrendiCarattere(testo), U'a');
    EXPECT_EQ(PrendiCarattere(testo), U'€');
    EXPECT_EQ(PrendiCarattere(testo), NonValido);
    EXPECT_EQ(PrendiCarattere(testo), U'😀');
    EXPECT_EQ(testo, "");
}
