// The files that a document takes in by name: read whole, pictures told apart by their names. Each
// kind of picture has a reader of its own: BmpFile.h, GifFile.h, JpegFile.h.
#pragma once

#include "Picture.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace pdf {

enum class ImageKind : std::uint8_t
{
    Bmp,
    Gif,
    Jpeg,
    Unknown,
};

// All bytes of the file. The system's error with file and reason when it cannot be read, and an
// error for one of more than 1 GiB.
std::string prReadFile(const std::string& fileName);

// By the extension of the name, in upper or lower case.
ImageKind prImageKind(std::string_view fileName);

// The picture in the file. Error 5 for a name of no known kind, those of prReadFile and of the
// kind's reader.
Picture prReadPicture(const std::string& fileName);

} // namespace pdf
