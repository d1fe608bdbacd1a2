// The run-length forms of Windows bitmaps, for BmpFile.cpp.
#pragma once

#include "ByteReader.h"

#include <string>

namespace pdf {

// Turns run-length data into width * height indices, top row first; what it skips is 0.
//
// data: begins with the first code; codes past the last row or the right edge paint nothing.
// bits: 4 or 8. Error: the one of data.Fail() when it ends before the picture does.
std::string prReadRle(const ByteReader& data, std::uint64_t width, std::uint64_t height, int bits);

} // namespace pdf
