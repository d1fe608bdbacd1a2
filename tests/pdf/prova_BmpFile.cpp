// Windows bitmaps: what is refused and with which words, the last value that is taken and the first
// that is not. prova_figure.py compares pixels with those that other programs read.

#include "BmpFile.h"
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

const std::string TroppiPixel = "le dimensioni dichiarate superano quanto il file può contenere";
const std::string PochiDati = "le dimensioni dichiarate superano quanto il file contiene";
const std::string Finito = "il file finisce prima del previsto";

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

// A bitmap of 40 bytes of header with its pixels at 58, behind one colour, or 12 bytes of masks.
std::string Bitmap(std::uint32_t larga, std::uint32_t alta, int bit, int metodo,
                   const std::string& pixel)
{
    const std::size_t inizio = metodo == 3 ? 66 : 58;
    std::string byte = "BM" + Piccoli(0, 8) + Piccoli(inizio, 4) + Piccoli(40, 4) +
                       Piccoli(larga, 4) + Piccoli(alta, 4) + Piccoli(1, 2) +
                       Piccoli(static_cast<std::uint64_t>(bit), 2) +
                       Piccoli(static_cast<std::uint64_t>(metodo), 4) + Piccoli(0, 12) +
                       Piccoli(1, 4) + Piccoli(0, 4);
    byte.resize(inizio - (metodo == 3 ? 12 : 4));
    return byte + (metodo == 3 ? "" : "\1\2\3\0"s) + pixel;
}

} // namespace

TEST(PrReadBMP, DuePixelVeri)
{
    const Picture figura = prReadBMP(Bitmap(), "figura");
    EXPECT_EQ(figura.Width, 2);
    EXPECT_EQ(figura.Height, 1);
    EXPECT_EQ(figura.BitsPerPixel, 24);
    EXPECT_EQ(figura.Space, ColorSpace::RGB);
    EXPECT_EQ(figura.Pixels, "\xFF\xFF\0\0\0\xFF"s);
    EXPECT_EQ(figura.Palette, "");
}

TEST(PrReadBMP, DuePixelCompressi)
{
    const Picture figura = prReadBMP(BitmapCompressa(), "figura");
    EXPECT_EQ(figura.BitsPerPixel, 8);
    EXPECT_EQ(figura.Pixels, "\0\0"s);
    EXPECT_EQ(figura.Palette, "\3\2\1"s);
}

TEST(PrReadBMP, IlRiempimentoDellUltimaRigaPuoMancare)
{
    EXPECT_EQ(Motivo(prReadBMP, Bitmap().substr(0, 60)), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap().substr(0, 59)),
              "le dimensioni dichiarate superano quanto il file contiene");
}

TEST(PrReadBMP, OgniRifiutoDiceIlMotivo)
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

TEST(PrReadBMP, MaschereConBuchi)
{
    std::string byte = Cambia(Bitmap(), 28, "\x20\0\3"s);
    byte = Cambia(byte.substr(0, 54), 10, "\x42");
    const std::string maschere = "\0\0\xFF\0\0\xFF\0\0\x0F\0\0\0"s;
    EXPECT_EQ(Motivo(prReadBMP, byte + maschere + "\0\0\0\0\0\0\0\0"s), "letta");
    EXPECT_EQ(Motivo(prReadBMP, byte + Cambia(maschere, 8, "\x0D") + "\0\0\0\0\0\0\0\0"s),
              "una maschera di colore della bitmap ha dei buchi");
}

TEST(PrReadBMP, ICodiciCheMancanoONonVannoDAccordo)
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

TEST(PrReadBMP, LAltezzaMassimaSiProvaComeOgniAltra)
{
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1, 0x7FFFFFFF, 24, 0, "")), PochiDati);
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1, 0x80000001, 24, 0, "")), PochiDati); // from the top down
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1, 0x80000000, 24, 0, "")), "l'immagine è troppo alta");
}

TEST(PrReadBMP, AllUltimaRigaPuoMancareSoloIlRiempimento)
{
    // Rows of 6 bytes, 8 apart.
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(2, 3, 24, 0, std::string(22, 'x'))), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(2, 3, 24, 0, std::string(21, 'x'))), PochiDati);
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(2, 3, 24, 0, std::string(5, 'x'))), PochiDati);
}

TEST(PrReadBMP, PixelSempreAmmessiInUnaCompressa)
{
    const std::string fine = "\0\1"s;
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1 << 11, 1 << 11, 8, 1, fine)), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap((1 << 22) + 1, 1, 8, 1, fine)), TroppiPixel);
}

TEST(PrReadBMP, PixelCheUnaCompressaPuoContenere)
{
    const std::string dati = "\0\1"s + std::string(16498, '\0'); // 16,500 bytes of 255 pixels
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(16500, 255, 8, 1, dati)), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(16500 * 255 + 1, 1, 8, 1, dati)), TroppiPixel);
}

TEST(PrReadBMP, PixelMaiAmmessiQualunqueSiaIlFile)
{
    const std::string dati = "\0\1"s + std::string(2'200'000, '\0');
    EXPECT_EQ(Motivo(prReadBMP, Bitmap((1 << 28) + 1, 1, 8, 1, dati)), TroppiPixel);
}

TEST(PrReadBMP, IDatiPossonoCominciareAllaFineNonOltre)
{
    std::string byte = Bitmap(1, 1, 8, 1, "");
    EXPECT_EQ(Motivo(prReadBMP, byte), Finito);
    byte[10] = static_cast<char>(byte[10] + 1);
    EXPECT_EQ(Motivo(prReadBMP, byte), "i dati dell'immagine non sono nel file");
}

TEST(PrReadBMP, LeMaschereDaUnoATrentadueBit)
{
    // Masks of 1, 5 and 26 bits; the pixel has every second bit.
    const std::string maschere = Piccoli(1, 4) + Piccoli(0x3E, 4) + Piccoli(0xFFFFFFC0, 4);
    const Picture figura = prReadBMP(
        Bitmap(1, 1, 32, 3, "").substr(0, 54) + maschere + Piccoli(0x55555555, 4), "figura");
    EXPECT_EQ(figura.Pixels, "\xFF\x52\x55"); // 1 of 1, 10 of 31, a third of all
    const std::string intera = Piccoli(0xFFFFFFFF, 4) + Piccoli(0, 4) + Piccoli(0x80000000, 4);
    const Picture estrema = prReadBMP(
        Bitmap(1, 1, 32, 3, "").substr(0, 54) + intera + Piccoli(0x80000000, 4), "figura");
    EXPECT_EQ(estrema.Pixels, "\x80\0\xFF"s);
}

TEST(PrReadBMP, CorseFuoriDalBordoNonDisegnano)
{
    // Two by two, and two runs of three; nothing is read behind the last row.
    const Picture figura = prReadBMP(Bitmap(2, 2, 8, 1, "\3\1\0\0\3\2\0\0"s), "figura");
    EXPECT_EQ(figura.BitsPerPixel, 8);
    EXPECT_EQ(figura.Pixels, "\2\2\1\1");
    // A jump beyond the last row, and pixels there.
    EXPECT_EQ(prReadBMP(Bitmap(2, 1, 8, 1, "\0\2\0\1\1\7\0\1"s), "figura").Pixels, "\0\0"s);
    EXPECT_EQ(prReadBMP(Bitmap(2, 1, 8, 1, "\0\2\2\0\1\7\0\1"s), "figura").Pixels, "\0\0"s);
    EXPECT_EQ(prReadBMP(Bitmap(2, 1, 8, 1, "\0\2\1\0\1\7\0\1"s), "figura").Pixels, "\0\7"s);
}
