// What the picture readers refuse and with which words. Pixels are compared in prova_figure.py.

#include "BmpFile.h"
#include "ErroreRuntime.h"
#include "GifFile.h"
#include "JpegFile.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

using namespace pdf;
using namespace std::string_literals;

namespace {

const std::string nomeFile = "figura";

template <typename Lettore>
std::string Motivo(Lettore leggi, const std::string& byte)
{
    try {
        leggi(byte, nomeFile);
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::ErroreInputOutput);
        EXPECT_EQ(errore.File(), nomeFile);
        return errore.Motivo();
    }
    return "letta";
}

std::string Cambia(std::string byte, std::size_t posto, const std::string& con)
{
    return byte.replace(posto, con.size(), con);
}

// Two pixels of 24 bits on one row, padded: yellow and blue.
std::string Bitmap()
{
    return "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0"                           // pixels at 54
           "\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\0\0\0\0"     // 2 x 1, 24 bits
           "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xFF\xFF\xFF\0\0\0\0"s; // and the two colours
}

// A row of two pixels, run-length coded in 8 bits with one colour.
std::string BitmapCompressa()
{
    std::string byte = Cambia(Bitmap().substr(0, 54), 28, "\x08\0\1"s);
    byte = Cambia(byte, 46, "\1"s);
    return Cambia(byte, 10, "\x3A"s) + "\1\2\3\0\2\0\0\1"s;
}

std::string Gif()
{
    return "GIF89a\2\0\1\0\x80\0\0ABCDEF,\0\0\0\0\2\0\1\0\0\2\2\x44\x0A\0;"s; // pixels 0 and 1
}

std::string Jpeg()
{
    return "\xFF\xD8\xFF\xC0\0\x0B\x08\0\3\0\5\1\1\x11\0\xFF\xDA\0\2"s; // grey, 5 x 3
}

} // namespace

TEST(prReadBMP, DuePixelVeri)
{
    const Picture figura = prReadBMP(Bitmap(), nomeFile);
    EXPECT_EQ(figura.Width, 2);
    EXPECT_EQ(figura.Height, 1);
    EXPECT_EQ(figura.BitsPerPixel, 24);
    EXPECT_EQ(figura.Space, ColorSpace::RGB);
    EXPECT_EQ(figura.Pixels, "\xFF\xFF\0\0\0\xFF"s);
    EXPECT_EQ(figura.Palette, "");
}

TEST(prReadBMP, DuePixelCompressi)
{
    const Picture figura = prReadBMP(BitmapCompressa(), nomeFile);
    EXPECT_EQ(figura.BitsPerPixel, 8);
    EXPECT_EQ(figura.Pixels, "\0\0"s);
    EXPECT_EQ(figura.Palette, "\3\2\1"s);
}

TEST(prReadBMP, IlRiempimentoDellUltimaRigaPuoMancare)
{
    EXPECT_EQ(Motivo(prReadBMP, Bitmap().substr(0, 60)), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap().substr(0, 59)),
              "le dimensioni dichiarate superano quanto il file contiene");
}

TEST(prReadBMP, OgniRifiutoDiceIlMotivo)
{
    EXPECT_EQ(Motivo(prReadBMP, ""), "il file finisce prima del previsto");
    EXPECT_EQ(Motivo(prReadBMP, "GIF89a"), "non è una bitmap di Windows");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(Bitmap(), 14, "\x40")),
              "bitmap con un'intestazione di 64 byte, che non si legge");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(Bitmap(), 18, "\0"s)), "l'immagine non ha pixel");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(Bitmap(), 21, "\xFF")),
              "la larghezza dell'immagine è negativa");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(Bitmap(), 22, "\0\0\0\x80"s)), "l'immagine è troppo alta");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(Bitmap(), 28, "\2")),
              "bitmap con 2 bit per pixel e compressione 0, che non si legge");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(Bitmap(), 30, "\4")),
              "bitmap con 24 bit per pixel e compressione 4, che non si legge");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(Bitmap(), 21, "\x7F")),
              "le dimensioni dichiarate superano quanto il file contiene");
}

TEST(prReadBMP, MaschereConBuchi)
{
    std::string byte = Cambia(Bitmap(), 28, "\x20\0\3"s);
    byte = Cambia(byte.substr(0, 54), 10, "\x42");
    const std::string maschere = "\0\0\xFF\0\0\xFF\0\0\x0F\0\0\0"s;
    EXPECT_EQ(Motivo(prReadBMP, byte + maschere + "\0\0\0\0\0\0\0\0"s), "letta");
    EXPECT_EQ(Motivo(prReadBMP, byte + Cambia(maschere, 8, "\x0D") + "\0\0\0\0\0\0\0\0"s),
              "una maschera di colore della bitmap ha dei buchi");
}

TEST(prReadBMP, ICodiciCheMancanoONonVannoDAccordo)
{
    const std::string byte = BitmapCompressa();
    EXPECT_EQ(Motivo(prReadBMP, byte.substr(0, byte.size() - 1)),
              "il file finisce prima del previsto");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(byte, 22, "\xFF\xFF\xFF\xFF")),
              "bitmap compressa con le righe dall'alto in basso");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(byte, 10, "\xFF")),
              "i dati dell'immagine non sono nel file");
    EXPECT_EQ(Motivo(prReadBMP, Cambia(byte, 18, "\0\0\x40\0\2\0"s)),
              "le dimensioni dichiarate superano quanto il file può contenere");
}

TEST(prReadGIF, DuePixel)
{
    const Picture figura = prReadGIF(Gif(), nomeFile);
    EXPECT_EQ(figura.Width, 2);
    EXPECT_EQ(figura.Height, 1);
    EXPECT_EQ(figura.BitsPerPixel, 1);
    EXPECT_EQ(figura.Pixels, "\x40");
    EXPECT_EQ(figura.Palette, "ABCDEF");
}

TEST(prReadGIF, QuelCheSegueIPixelPuoMancare)
{
    EXPECT_EQ(Motivo(prReadGIF, Gif().substr(0, Gif().size() - 2)), "letta");
    EXPECT_EQ(Motivo(prReadGIF, Gif().substr(0, Gif().size() - 3)),
              "i dati dell'immagine finiscono prima dell'ultimo pixel");
}

TEST(prReadGIF, OgniRifiutoDiceIlMotivo)
{
    EXPECT_EQ(Motivo(prReadGIF, "GIF88a"), "non è un'immagine GIF");
    EXPECT_EQ(Motivo(prReadGIF, Cambia(Gif(), 19, ";")), "il file GIF non contiene immagini");
    EXPECT_EQ(Motivo(prReadGIF, Cambia(Gif(), 19, "?")),
              "il file GIF contiene un blocco sconosciuto");
    EXPECT_EQ(Motivo(prReadGIF, Gif().erase(13, 6).replace(10, 1, "\0"s)),
              "il file GIF non ha una tavolozza");
    EXPECT_EQ(Motivo(prReadGIF, Cambia(Gif(), 24, "\0"s)), "l'immagine non ha pixel");
    EXPECT_EQ(Motivo(prReadGIF, Cambia(Gif(), 24, "\xFF\xFF\xFF\xFF")),
              "le dimensioni dichiarate superano quanto il file può contenere");
    EXPECT_EQ(Motivo(prReadGIF, Cambia(Gif(), 29, "\x09")),
              "i pixel del file GIF hanno più di 8 bit o nessuno");
    EXPECT_EQ(Motivo(prReadGIF, Cambia(Gif(), 31, "\x3C")), // a code that no table holds yet
              "i dati dell'immagine contengono un codice impossibile");
}

TEST(prReadJPEG, LeDimensioniEIByteIntatti)
{
    const Picture figura = prReadJPEG(Jpeg(), nomeFile);
    EXPECT_EQ(figura.Width, 5);
    EXPECT_EQ(figura.Height, 3);
    EXPECT_EQ(figura.BitsPerPixel, 8);
    EXPECT_EQ(figura.Space, ColorSpace::Gray);
    EXPECT_TRUE(figura.IsJpeg);
    EXPECT_EQ(figura.Pixels, Jpeg());
}

TEST(prReadJPEG, MarcheDaSoleEByteDiRiempimento)
{
    const std::string byte = Jpeg().insert(2, "\xFF\x01\xFF\xD0\xFF\xFF\xFF\xFE\0\3x"s);
    EXPECT_EQ(Motivo(prReadJPEG, byte), "letta");
}

// The segment that turns the inks around says nothing of grey levels.
TEST(prReadJPEG, IlSegmentoAdobeNonRovesciaIGrigi)
{
    const std::string byte = Jpeg().insert(2, "\xFF\xEE\0\x0E"
                                              "Adobe\0\x64\0\0\0\0\0"s);
    const Picture figura = prReadJPEG(byte, nomeFile);
    EXPECT_EQ(figura.Space, ColorSpace::Gray);
    EXPECT_FALSE(figura.InvertedCMYK);
    EXPECT_EQ(figura.Pixels, byte);
}

TEST(prReadJPEG, OgniRifiutoDiceIlMotivo)
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

TEST(prPackIndices, RigheInteroByteETavolozzaAllungata)
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

TEST(prPackIndices, RigheCheRiempionoIByteNonNeHannoDiPiu)
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

TEST(prPackIndices, QuantiBitVuoleIlPiuAlto)
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
