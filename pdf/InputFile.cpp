// Reads whole files and hands pictures to the reader of their kind; InputFile.h says which.

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

ImageKind prImageKindOfData(std::string_view bytes)
{
    if (bytes.starts_with("BM")) return ImageKind::Bmp;
    if (bytes.starts_with("GIF8")) return ImageKind::Gif;
    if (bytes.starts_with("\xFF\xD8")) return ImageKind::Jpeg;
    return ImageKind::Unknown;
}

void prRequireInput(std::string_view bytes, const std::string& what)
{
    if (bytes.size() <= LargestInput) return;
    throw ErroreRuntime(NumeroErrore::Overflow, "è troppo grande", what);
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

Picture prReadPictureData(std::string_view bytes, const std::string& what)
{
    prRequireInput(bytes, what);
    switch (prImageKindOfData(bytes)) {
    case ImageKind::Bmp:
        return prReadBMP(bytes, what);
    case ImageKind::Gif:
        return prReadGIF(bytes, what);
    case ImageKind::Jpeg:
        return prReadJPEG(std::string(bytes), what);
    default:
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida, "non è un'immagine BMP, GIF o JPEG",
                            what);
    }
}

} // namespace pdf
