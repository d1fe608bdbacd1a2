// What a document takes in from outside: files by name, pictures among them told apart by their
// names, and bytes, told apart by how they begin. Each kind of picture has a reader of its own:
// BmpFile.h, GifFile.h, JpegFile.h.
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

// By the first bytes.
ImageKind prImageKindOfData(std::string_view bytes);

// Error 6 for more than 1 GiB. what: named in errors, in the place of a file.
void prRequireInput(std::string_view bytes, const std::string& what);

// The picture in the file. Error 5 for a name of no known kind, those of prReadFile and of the
// kind's reader.
Picture prReadPicture(const std::string& fileName);

// The picture that the bytes are. Error 5 for those of no known kind, that of prRequireInput and
// those of the kind's reader.
Picture prReadPictureData(std::string_view bytes, const std::string& what);

} // namespace pdf
