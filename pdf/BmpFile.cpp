// Reads a Windows bitmap: its header, its palette, its pixels. Compressed ones go on to
// BmpFile_Rle.cpp; Picture.h says what comes of them.

#include "BmpFile.h"

#include "BmpFile_Rle.h"
#include "ByteReader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace pdf {

namespace {

constexpr std::uint32_t FileHeaderSize = 14;
constexpr std::uint32_t CoreHeaderSize = 12; // the oldest: 16-bit sizes, palette of three bytes
constexpr std::uint64_t MaskOffset = 54;     // behind a header of 40 bytes, inside the longer ones

constexpr std::uint64_t PixelsAlwaysAllowed = std::uint64_t{1} << 22;
constexpr std::uint64_t PixelsNeverExceeded = std::uint64_t{1} << 28;
constexpr std::uint64_t PixelsPerRleByte = 255;

enum Compression : std::uint32_t
{
    Uncompressed = 0,
    Rle8 = 1,
    Rle4 = 2,
    BitFields = 3,
};

struct BmpHeader
{
    std::uint32_t Size = 0;
    std::uint64_t Width = 0;
    std::uint64_t Height = 0;
    bool TopDown = false;
    int Bits = 0;
    std::uint32_t Method = Uncompressed;
    std::uint32_t Colors = 0; // palette entries, 0: as many as the bits can name
    std::uint32_t PixelOffset = 0;
};

void ReadCoreHeader(const ByteReader& file, BmpHeader& header)
{
    header.Width = file.Little16(18);
    header.Height = file.Little16(20);
    header.Bits = file.Little16(24);
}

void ReadInfoHeader(const ByteReader& file, BmpHeader& header)
{
    const auto width = static_cast<std::int32_t>(file.Little32(18));
    const auto height = static_cast<std::int32_t>(file.Little32(22));
    if (width < 0) file.Fail("la larghezza dell'immagine è negativa");
    header.Width = static_cast<std::uint64_t>(width);
    header.TopDown = height < 0;
    const std::int64_t rows = height; // the lowest number has no positive of its own size
    header.Height = static_cast<std::uint64_t>(rows < 0 ? -rows : rows);
    header.Bits = file.Little16(28);
    header.Method = file.Little32(30);
    header.Colors = file.Little32(46);
}

// Whether the depth and the compression go together.
bool KnownDepth(const BmpHeader& header)
{
    constexpr std::array<int, 6> depths{1, 4, 8, 16, 24, 32};
    switch (header.Method) {
    case Uncompressed:
        return std::find(depths.begin(), depths.end(), header.Bits) != depths.end();
    case Rle8:
        return header.Bits == 8;
    case Rle4:
        return header.Bits == 4;
    case BitFields:
        return header.Bits == 16 || header.Bits == 32;
    default:
        return false;
    }
}

void CheckHeader(const ByteReader& file, const BmpHeader& header)
{
    constexpr std::uint64_t longest = 0x7FFFFFFF;
    if (header.Width == 0 || header.Height == 0) file.Fail(NoPixels);
    if (header.Height > longest) file.Fail("l'immagine è troppo alta");
    if (!KnownDepth(header)) {
        file.Fail("bitmap con " + std::to_string(header.Bits) + " bit per pixel e compressione " +
                  std::to_string(header.Method) + ", che non si legge");
    }
    const bool runs = header.Method == Rle4 || header.Method == Rle8;
    if (runs && header.TopDown) file.Fail("bitmap compressa con le righe dall'alto in basso");
}

BmpHeader ReadHeader(const ByteReader& file)
{
    if (file.Slice(0, 2) != "BM") file.Fail("non è una bitmap di Windows");
    BmpHeader header;
    header.PixelOffset = file.Little32(10);
    header.Size = file.Little32(FileHeaderSize);
    constexpr std::array<std::uint32_t, 3> longSizes{40, 108, 124};
    if (header.Size == CoreHeaderSize) ReadCoreHeader(file, header);
    else if (std::find(longSizes.begin(), longSizes.end(), header.Size) != longSizes.end()) {
        ReadInfoHeader(file, header);
    } else {
        file.Fail("bitmap con un'intestazione di " + std::to_string(header.Size) +
                  " byte, che non si legge");
    }
    CheckHeader(file, header);
    return header;
}

// --- Palettes -----------------------------------------------------------------------------------

// Files are found whose palette is shorter than the bits allow and does not say so: it ends where
// the pixels begin.
std::string ReadPalette(const ByteReader& file, const BmpHeader& header)
{
    const std::uint64_t entry = header.Size == CoreHeaderSize ? 3 : 4;
    const std::uint64_t start = std::uint64_t{FileHeaderSize} + header.Size;
    std::uint64_t count = std::uint64_t{1} << header.Bits;
    if (header.Colors > 0) count = std::min<std::uint64_t>(count, header.Colors);
    if (header.PixelOffset > start) count = std::min(count, (header.PixelOffset - start) / entry);
    std::string palette;
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::string_view color = file.Slice(start + i * entry, 3); // blue, green, red
        palette.append({color[2], color[1], color[0]});
    }
    return palette;
}

// --- Rows without compression -------------------------------------------------------------------

// The rows of an uncompressed picture, in the order of the picture.
class BmpRows
{
public:
    BmpRows(const ByteReader& file, const BmpHeader& header)
        : m_header(header)
        , m_length((header.Width * static_cast<unsigned>(header.Bits) + 7) / 8)
        , m_stride((m_length + 3) / 4 * 4)
        , m_bytes(Take(file))
    {
    }

    std::string_view Row(std::uint64_t y) const
    {
        const std::uint64_t place = m_header.TopDown ? y : m_header.Height - 1 - y;
        return m_bytes.substr(static_cast<std::size_t>(place * m_stride),
                              static_cast<std::size_t>(m_length));
    }

private:
    // The last row of some files lacks its padding.
    std::string_view Take(const ByteReader& file) const
    {
        const std::uint64_t offset = m_header.PixelOffset;
        const std::uint64_t room = offset < file.Size() ? file.Size() - offset : 0;
        if (m_length > room || m_header.Height - 1 > (room - m_length) / m_stride) {
            file.Fail("le dimensioni dichiarate superano quanto il file contiene");
        }
        return file.Slice(offset, (m_header.Height - 1) * m_stride + m_length);
    }

    const BmpHeader& m_header;
    std::uint64_t m_length; // bytes of a row
    std::uint64_t m_stride; // from one row to the next
    std::string_view m_bytes;
};

std::string ReadIndices(const ByteReader& file, const BmpHeader& header)
{
    const BmpRows rows(file, header);
    const auto bits = static_cast<unsigned>(header.Bits);
    const unsigned perByte = 8 / bits;
    std::string indices;
    indices.reserve(static_cast<std::size_t>(header.Width * header.Height));
    for (std::uint64_t y = 0; y < header.Height; ++y) {
        const std::string_view row = rows.Row(y);
        for (std::uint64_t x = 0; x < header.Width; ++x) {
            const auto byte =
                static_cast<unsigned char>(row[static_cast<std::size_t>(x / perByte)]);
            const unsigned shift = 8 - bits - bits * static_cast<unsigned>(x % perByte);
            indices.push_back(static_cast<char>(byte >> shift & ((1U << bits) - 1)));
        }
    }
    return indices;
}

// --- True colour --------------------------------------------------------------------------------

// One channel of a pixel: which of its bits, and how they become 0 to 255.
class Channel
{
public:
    Channel(const ByteReader& file, std::uint32_t mask)
        : m_mask(mask)
        , m_shift(mask == 0 ? 0 : std::countr_zero(mask))
        , m_highest(mask >> m_shift)
    {
        if ((m_highest & (std::uint64_t{m_highest} + 1)) != 0) {
            file.Fail("una maschera di colore della bitmap ha dei buchi");
        }
    }

    char Of(std::uint32_t pixel) const
    {
        const std::uint64_t value = (pixel & m_mask) >> m_shift;
        if (m_highest == 255 || m_highest == 0) return static_cast<char>(value);
        return static_cast<char>((value * 255 + m_highest / 2) / m_highest);
    }

private:
    std::uint32_t m_mask;
    int m_shift;
    std::uint32_t m_highest;
};

std::array<std::uint32_t, 3> Masks(const ByteReader& file, const BmpHeader& header)
{
    if (header.Method == BitFields) {
        return {file.Little32(MaskOffset), file.Little32(MaskOffset + 4),
                file.Little32(MaskOffset + 8)};
    }
    if (header.Bits == 16) return {0x7C00, 0x3E0, 0x1F};
    return {0xFF0000, 0xFF00, 0xFF};
}

std::uint32_t Pixel(std::string_view bytes)
{
    std::uint32_t pixel = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        pixel = pixel << 8 | static_cast<unsigned char>(bytes[i]);
    }
    return pixel;
}

std::string ReadColors(const ByteReader& file, const BmpHeader& header)
{
    const auto masks = Masks(file, header);
    const Channel red(file, masks[0]);
    const Channel green(file, masks[1]);
    const Channel blue(file, masks[2]);
    const BmpRows rows(file, header);
    const std::size_t bytes = static_cast<std::size_t>(header.Bits) / 8;
    std::string pixels;
    pixels.reserve(static_cast<std::size_t>(header.Width * header.Height * 3));
    for (std::uint64_t y = 0; y < header.Height; ++y) {
        for (std::string_view row = rows.Row(y); !row.empty(); row.remove_prefix(bytes)) {
            const std::uint32_t pixel = Pixel(row.substr(0, bytes));
            pixels.append({red.Of(pixel), green.Of(pixel), blue.Of(pixel)});
        }
    }
    return pixels;
}

// --- Run-length ---------------------------------------------------------------------------------

std::string ReadRuns(const ByteReader& file, const BmpHeader& header)
{
    if (header.PixelOffset > file.Size()) file.Fail("i dati dell'immagine non sono nel file");
    const std::uint64_t length = file.Size() - header.PixelOffset;
    const std::uint64_t held = std::max(PixelsAlwaysAllowed, length * PixelsPerRleByte);
    if (header.Width * header.Height > std::min(held, PixelsNeverExceeded)) {
        file.Fail(TooFewBytes);
    }
    return prReadRle(file.Part(header.PixelOffset, length), header.Width, header.Height,
                     header.Bits);
}

} // namespace

Picture prReadBMP(std::string_view bytes, const std::string& fileName)
{
    const ByteReader file(bytes, fileName);
    const BmpHeader header = ReadHeader(file);
    Picture picture;
    picture.Width = static_cast<std::int32_t>(header.Width);
    picture.Height = static_cast<std::int32_t>(header.Height);
    if (header.Bits > 8) {
        picture.BitsPerPixel = 24;
        picture.Pixels = ReadColors(file, header);
        return picture;
    }
    picture.Palette = ReadPalette(file, header);
    const bool runs = header.Method != Uncompressed;
    prPackIndices(picture, runs ? ReadRuns(file, header) : ReadIndices(file, header), header.Bits);
    return picture;
}

} // namespace pdf
