// The character maps of TrueType fonts, for TrueTypeFile.cpp.
#pragma once

#include "ByteReader.h"

#include <array>
#include <cstdint>

namespace pdf {

// Which glyph each code shows; 0 is the sign for missing glyphs.
struct CharMap
{
    std::array<std::uint32_t, 256> Glyphs{};
    bool Symbolic = false; // codes are the font's own, not Windows-1252
};

// Reads the table "cmap". Error: table.Fail() when it holds no map that can be read, or one that
// points outside.
CharMap prReadCharMap(const ByteReader& table);

} // namespace pdf
