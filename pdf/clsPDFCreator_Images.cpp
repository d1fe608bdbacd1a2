// Images: pictures read by InputFile.cpp, encoded by Encoders.cpp, written as image XObjects (ISO
// 32000-1, 8.9).

#include "Digest.h"
#include "Encoders.h"
#include "InputFile.h"
#include "clsPDFCreator_State.h"

#include <new>
#include <utility>

namespace {

enum : std::int32_t
{
    RunLength = 1,
    LZW = 2,
    ASCII85 = 4,
    ASCIIHex = 8,
};

std::string_view SpaceName(pdf::ColorSpace space)
{
    switch (space) {
    case pdf::ColorSpace::Gray:
        return "DeviceGray";
    case pdf::ColorSpace::CMYK:
        return "DeviceCMYK";
    default:
        return "DeviceRGB";
    }
}

// As an entry, a palette in hexadecimal digits within it (ISO 32000-1, 8.6.6.3).
std::string SpaceOf(const pdf::Picture& picture)
{
    if (picture.Space != pdf::ColorSpace::Indexed)
        return "/" + std::string(SpaceName(picture.Space));
    return "[/Indexed /DeviceRGB " + std::to_string(picture.Palette.size() / 3 - 1) + " <" +
           pdf::prToASCIIHex(picture.Palette) + "]"; // which ends in ">"
}

// The data of a stream and the names of what decodes them, the first to be applied in front.
struct Encoded
{
    std::string Bytes;
    std::string Filters;
    pdf::ByteRows Rows = pdf::ByteRows::None;

    void Apply(bool wanted, std::string (*encoder)(std::string_view), std::string_view name)
    {
        if (!wanted) return;
        Bytes = encoder(Bytes);
        Filters.insert(0, name);
    }
};

Encoded Encode(std::string bytes, std::string_view ownFilter, std::int32_t filters)
{
    const auto asked = [filters](std::int32_t bit) { return (filters & bit) != 0; };
    Encoded encoded{std::move(bytes), std::string(ownFilter)};
    const bool raw = ownFilter.empty();
    encoded.Apply(raw && asked(RunLength), pdf::prRunLengthEncode, "/RunLengthDecode ");
    encoded.Apply(raw && asked(LZW), pdf::prLZWEncode, "/LZWDecode ");
    encoded.Apply(asked(ASCII85), pdf::prToASCII85, "/ASCII85Decode ");
    encoded.Apply(asked(ASCIIHex), pdf::prToASCIIHex, "/ASCIIHexDecode ");
    if (asked(ASCII85)) encoded.Rows = pdf::ByteRows::LettersAndPair;
    if (asked(ASCIIHex)) encoded.Rows = pdf::ByteRows::Letters; // applied last
    if (!encoded.Filters.empty()) encoded.Filters = "/Filter [\r" + encoded.Filters + "] ";
    return encoded;
}

// Data with filters of their own stand as they are, all others are compressed as the document is.
std::string_view FilterOf(const pdf::Objects& out, const Encoded& encoded)
{
    return encoded.Filters.empty() ? out.prContentFilter() : encoded.Filters;
}

void WriteStream(pdf::Objects& out, const Encoded& encoded)
{
    if (encoded.Filters.empty()) out.prBeginContent();
    else out.prBeginStream();
    out.prWriteBytes(encoded.Bytes, encoded.Rows);
    out.prEndStream();
}

} // namespace

void clsPDFCreator::FilterDecode(std::int32_t Filters)
{
    m->Out.prRequireIdle();
    m->ImageFilters = Filters;
}

void clsPDFCreator::DrawImage(const std::string& FileName, float X, float Y, float Width,
                              float Height, std::string_view Key)
{
    m->prRequire(X, Y, Width, Height);
    m->prDrawImage(
        m->prImageOf(FileName, Key, [&FileName] { return pdf::prReadPicture(FileName); }), X, Y,
        Width, Height);
}

void clsPDFCreator::DrawImageData(std::string_view Bytes, float X, float Y, float Width,
                                  float Height, std::string_view Key)
{
    m->prRequire(X, Y, Width, Height);
    const auto read = [Bytes, Key] {
        const std::string name = Key.empty() ? "" : " \"" + std::string(Key) + "\"";
        return pdf::prReadPictureData(Bytes, "immagine" + name);
    };
    const std::string key = Key.empty() ? State::ContentKey + pdf::prDigest(Bytes)
                                        : State::CallerKey + std::string(Key);
    m->prDrawImage(m->prImageOf("", key, read), X, Y, Width, Height);
}

std::string clsPDFCreator::prToASCII85(std::string_view Bytes)
{
    return pdf::prToASCII85(Bytes);
}

void clsPDFCreator::State::prDrawImage(std::int32_t image, double x, double y, double width,
                                       double height)
try {
    if (Conforming) prUseImage(image);
    // Two spaces: the origin at the rectangle's lower left corner, then the unit square of the
    // image stretched upward over the rectangle.
    prOpenSpace(x, y + height);
    prOpenSpace(0, 0, prInPoints(width), -prInPoints(height));
    Out.prPrint("/_IMG_", image, " Do");
    Out.prWriteRaw("Q");
    Out.prWriteRaw("Q");
    prSetCurrent(prInPoints(x), prInPoints(y));
} catch (const std::bad_alloc&) {
    Out.prGiveUp();
}

// The number of the picture, read now unless the same file and key were drawn before.
std::int32_t clsPDFCreator::State::prImageOf(const std::string& fileName, std::string_view key,
                                             const std::function<pdf::Picture()>& read)
{
    std::int32_t number = 0;
    for (const Image& image : Images) {
        ++number;
        if (image.FileName == fileName && image.Key == key) return number;
    }
    auto picture = read();
    const bool indexed = picture.Space == pdf::ColorSpace::Indexed;
    if (!Conforming) prKeepObjects(ObjectsOfStream + (indexed ? 1 : 0)); // its palette
    Images.push_back({fileName, std::string(key), std::move(picture)});
    return number + 1;
}

// In the drawing in progress, under a number that it gets with its first use.
void clsPDFCreator::State::prUseImage(std::int32_t number)
{
    Image& image = Images[static_cast<std::size_t>(number) - 1];
    if (image.UsedIn == DrawingNumber) return;
    if (image.Object == 0) image.Object = prReserve(1);
    Used.XObjects.append("/_IMG_" + std::to_string(number) + " " + std::to_string(image.Object) +
                         " 0 R ");
    image.UsedIn = DrawingNumber;
}

void clsPDFCreator::State::prWriteImages()
{
    std::int32_t number = 0;
    for (Image& image : Images) {
        if (Conforming) {
            prWriteConformingImage(image);
            continue;
        }
        const std::int32_t object = Out.prInitObj(0);
        ImageResources.append("/_IMG_" + std::to_string(++number) + " ");
        ImageResources.append(std::to_string(object) + " 0 R \r");
        prWriteImage(number, object, image.Content);
        image.Content = {}; // as large as all the rest together, and done with
    }
}

void clsPDFCreator::State::prWriteImage(std::int32_t number, std::int32_t object,
                                        pdf::Picture& picture)
{
    const bool indexed = picture.Space == pdf::ColorSpace::Indexed;
    const auto encoded =
        Encode(std::move(picture.Pixels), picture.IsJpeg ? "/DCTDecode " : "", ImageFilters);
    Out.prPrint("<< /Type /XObject /Subtype /Image /Name /_IMG_", number, " /Width ", picture.Width,
                " /Height ", picture.Height, " ", FilterOf(Out, encoded), " ");
    if (indexed) {
        const auto entries = static_cast<std::int32_t>(picture.Palette.size() / 3);
        Out.prPrint("/BitsPerComponent ", picture.BitsPerPixel,
                    " /ColorSpace [/Indexed /DeviceRGB ", entries - 1, " ", object + 2,
                    " 0 R] /Length ", object + 1, " 0 R");
    } else {
        Out.prPrint("/BitsPerComponent 8 /ColorSpace /", SpaceName(picture.Space), " /Length ",
                    object + 1, " 0 R");
    }
    if (picture.InvertedCMYK) Out.prWriteRaw("/Decode [1 0 1 0 1 0 1 0]");
    Out.prWriteRaw(">>");
    WriteStream(Out, encoded);
    Out.prWriteStreamLength();
    if (indexed) prWritePalette(std::move(picture.Palette));
}

void clsPDFCreator::State::prWritePalette(std::string palette)
{
    Out.prInitObj(0);
    auto encoded = Encode(std::move(palette), "", ImageFilters);
    const std::string_view filter = FilterOf(Out, encoded);
    const bool deflated = encoded.Filters.empty() && !filter.empty();
    if (deflated) encoded.Bytes = Out.prDeflated(std::move(encoded.Bytes));
    const std::size_t length = deflated
                                   ? encoded.Bytes.size()
                                   : pdf::Objects::prLengthOfBytes(encoded.Bytes, encoded.Rows);
    Out.prPrint("<< ", filter, " /Length ", static_cast<std::int32_t>(length), " >>");
    Out.prBeginStream();
    if (deflated) Out.prWriteDeflated(encoded.Bytes);
    else Out.prWriteBytes(encoded.Bytes, encoded.Rows);
    Out.prEndStream();
}

// Its length is known before, because all of it is in memory; a palette stands in the colour space.
void clsPDFCreator::State::prWriteConformingImage(Image& image)
{
    auto picture = std::exchange(image.Content, {});
    if (image.Object == 0) return; // read for an operation that was refused
    auto encoded =
        Encode(std::move(picture.Pixels), picture.IsJpeg ? "/DCTDecode " : "", ImageFilters);
    const std::string_view filter = FilterOf(Out, encoded);
    if (encoded.Filters.empty()) encoded.Bytes = Out.prDeflated(std::move(encoded.Bytes));
    Out.prInitObj(image.Object);
    Out.prPrint("<< /Type /XObject /Subtype /Image /Width ", picture.Width, " /Height ",
                picture.Height, " /BitsPerComponent ",
                picture.Space == pdf::ColorSpace::Indexed ? picture.BitsPerPixel : 8,
                " /ColorSpace ", SpaceOf(picture),
                picture.InvertedCMYK ? " /Decode [1 0 1 0 1 0 1 0] " : " ", filter, "/Length ",
                static_cast<std::int32_t>(encoded.Bytes.size()), " >>");
    Out.prBeginStream();
    Out.prPrint(encoded.Bytes);
    Out.prEndStream();
}
