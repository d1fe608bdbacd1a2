// Packs the palette indices that BmpFile.cpp and GifFile.cpp read.

#include "Picture.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace pdf {

namespace {

void PackRow(std::string& pixels, std::string_view row, int bits)
{
    unsigned byte = 0;
    int used = 0;
    for (const char index : row) {
        byte = byte << bits | static_cast<unsigned char>(index);
        used += bits;
        if (used < 8) continue;
        pixels.push_back(static_cast<char>(byte));
        byte = 0;
        used = 0;
    }
    if (used > 0) pixels.push_back(static_cast<char>(byte << (8 - used)));
}

unsigned Highest(std::string_view indices)
{
    unsigned highest = 0;
    for (const char index : indices) {
        highest = std::max<unsigned>(highest, static_cast<unsigned char>(index));
    }
    return highest;
}

} // namespace

void prPackIndices(Picture& picture, std::string indices, int bits)
{
    const unsigned highest = Highest(indices);
    int packed = 1;
    while (packed < 8 && (packed < bits || highest >> packed != 0)) packed *= 2;
    picture.Space = ColorSpace::Indexed;
    picture.BitsPerPixel = packed;
    picture.Palette.resize(std::max<std::size_t>(picture.Palette.size(), 3 * (highest + 1UL)));
    if (packed == 8) {
        picture.Pixels = std::move(indices);
        return;
    }
    const auto width = static_cast<std::size_t>(picture.Width);
    picture.Pixels.clear();
    picture.Pixels.reserve((width * static_cast<unsigned>(packed) + 7) / 8 *
                           static_cast<std::size_t>(picture.Height));
    for (std::string_view rows = indices; !rows.empty(); rows.remove_prefix(width)) {
        PackRow(picture.Pixels, rows.substr(0, width), packed);
    }
}

} // namespace pdf
