// The stream encoders, byte by byte. Readers that are not ours take them apart in
// prova_decodificatori.py.

#include "Encoders.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

using namespace pdf;
using namespace std::string_literals;

namespace {

// So many bytes in which no pair of neighbours comes twice: each gives one LZW code.
std::string CoppieDiverse(std::size_t quanti)
{
    std::string byte;
    for (int primo = 0; primo < 256 && byte.size() < quanti; ++primo) {
        byte.push_back(static_cast<char>(primo));
        for (int secondo = primo + 1; secondo < 256; ++secondo) {
            byte.push_back(static_cast<char>(primo));
            byte.push_back(static_cast<char>(secondo));
        }
    }
    byte.resize(quanti);
    return byte;
}

std::string Esadecimale(const std::string& byte)
{
    return prToASCIIHex(byte);
}

// The bytes that so many bits take.
std::size_t ByteDiBit(std::size_t bit)
{
    return (bit + 7) / 8;
}

} // namespace

TEST(RunLength, VuotoEUnByte)
{
    EXPECT_EQ(prRunLengthEncode(""), "\x80"s);
    EXPECT_EQ(prRunLengthEncode("a"), "\0a\x80"s);
}

TEST(RunLength, TreUgualiDiventanoUnaSerie)
{
    EXPECT_EQ(prRunLengthEncode("aab"), "\2aab\x80"s);
    EXPECT_EQ(prRunLengthEncode("aaa"), "\xFE"
                                        "a\x80"s);
    EXPECT_EQ(prRunLengthEncode("xyaaaaz"), "\1xy\xFD"
                                            "a\0z\x80"s);
}

TEST(RunLength, OltreLaFineNonSiGuarda)
{
    // Two alike at the end, and a third behind the bytes to encode.
    const std::string lettere = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLM";
    for (std::size_t prima = 0; prima < lettere.size(); ++prima) {
        const std::string testo = lettere.substr(0, prima) + "##";
        const std::string lungo = testo + "######";
        const std::string atteso = static_cast<char>(testo.size() - 1) + testo + "\x80";
        EXPECT_EQ(prRunLengthEncode(std::string_view(lungo).substr(0, testo.size())), atteso);
    }
}

TEST(RunLength, IlByteCheAvanzaDaUnaSerieVaConQuelliDopo)
{
    EXPECT_EQ(prRunLengthEncode(std::string(129, 'a') + "bc"), "\x81"
                                                               "a\2abc\x80");
    EXPECT_EQ(prRunLengthEncode(std::string(130, 'a') + "bc"), "\x81"
                                                               "a\xFF"
                                                               "a\1bc\x80");
}

TEST(RunLength, SerieECopieDiCentoventottoAlMassimo)
{
    EXPECT_EQ(prRunLengthEncode(std::string(128, 'a')), "\x81"
                                                        "a\x80"s);
    EXPECT_EQ(prRunLengthEncode(std::string(129, 'a')), "\x81"
                                                        "a\0a\x80"s);
    EXPECT_EQ(prRunLengthEncode(std::string(130, 'a')), "\x81"
                                                        "a\xFF"
                                                        "a\x80"s);
    const std::string diversi = CoppieDiverse(512).substr(1, 129);
    EXPECT_EQ(prRunLengthEncode(diversi),
              "\x7F" + diversi.substr(0, 128) + "\0"s + diversi.back() + "\x80");
}

TEST(RunLength, OgniPostoDiUnaSerieSiTrova)
{
    for (std::size_t prima = 0; prima < 40; ++prima) {
        const std::string diversi = CoppieDiverse(512).substr(2, prima);
        const std::string inizio =
            prima == 0 ? "" : std::string(1, static_cast<char>(prima - 1)) + diversi;
        EXPECT_EQ(prRunLengthEncode(diversi + std::string(20, '\xEE') + "q"),
                  inizio + "\xED\xEE\0q\x80"s);
    }
}

// Runs end at each place of the eight bytes that are compared at once.
TEST(RunLength, OgniLunghezzaDiUnaSerieSiTrovaAncheLontanoDallaFine)
{
    const std::string coda = "bcdefghijklm";
    for (std::size_t lunga = 3; lunga <= 20; ++lunga) {
        EXPECT_EQ(prRunLengthEncode(std::string(lunga, 'a') + coda),
                  std::string(1, static_cast<char>(257 - lunga)) + "a\x0B" + coda + "\x80")
            << lunga;
    }
}

TEST(RunLength, IlPeggioreDeiCasiCresceDiUnByteOgniCentoventotto)
{
    EXPECT_EQ(prRunLengthEncode(CoppieDiverse(1280)).size(), 1280U + 10 + 1);
}

TEST(LZW, EsempioDellaNorma)
{
    EXPECT_EQ(Esadecimale(prLZWEncode("-----A---B")), "800B6050220C0C8501>");
}

TEST(LZW, VuotoEUnByte)
{
    EXPECT_EQ(Esadecimale(prLZWEncode("")), "804040>");          // 256 257, 18 bits
    EXPECT_EQ(Esadecimale(prLZWEncode("\xFF")), "803FE020>");    // 256 255 257, 27 bits
    EXPECT_EQ(Esadecimale(prLZWEncode("\0\0"s)), "8000001010>"); // 256 0 0 257, 36 bits
}

TEST(LZW, LaLarghezzaCresceDopo254E766E1790Codici)
{
    const auto lunghezza = [](std::size_t codici) {
        return prLZWEncode(CoppieDiverse(codici)).size();
    };
    EXPECT_EQ(lunghezza(253), ByteDiBit(9 + 253 * 9 + 9));
    EXPECT_EQ(lunghezza(254), ByteDiBit(9 + 254 * 9 + 10));
    EXPECT_EQ(lunghezza(255), ByteDiBit(9 + 254 * 9 + 10 + 10));
    const std::size_t a10 = 9 + 254 * 9 + 512 * 10;
    EXPECT_EQ(lunghezza(765), ByteDiBit(a10 - 10 + 10));
    EXPECT_EQ(lunghezza(766), ByteDiBit(a10 + 11));
    const std::size_t a11 = a10 + 1024 * 11;
    EXPECT_EQ(lunghezza(1789), ByteDiBit(a11 - 11 + 11));
    EXPECT_EQ(lunghezza(1790), ByteDiBit(a11 + 12));
}

TEST(LZW, DopoLaVoce4094IlDizionarioRicomincia)
{
    const std::size_t pieno = 9 + 254 * 9 + 512 * 10 + 1024 * 11 + 2047 * 12;
    EXPECT_EQ(prLZWEncode(CoppieDiverse(3836)).size(), ByteDiBit(pieno - 12 + 12));
    EXPECT_EQ(prLZWEncode(CoppieDiverse(3837)).size(), ByteDiBit(pieno + 12 + 9));
    EXPECT_EQ(prLZWEncode(CoppieDiverse(3838)).size(), ByteDiBit(pieno + 12 + 9 + 9));
}

TEST(LZW, LaSecondaChiamataNonRicordaLaPrima)
{
    const std::string primo = prLZWEncode("abcabcabc");
    prLZWEncode(CoppieDiverse(9000));
    EXPECT_EQ(prLZWEncode("abcabcabc"), primo);
}

TEST(ASCII85, GruppiDiQuattroByte)
{
    EXPECT_EQ(prToASCII85("Man is distinguished"), "9jqo^BlbD-BleB1DJ+*+F(f,q~>");
    EXPECT_EQ(prToASCII85("\xFF\xFF\xFF\xFF"), "s8W-!~>");
    EXPECT_EQ(prToASCII85(""), "~>");
}

TEST(ASCII85, SoloUnGruppoInteroDiZeriDiventaZ)
{
    EXPECT_EQ(prToASCII85("\0\0\0\0"s), "z~>");
    EXPECT_EQ(prToASCII85("\0\0\0"s), "!!!!~>");
    EXPECT_EQ(prToASCII85("\0\0\0\0\0"s), "z!!~>");
    EXPECT_EQ(prToASCII85("\0\0\0\1\0\0\0\0"s), "!!!!\"z~>");
}

TEST(ASCII85, GliUltimiByteDannoUnCarattereInPiu)
{
    EXPECT_EQ(prToASCII85("M"), "9`~>");
    EXPECT_EQ(prToASCII85("Ma"), "9jn~>");
    EXPECT_EQ(prToASCII85("Man"), "9jqo~>");
}

TEST(ASCIIHex, DueCifreMaiuscolePerByte)
{
    EXPECT_EQ(prToASCIIHex(""), ">");
    EXPECT_EQ(prToASCIIHex("\0\x0F\xA5\xFF"s), "000FA5FF>");
}
