// Runs a reader on bytes of unknown origin and judges what it lets through; prove_guasti and the
// fuzzers call it.
#include "Lettori.h"

#include "BmpFile.h"
#include "ErroreRuntime.h"
#include "GifFile.h"
#include "JpegFile.h"
#include "TrueTypeFile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace aiuti {

namespace {

std::size_t Lunghezza(const pdf::Picture& figura)
{
    const auto larga = static_cast<std::size_t>(figura.Width);
    const auto alta = static_cast<std::size_t>(figura.Height);
    return (larga * static_cast<std::size_t>(figura.BitsPerPixel) + 7) / 8 * alta;
}

int BitAttesi(const pdf::Picture& figura)
{
    switch (figura.Space) {
    case pdf::ColorSpace::Gray:
        return 8;
    case pdf::ColorSpace::RGB:
        return 24;
    case pdf::ColorSpace::CMYK:
        return 32;
    case pdf::ColorSpace::Indexed:
        break;
    }
    const int bit = figura.BitsPerPixel;
    return bit == 1 || bit == 2 || bit == 4 ? bit : 8;
}

// The highest index in the rows; bits left over at their end count, which must be zero.
std::size_t IndiceMassimo(const pdf::Picture& figura)
{
    unsigned massimo = 0;
    const auto bit = static_cast<unsigned>(figura.BitsPerPixel);
    for (const char c : figura.Pixels) {
        const unsigned byte = static_cast<unsigned char>(c);
        for (unsigned resto = 0; resto < 8; resto += bit) {
            massimo = std::max(massimo, byte >> resto & ((1U << bit) - 1));
        }
    }
    return massimo;
}

std::string DifettoTavolozza(const pdf::Picture& figura)
{
    if (figura.Space != pdf::ColorSpace::Indexed) {
        return figura.Palette.empty() ? "" : "a palette without indices";
    }
    const std::size_t voci = figura.Palette.size() / 3;
    if (figura.Palette.size() % 3 != 0 || voci == 0) return "a palette of broken entries";
    if (voci > std::size_t{1} << figura.BitsPerPixel) return "a palette of too many entries";
    return IndiceMassimo(figura) < voci ? "" : "an index outside the palette";
}

std::string Difetto(const pdf::Picture& figura, std::string_view byte)
{
    if (figura.Width < 1 || figura.Height < 1) return "a picture without pixels";
    if (figura.BitsPerPixel != BitAttesi(figura)) return "bits that do not fit the colours";
    if (figura.InvertedCMYK && figura.Space != pdf::ColorSpace::CMYK) return "inverted, not CMYK";
    if (figura.IsJpeg) return figura.Pixels == byte ? "" : "a JPEG that was changed";
    if (figura.Pixels.size() != Lunghezza(figura)) return "rows of a wrong length";
    return DifettoTavolozza(figura);
}

std::string Difetto(const pdf::TrueTypeFont& font)
{
    const auto stona = [](char c) { return c <= ' ' || c > '~' || c == '#' || c == '/'; };
    if (font.Name.empty() || font.Name.size() > 127) return "a name too short or too long";
    if (std::any_of(font.Name.begin(), font.Name.end(), stona)) return "a name that breaks out";
    if (font.Descent > 0) return "a descent above the base line";
    if (font.Descriptor.rfind("/Flags ", 0) != 0) return "a descriptor without flags";
    const auto buona = [](float larghezza) {
        return larghezza >= 0 && larghezza == std::floor(larghezza);
    };
    if (!std::all_of(font.Widths.begin(), font.Widths.end(), buona)) return "a width not whole";
    return "";
}

std::string Leggi(std::string_view byte, const std::string& nome)
{
    const std::string tipo = nome.substr(std::min(nome.size(), nome.rfind('.')));
    if (tipo == ".bmp") return Difetto(pdf::prReadBMP(byte, nome), byte);
    if (tipo == ".gif") return Difetto(pdf::prReadGIF(byte, nome), byte);
    if (tipo == ".jpg") return Difetto(pdf::prReadJPEG(std::string(byte), nome), byte);
    if (tipo == ".ttf") return Difetto(pdf::prReadTrueType(byte, nome));
    return "no reader for " + nome;
}

} // namespace

std::string DifettoDiLettura(std::string_view byte, const std::string& nome, bool& accettato)
{
    try {
        accettato = true;
        return Leggi(byte, nome);
    } catch (const ErroreRuntime& errore) {
        accettato = false;
        if (errore.Motivo().empty()) return "a refusal without a reason";
        return errore.File() == nome ? "" : "a refusal without the file";
    }
}

} // namespace aiuti
