// The picture readers at their limits: the last value that is taken and the first that is not.

#include "BmpFile.h"
#include "ErroreRuntime.h"
#include "GifFile.h"
#include "JpegFile.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

using namespace pdf;
using namespace std::string_literals;

namespace {

const std::string TroppiPixel = "le dimensioni dichiarate superano quanto il file può contenere";
const std::string PochiDati = "le dimensioni dichiarate superano quanto il file contiene";
const std::string Finito = "il file finisce prima del previsto";
const std::string PixelMancanti = "i dati dell'immagine finiscono prima dell'ultimo pixel";

template <typename Lettore>
std::string Motivo(Lettore leggi, const std::string& byte)
{
    try {
        leggi(byte, "figura");
    } catch (const ErroreRuntime& errore) {
        return errore.Motivo();
    }
    return "letta";
}

std::string Piccoli(std::uint64_t numero, int byte)
{
    std::string testo;
    for (; byte > 0; --byte, numero >>= 8) testo.push_back(static_cast<char>(numero));
    return testo;
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

// A GIF with so many pixels and these data in sub-blocks.
std::string Gif(unsigned larga, unsigned alta, int bit, const std::string& dati)
{
    std::string byte = "GIF89a" + Piccoli(larga, 2) + Piccoli(alta, 2) + "\xF7\0\0"s;
    byte += std::string(768, 'c') + "," + Piccoli(0, 4) + Piccoli(larga, 2) + Piccoli(alta, 2) +
            "\0"s + Piccoli(static_cast<std::uint64_t>(bit), 1);
    for (std::size_t da = 0; da < dati.size(); da += 255) {
        const std::string blocco = dati.substr(da, 255);
        byte += Piccoli(blocco.size(), 1) + blocco;
    }
    return byte + "\0;"s;
}

// Codes of 8-bit pixels, each of the width that it has at its place since the last clear.
class Codici
{
public:
    void Metti(unsigned codice)
    {
        m_bit |= std::uint64_t{codice} << m_quanti;
        m_quanti += m_larga;
        for (; m_quanti >= 8; m_quanti -= 8, m_bit >>= 8)
            m_dati.push_back(static_cast<char>(m_bit));
        if (codice == 256) {
            m_larga = 9;
            m_prossima = 257;
        } else if (m_prossima < 4096) {
            ++m_prossima; // 258 after the first code, which adds no entry yet
            if (m_prossima == 1U << m_larga && m_larga < 12) ++m_larga;
        }
    }

    std::string Dati() const { return m_dati + static_cast<char>(m_bit); }

private:
    std::string m_dati;
    std::uint64_t m_bit = 0;
    unsigned m_quanti = 0;
    unsigned m_larga = 9;
    unsigned m_prossima = 257;
};

std::string Jpeg(int marca, int componenti, const std::string& prima = "")
{
    std::string byte = "\xFF\xD8" + prima + "\xFF" + Piccoli(static_cast<std::uint64_t>(marca), 1) +
                       "\0"s + Piccoli(static_cast<std::uint64_t>(8 + 3 * componenti), 1) +
                       "\x08\0\3\0\5"s + Piccoli(static_cast<std::uint64_t>(componenti), 1);
    for (int i = 0; i < componenti; ++i) byte += "\1\x11\0"s;
    return byte + "\xFF\xDA\0\2"s;
}

} // namespace

TEST(prReadBMP, LAltezzaMassimaSiProvaComeOgniAltra)
{
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1, 0x7FFFFFFF, 24, 0, "")), PochiDati);
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1, 0x80000001, 24, 0, "")), PochiDati); // from the top down
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1, 0x80000000, 24, 0, "")), "l'immagine è troppo alta");
}

TEST(prReadBMP, AllUltimaRigaPuoMancareSoloIlRiempimento)
{
    // Rows of 6 bytes, 8 apart.
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(2, 3, 24, 0, std::string(22, 'x'))), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(2, 3, 24, 0, std::string(21, 'x'))), PochiDati);
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(2, 3, 24, 0, std::string(5, 'x'))), PochiDati);
}

TEST(prReadBMP, PixelSempreAmmessiInUnaCompressa)
{
    const std::string fine = "\0\1"s;
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(1 << 11, 1 << 11, 8, 1, fine)), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap((1 << 22) + 1, 1, 8, 1, fine)), TroppiPixel);
}

TEST(prReadBMP, PixelCheUnaCompressaPuoContenere)
{
    const std::string dati = "\0\1"s + std::string(16498, '\0'); // 16,500 bytes of 255 pixels
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(16500, 255, 8, 1, dati)), "letta");
    EXPECT_EQ(Motivo(prReadBMP, Bitmap(16500 * 255 + 1, 1, 8, 1, dati)), TroppiPixel);
}

TEST(prReadBMP, PixelMaiAmmessiQualunqueSiaIlFile)
{
    const std::string dati = "\0\1"s + std::string(2'200'000, '\0');
    EXPECT_EQ(Motivo(prReadBMP, Bitmap((1 << 28) + 1, 1, 8, 1, dati)), TroppiPixel);
}

TEST(prReadBMP, IDatiPossonoCominciareAllaFineNonOltre)
{
    std::string byte = Bitmap(1, 1, 8, 1, "");
    EXPECT_EQ(Motivo(prReadBMP, byte), Finito);
    byte[10] = static_cast<char>(byte[10] + 1);
    EXPECT_EQ(Motivo(prReadBMP, byte), "i dati dell'immagine non sono nel file");
}

TEST(prReadBMP, LeMaschereDaUnoATrentadueBit)
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

TEST(prReadBMP, CorseFuoriDalBordoNonDisegnano)
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

TEST(prReadGIF, PixelCheIDatiPossonoContenere)
{
    // 24 bytes of at most 2731 pixels.
    const std::string dati(24, '\0');
    EXPECT_EQ(Motivo(prReadGIF, Gif(2731, 24, 8, dati)), PixelMancanti);
    EXPECT_EQ(Motivo(prReadGIF, Gif(13109, 5, 8, dati)), TroppiPixel); // one more
}

TEST(prReadGIF, PixelMaiAmmessi)
{
    const std::string dati(100'000, '\0');
    EXPECT_EQ(Motivo(prReadGIF, Gif(16385, 16384, 8, dati)), TroppiPixel);
}

TEST(prReadGIF, UnaTavolaPienaResta)
{
    Codici codici;
    codici.Metti(256);
    std::string attesi;
    for (unsigned i = 0; i < 5000; ++i) {
        codici.Metti(i * 7 % 256);
        attesi.push_back(static_cast<char>(i * 7 % 256));
    }
    // Entry 258 + n is pixel n and the one behind it.
    for (const unsigned codice : {258U, 4094U, 4095U}) {
        codici.Metti(codice);
        attesi += attesi.substr(codice - 258, 2);
    }
    codici.Metti(256);
    codici.Metti(9);
    attesi += "\t";
    codici.Metti(257);
    const Picture figura =
        prReadGIF(Gif(1, static_cast<unsigned>(attesi.size()), 8, codici.Dati()), "figura");
    EXPECT_EQ(figura.Pixels, attesi);
}

TEST(prReadGIF, UnCodiceOltreLUltimoEImpossibile)
{
    const auto con = [](unsigned codice) {
        Codici codici;
        for (const unsigned uno : {256U, 1U, 2U, codice, 3U, 257U}) codici.Metti(uno);
        return Motivo(prReadGIF, Gif(1, 5, 8, codici.Dati()));
    };
    EXPECT_EQ(con(258), "letta");
    EXPECT_EQ(con(259), "letta"); // the one being made
    EXPECT_EQ(con(260), "i dati dell'immagine contengono un codice impossibile");
    Codici subito; // nothing is being made after a clear
    for (const unsigned uno : {256U, 258U, 1U}) subito.Metti(uno);
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 8, subito.Dati())),
              "i dati dell'immagine contengono un codice impossibile");
}

TEST(prReadGIF, ICodiciPossonoFinireColByte)
{
    Codici codici; // eight of nine bits are nine bytes
    for (const unsigned uno : {256U, 1U, 2U, 3U, 4U, 5U, 6U, 7U}) codici.Metti(uno);
    const std::string dati = codici.Dati().substr(0, 9);
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 7, 8, dati)), "letta");
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 7, 8, dati.substr(0, 8))), PixelMancanti);
}

TEST(prReadGIF, DopoIlBloccoVuotoNonCiSonoPixel)
{
    Codici codici;
    for (const unsigned uno : {256U, 5U, 6U, 257U}) codici.Metti(uno);
    const std::string dati = codici.Dati();
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 2, 8, dati)), "letta");
    std::string spezzata = Gif(1, 2, 8, dati.substr(0, 3));
    spezzata.pop_back();
    spezzata += Piccoli(dati.size() - 3, 1) + dati.substr(3) + "\0;"s;
    EXPECT_EQ(Motivo(prReadGIF, spezzata), PixelMancanti);
}

TEST(prReadGIF, DaUnoAOttoBit)
{
    const std::string no = "i pixel del file GIF hanno più di 8 bit o nessuno";
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 0, "\0"s)), no);
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 1, "\2"s)), "letta"); // a clear in two bits, then pixel 0
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 8, "\0\1\0"s)), "letta");
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 9, "\0"s)), no);
}

TEST(prReadJPEG, LeMarcheDeiFotogrammi)
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

TEST(prReadJPEG, LeMarcheSenzaLunghezza)
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

TEST(prReadJPEG, IlSegmentoAdobeRovesciaQuattroInchiostri)
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

TEST(prReadJPEG, UnoTreOQuattroComponenti)
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
