// Reads a picture file and writes what a reader of the PDF would see.
//
//   leggi_figura FILE
//
// First line: "width height bits space inverted palette-bytes". Then, for what is not a JPEG, red,
// green and blue of every pixel, three bytes each. A refusal: the line "errore: ..." and exit 1.

#include "BmpFile.h"
#include "ErroreRuntime.h"
#include "GifFile.h"
#include "JpegFile.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace {

std::string Leggi(const std::string& nome)
{
    std::ifstream file(nome, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool Finisce(const std::string& nome, std::string_view con)
{
    return nome.size() >= con.size() && nome.substr(nome.size() - con.size()) == con;
}

pdf::Picture Figura(const std::string& nome)
{
    if (Finisce(nome, ".bmp")) return pdf::prReadBMP(Leggi(nome), nome);
    if (Finisce(nome, ".gif")) return pdf::prReadGIF(Leggi(nome), nome);
    return pdf::prReadJPEG(Leggi(nome), nome);
}

// The index of one pixel, counted from the left end of its row.
std::size_t Indice(const pdf::Picture& figura, std::size_t riga, std::size_t x)
{
    const auto bit = static_cast<std::size_t>(figura.BitsPerPixel);
    const auto byte = static_cast<unsigned char>(figura.Pixels.at(riga + x * bit / 8));
    return byte >> (8 - bit - x * bit % 8) & ((1U << bit) - 1);
}

std::string Colori(const pdf::Picture& figura)
{
    if (figura.Space == pdf::ColorSpace::RGB) return figura.Pixels;
    const auto larga = static_cast<std::size_t>(figura.Width);
    const std::size_t riga = (larga * static_cast<std::size_t>(figura.BitsPerPixel) + 7) / 8;
    if (figura.Pixels.size() != riga * static_cast<std::size_t>(figura.Height)) return "?";
    std::string colori;
    for (std::size_t y = 0; y < static_cast<std::size_t>(figura.Height); ++y) {
        for (std::size_t x = 0; x < larga; ++x) {
            const std::size_t indice = Indice(figura, y * riga, x);
            for (std::size_t c = 0; c < 3; ++c) colori += figura.Palette.at(3 * indice + c);
        }
    }
    return colori;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    try {
        const pdf::Picture figura = Figura(argv[1]);
        std::printf("%d %d %d %d %d %zu\n", figura.Width, figura.Height, figura.BitsPerPixel,
                    static_cast<int>(figura.Space), figura.InvertedCMYK ? 1 : 0,
                    figura.Palette.size());
        const std::string byte = figura.IsJpeg ? "" : Colori(figura);
        std::fwrite(byte.data(), 1, byte.size(), stdout);
    } catch (const ErroreRuntime& errore) {
        std::printf("errore: %s\n", errore.what());
        return 1;
    }
    return 0;
}
