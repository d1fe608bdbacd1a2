// GIF pictures: what is refused and with which words, the last value that is taken and the first
// that is not. prova_figure.py compares pixels with those that other programs read.

#include "GifFile.h"
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
const std::string PixelMancanti = "i dati dell'immagine finiscono prima dell'ultimo pixel";

std::string Gif()
{
    return "GIF89a\2\0\1\0\x80\0\0ABCDEF,\0\0\0\0\2\0\1\0\0\2\2\x44\x0A\0;"s; // pixels 0 and 1
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

} // namespace

TEST(PrReadGIF, DuePixel)
{
    const Picture figura = prReadGIF(Gif(), "figura");
    EXPECT_EQ(figura.Width, 2);
    EXPECT_EQ(figura.Height, 1);
    EXPECT_EQ(figura.BitsPerPixel, 1);
    EXPECT_EQ(figura.Pixels, "\x40");
    EXPECT_EQ(figura.Palette, "ABCDEF");
}

TEST(PrReadGIF, QuelCheSegueIPixelPuoMancare)
{
    EXPECT_EQ(Motivo(prReadGIF, Gif().substr(0, Gif().size() - 2)), "letta");
    EXPECT_EQ(Motivo(prReadGIF, Gif().substr(0, Gif().size() - 3)),
              "i dati dell'immagine finiscono prima dell'ultimo pixel");
}

TEST(PrReadGIF, OgniRifiutoDiceIlMotivo)
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

TEST(PrReadGIF, PixelCheIDatiPossonoContenere)
{
    // 24 bytes of at most 2731 pixels.
    const std::string dati(24, '\0');
    EXPECT_EQ(Motivo(prReadGIF, Gif(2731, 24, 8, dati)), PixelMancanti);
    EXPECT_EQ(Motivo(prReadGIF, Gif(13109, 5, 8, dati)), TroppiPixel); // one more
}

TEST(PrReadGIF, PixelMaiAmmessi)
{
    const std::string dati(100'000, '\0');
    EXPECT_EQ(Motivo(prReadGIF, Gif(16385, 16384, 8, dati)), TroppiPixel);
}

TEST(PrReadGIF, UnaTavolaPienaResta)
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

TEST(PrReadGIF, UnCodiceOltreLUltimoEImpossibile)
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

TEST(PrReadGIF, ICodiciPossonoFinireColByte)
{
    Codici codici; // eight of nine bits are nine bytes
    for (const unsigned uno : {256U, 1U, 2U, 3U, 4U, 5U, 6U, 7U}) codici.Metti(uno);
    const std::string dati = codici.Dati().substr(0, 9);
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 7, 8, dati)), "letta");
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 7, 8, dati.substr(0, 8))), PixelMancanti);
}

TEST(PrReadGIF, DopoIlBloccoVuotoNonCiSonoPixel)
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

TEST(PrReadGIF, DaUnoAOttoBit)
{
    const std::string no = "i pixel del file GIF hanno più di 8 bit o nessuno";
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 0, "\0"s)), no);
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 1, "\2"s)), "letta"); // a clear in two bits, then pixel 0
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 8, "\0\1\0"s)), "letta");
    EXPECT_EQ(Motivo(prReadGIF, Gif(1, 1, 9, "\0"s)), no);
}
