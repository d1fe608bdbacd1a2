// JPEG pictures: what is refused and with which words, the last value that is taken and the first
// that is not. prova_figure.py compares pixels with those that other programs read.

#include "JpegFile.h"
#include "prova_Figure.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

using namespace pdf;
using namespace std::string_literals;
using aiuti::Cambia;
using aiuti::Motivo;
using aiuti::Piccoli;

namespace {

std::string Jpeg()
{
    return "\xFF\xD8\xFF\xC0\0\x0B\x08\0\3\0\5\1\1\x11\0\xFF\xDA\0\2"s; // grey, 5 x 3
}

std::string Jpeg(int marca, int componenti, const std::string& prima = "")
{
    std::string byte = "\xFF\xD8" + prima + "\xFF" + Piccoli(static_cast<std::uint64_t>(marca), 1) +
                       "\0"s + Piccoli(static_cast<std::uint64_t>(8 + 3 * componenti), 1) +
                       "\x08\0\3\0\5"s + Piccoli(static_cast<std::uint64_t>(componenti), 1);
    for (int i = 0; i < componenti; ++i) byte += "\1\x11\0"s;
    return byte + "\xFF\xDA\0\2"s;
}

} // namespace

TEST(PrReadJPEG, LeDimensioniEIByteIntatti)
{
    const Picture figura = prReadJPEG(Jpeg(), "figura");
    EXPECT_EQ(figura.Width, 5);
    EXPECT_EQ(figura.Height, 3);
    EXPECT_EQ(figura.BitsPerPixel, 8);
    EXPECT_EQ(figura.Space, ColorSpace::Gray);
    EXPECT_TRUE(figura.IsJpeg);
    EXPECT_EQ(figura.Pixels, Jpeg());
}

TEST(PrReadJPEG, MarcheDaSoleEByteDiRiempimento)
{
    const std::string byte = Jpeg().insert(2, "\xFF\x01\xFF\xD0\xFF\xFF\xFF\xFE\0\3x"s);
    EXPECT_EQ(Motivo(prReadJPEG, byte), "letta");
}

// The segment that turns the inks around says nothing of grey levels.
TEST(PrReadJPEG, IlSegmentoAdobeNonRovesciaIGrigi)
{
    const std::string byte = Jpeg().insert(2, "\xFF\xEE\0\x0E"
                                              "Adobe\0\x64\0\0\0\0\0"s);
    const Picture figura = prReadJPEG(byte, "figura");
    EXPECT_EQ(figura.Space, ColorSpace::Gray);
    EXPECT_FALSE(figura.InvertedCMYK);
    EXPECT_EQ(figura.Pixels, byte);
}

TEST(PrReadJPEG, OgniRifiutoDiceIlMotivo)
{
    EXPECT_EQ(Motivo(prReadJPEG, "BM"), "non è un'immagine JPEG");
    EXPECT_EQ(Motivo(prReadJPEG, "\xFF\xD8\xFF\xD9"), "il file JPEG non contiene immagini");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 2, "x")), "il file JPEG è danneggiato");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 5, "\1")), "il file JPEG è danneggiato");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 3, "\xC3")),
              "il file JPEG è di un tipo (senza perdita, aritmetico o gerarchico) che il PDF non "
              "ammette");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 6, "\x0C")),
              "il file JPEG non ha 8 bit per campione");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 8, "\0"s)),
              "il file JPEG non dichiara le dimensioni prima dei dati");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 10, "\0"s)),
              "il file JPEG non dichiara le dimensioni prima dei dati");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 3, "\xFE")),
              "il file JPEG non dichiara le dimensioni prima dei dati");
    EXPECT_EQ(Motivo(prReadJPEG, Cambia(Jpeg(), 11, "\2")),
              "il file JPEG ha 2 componenti invece di 1, 3 o 4");
    EXPECT_EQ(Motivo(prReadJPEG, Jpeg().insert(15, Jpeg().substr(2, 13))),
              "il file JPEG dichiara due volte le dimensioni");
}

TEST(PrReadJPEG, LeMarcheDeiFotogrammi)
{
    const std::string tipo = "il file JPEG è di un tipo (senza perdita, aritmetico o gerarchico) "
                             "che il PDF non ammette";
    const std::string nessuno = "il file JPEG non dichiara le dimensioni prima dei dati";
    for (const int marca : {0xC0, 0xC1, 0xC2})
        EXPECT_EQ(Motivo(prReadJPEG, Jpeg(marca, 1)), "letta");
    for (const int marca : {0xC3, 0xC5, 0xC6, 0xC7, 0xC9, 0xCA, 0xCB, 0xCD, 0xCE, 0xCF}) {
        EXPECT_EQ(Motivo(prReadJPEG, Jpeg(marca, 1)), tipo) << marca;
    }
    for (const int marca : {0xBF, 0xC4, 0xC8, 0xCC, 0xDB}) { // no frames
        EXPECT_EQ(Motivo(prReadJPEG, Jpeg(marca, 1)), nessuno) << marca;
    }
}

TEST(PrReadJPEG, LeMarcheSenzaLunghezza)
{
    for (const char* marca : {"\xFF\x01", "\xFF\xD0", "\xFF\xD7", "\xFF\xD8"}) {
        EXPECT_EQ(Motivo(prReadJPEG, Jpeg(0xC0, 1, marca)), "letta");
    }
    for (const char* marca : {"\xFF\x02", "\xFF\xCF"}) { // these have one
        EXPECT_NE(Motivo(prReadJPEG, Jpeg(0xC0, 1, marca)), "letta");
    }
    EXPECT_EQ(Motivo(prReadJPEG, Jpeg(0xC0, 1, "\xFF\xD9")), "il file JPEG non contiene immagini");
    EXPECT_EQ(Motivo(prReadJPEG, Jpeg(0xC0, 1, "\xFF\xFE\0\2"s)), "letta"); // an empty one
    EXPECT_EQ(Motivo(prReadJPEG, Jpeg(0xC0, 1, "\xFF\xFE\0\1"s)), "il file JPEG è danneggiato");
}

TEST(PrReadJPEG, IlSegmentoAdobeRovesciaQuattroInchiostri)
{
    const auto rovesciata = [](int componenti, const std::string& segmento) {
        return prReadJPEG(Jpeg(0xC0, componenti, segmento), "figura").InvertedCMYK;
    };
    const std::string adobe = "\xFF\xEE\0\x0E"
                              "Adobe\0\x64\0\0\0\0\0"s;
    EXPECT_TRUE(rovesciata(4, adobe));
    EXPECT_FALSE(rovesciata(4, ""));
    EXPECT_FALSE(rovesciata(3, adobe));
    std::string altro = adobe;
    altro[8] = 'a';
    EXPECT_FALSE(rovesciata(4, altro));
    EXPECT_TRUE(rovesciata(4, adobe + altro)); // once said it holds
    std::string corto = adobe.substr(0, adobe.size() - 1);
    corto[3] = 13;
    EXPECT_FALSE(rovesciata(4, corto));
    std::string lungo = adobe + "x";
    lungo[3] = 15;
    EXPECT_TRUE(rovesciata(4, lungo));
    std::string app13 = adobe;
    app13[1] = '\xED';
    EXPECT_FALSE(rovesciata(4, app13));
}

TEST(PrReadJPEG, UnoTreOQuattroComponenti)
{
    for (const int componenti : {1, 3, 4}) {
        EXPECT_EQ(prReadJPEG(Jpeg(0xC2, componenti), "figura").BitsPerPixel, 8 * componenti);
    }
    for (const int componenti : {0, 2, 5}) {
        EXPECT_EQ(Motivo(prReadJPEG, Jpeg(0xC2, componenti)), "il file JPEG ha " +
                                                                  std::to_string(componenti) +
                                                                  " componenti invece di 1, 3 o 4");
    }
}
