// Windows bitmaps, read into pictures (Picture.h). InputFile.h chooses among the readers.
#pragma once

#include "Picture.h"

#include <string>
#include <string_view>

namespace pdf {

// Reads a Windows bitmap. bytes: the whole file; fileName: named in errors.
//
// 1, 4 and 8 bits per pixel become Indexed pictures, 16, 24 and 32 bits RGB ones of 24 (a fourth
// channel is dropped). Rows from the bottom up or from the top down; uncompressed, RLE4, RLE8 or
// bit fields, whose masks may take any run of bits; info headers of 12, 40, 108 and 124 bytes.
// Pixels that run-length data skips have index 0.
//
// Error: ErroreInputOutput with reason and file for anything else, and when the file cannot hold
// the declared size; nothing of that size is taken before. Run-length data may stand for any
// picture of up to 4 million pixels and for 255 pixels per byte above; never more than 268 million.
Picture prReadBMP(std::string_view bytes, const std::string& fileName);

} // namespace pdf
