// A picture as the readers hand it to the writer, ready for an image object, which
// clsPDFCreator_Images.cpp writes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace pdf {

enum class ColorSpace : std::uint8_t
{
    Gray,
    RGB,
    CMYK,
    Indexed,
};

// Pixels lie from the top row down and from left to right, the most significant bit first; each
// row begins on a whole byte and the bits left over at its end are zero. That is the form which
// image objects want (ISO 32000-1, 8.9.5.2).
struct Picture
{
    std::int32_t Width = 0;        // pixels, at least 1
    std::int32_t Height = 0;       // pixels, at least 1
    std::int32_t BitsPerPixel = 0; // Indexed 1, 2, 4 or 8; Gray 8; RGB 24; CMYK 32
    ColorSpace Space = ColorSpace::RGB;
    bool InvertedCMYK = false; // 0 means full ink: needs /Decode [1 0 1 0 1 0 1 0]
    bool IsJpeg = false;
    std::string Pixels;  // of a JPEG: the file's own bytes
    std::string Palette; // Indexed: red, green, blue of each entry; no pixel lies outside
};

// What is wrong with pictures of every kind, as the user is told.
inline constexpr const char* NoPixels = "l'immagine non ha pixel";
inline constexpr const char* TooFewBytes =
    "le dimensioni dichiarate superano quanto il file può contenere";

// Packs palette indices of one byte each into the rows of a Picture.
//
// indices: Width * Height palette indices, top row first. Sets BitsPerPixel to the least of 1, 2,
// 4 and 8 that is at least bits and holds every index, Space to Indexed and Pixels; lengthens
// Palette with black up to the highest index that occurs.
void prPackIndices(Picture& picture, std::string indices, int bits);

} // namespace pdf
