// GIF files, read into pictures (Picture.h). InputFile.h chooses among the readers.
#pragma once

#include "Picture.h"

#include <string>
#include <string_view>

namespace pdf {

// Reads the first frame of a GIF87a or GIF89a file as an Indexed picture. bytes: the whole file;
// fileName: named in errors.
//
// The picture is the frame's own rectangle, interlaced or not, with its local palette if it has
// one and the global one otherwise; transparent pixels keep their palette colour. What follows
// the frame's pixels is not looked at. An index without a colour becomes black.
//
// Error: ErroreInputOutput with reason and file for anything else, data that end before the last
// pixel, and a size that the file cannot hold (2731 pixels per byte is the most that its
// compression can give, and 268 million is the limit); nothing of that size is taken before.
Picture prReadGIF(std::string_view bytes, const std::string& fileName);

} // namespace pdf
