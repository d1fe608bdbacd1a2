// Reads whole files and hands pictures to the reader of their kind; see InputFile.h.

#include "InputFile.h"

#include "BmpFile.h"
#include "ErroreRuntime.h"
#include "GifFile.h"
#include "JpegFile.h"
#include "LetterCase.h"
#include "LetturaFile.h"

namespace pdf {

namespace {

// No picture or font of a document comes near it.
constexpr std::size_t LargestInput = std::size_t{1} << 30;

} // namespace

std::string prReadFile(const std::string& fileName)
{
    return LeggiFile(fileName, LargestInput);
}

ImageKind prImageKind(std::string_view fileName)
{
    const auto point = fileName.rfind('.');
    if (point == std::string_view::npos) return ImageKind::Unknown;
    const std::string_view extension = fileName.substr(point);
    const auto is = [extension](std::string_view known) {
        return prSameInUpperCase(extension, known);
    };
    if (is(".BMP")) return ImageKind::Bmp;
    if (is(".GIF")) return ImageKind::Gif;
    if (is(".JPG") || is(".JPEG")) return ImageKind::Jpeg;
    return ImageKind::Unknown;
}

Picture prReadPicture(const std::string& fileName)
{
    switch (prImageKind(fileName)) {
    case ImageKind::Bmp:
        return prReadBMP(prReadFile(fileName), fileName);
    case ImageKind::Gif:
        return prReadGIF(prReadFile(fileName), fileName);
    case ImageKind::Jpeg:
        return prReadJPEG(prReadFile(fileName), fileName);
    default:
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida,
                            "non è un'immagine .BMP, .GIF, .JPG o .JPEG", fileName);
    }
}

} // namespace pdf
