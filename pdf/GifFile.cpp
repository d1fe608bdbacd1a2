// Reads the first frame of a GIF: its header, the code table that unpacks it, its rows.
// Picture.h says what comes of it.

#include "GifFile.h"

#include "ByteReader.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pdf {

namespace {

constexpr std::uint64_t PixelsPerByte = 2731; // strings of at most 4093 pixels in codes of 12 bits
constexpr std::uint64_t PixelsNeverExceeded = std::uint64_t{1} << 28;

enum Block : std::uint8_t
{
    Extension = 0x21,
    Frame = 0x2C,
    Trailer = 0x3B,
};

enum Flags : std::uint8_t
{
    PaletteFollows = 0x80,
    Interlaced = 0x40,
    PaletteBits = 0x07, // one less than the bits
};

// --- Compressed pixels --------------------------------------------------------------------------

// Takes codes of growing width out of bytes, the lowest bit first.
class CodeReader
{
public:
    explicit CodeReader(std::string_view bytes)
        : m_bytes(bytes)
    {
    }

    // The next code, or -1 when the bytes do not hold all of it. width: 2 to 12.
    int Next(int width)
    {
        while (m_waiting < width) {
            if (m_position == m_bytes.size()) return -1;
            const auto byte = static_cast<unsigned char>(m_bytes[m_position++]);
            m_bits |= std::uint32_t{byte} << m_waiting;
            m_waiting += 8;
        }
        const auto code = static_cast<int>(m_bits & ((1U << width) - 1));
        m_bits >>= width;
        m_waiting -= width;
        return code;
    }

private:
    std::string_view m_bytes;
    std::size_t m_position = 0;
    std::uint32_t m_bits = 0;
    int m_waiting = 0;
};

// Turns codes into pixels. Each entry is another string with one pixel more.
class GifDecoder
{
public:
    // bits: the bits of a plain pixel, 1 to 8. pixels: how many are wanted.
    GifDecoder(const ByteReader& file, int bits, std::size_t pixels)
        : m_file(file)
        , m_bits(bits)
        , m_clear(1 << bits)
        , m_pixels(pixels, '\0')
    {
        for (int i = 0; i < m_clear; ++i) {
            m_last[At(i)] = static_cast<char>(i);
            m_length[At(i)] = 1;
        }
    }

    std::string Decode(std::string_view bytes)
    {
        CodeReader codes(bytes);
        Clear();
        while (m_done < m_pixels.size()) {
            const int code = codes.Next(m_width);
            if (code < 0 || code == m_clear + 1) {
                m_file.Fail("i dati dell'immagine finiscono prima dell'ultimo pixel");
            }
            if (code == m_clear) Clear();
            else Take(code);
        }
        return std::move(m_pixels);
    }

private:
    static constexpr int TableSize = 4096;
    static constexpr int None = -1;

    static std::size_t At(int code) { return static_cast<std::size_t>(code); }

    void Clear()
    {
        m_width = m_bits + 1;
        m_next = m_clear + 2;
        m_previous = None;
    }

    void Take(int code)
    {
        const bool known = code < m_clear || (code > m_clear && code < m_next);
        // The one code that may be used while it is being made: the last string and its own start.
        const bool beingMade = code == m_next && m_previous != None && m_next < TableSize;
        if (!known && !beingMade)
            m_file.Fail("i dati dell'immagine contengono un codice impossibile");
        if (m_previous != None) Add(FirstOf(known ? code : m_previous));
        Write(code);
        m_previous = code;
    }

    // A full table stays as it is until the next clear.
    void Add(char pixel)
    {
        if (m_next == TableSize) return;
        m_before[At(m_next)] = static_cast<std::uint16_t>(m_previous);
        m_last[At(m_next)] = pixel;
        m_first[At(m_next)] = FirstOf(m_previous);
        m_length[At(m_next)] = static_cast<std::uint16_t>(m_length[At(m_previous)] + 1);
        ++m_next;
        if (m_next == 1 << m_width && m_width < 12) ++m_width;
    }

    char FirstOf(int code) const
    {
        return code < m_clear ? static_cast<char>(code) : m_first[At(code)];
    }

    // Strings are linked from their end; what exceeds the picture is left away.
    void Write(int code)
    {
        const std::size_t start = m_done;
        const std::size_t end = start + m_length[At(code)];
        m_done = std::min(end, m_pixels.size());
        for (std::size_t place = end; place-- > start; code = m_before[At(code)]) {
            if (place < m_done) m_pixels[place] = m_last[At(code)];
        }
    }

    const ByteReader& m_file;
    int m_bits;
    int m_clear;
    int m_width = 0;
    int m_next = 0;
    int m_previous = None;
    std::size_t m_done = 0;
    std::string m_pixels;
    std::array<std::uint16_t, TableSize> m_before{};
    std::array<std::uint16_t, TableSize> m_length{};
    std::array<char, TableSize> m_first{};
    std::array<char, TableSize> m_last{};
};

// --- The file -----------------------------------------------------------------------------------

class GifReader
{
public:
    explicit GifReader(const ByteReader& file)
        : m_file(file)
    {
    }

    Picture Read()
    {
        const std::string_view head = m_file.Slice(0, 6);
        if (head != "GIF87a" && head != "GIF89a") m_file.Fail("non è un'immagine GIF");
        const std::uint8_t flags = m_file.U8(10);
        m_position = 13;
        ReadPalette(flags);
        SkipToFrame();
        return ReadFrame();
    }

private:
    // Reads the palette that stands here if flags announce one.
    void ReadPalette(std::uint8_t flags)
    {
        if ((flags & PaletteFollows) == 0) return;
        m_paletteBits = (flags & PaletteBits) + 1;
        const std::uint64_t length = std::uint64_t{3} << m_paletteBits;
        m_picture.Palette = m_file.Slice(m_position, length);
        m_position += length;
    }

    void SkipToFrame()
    {
        for (;;) {
            switch (m_file.U8(m_position++)) {
            case Frame:
                return;
            case Extension:
                ++m_position; // its label
                SkipSubBlocks();
                break;
            case Trailer:
                m_file.Fail("il file GIF non contiene immagini");
            default:
                m_file.Fail("il file GIF contiene un blocco sconosciuto");
            }
        }
    }

    void SkipSubBlocks()
    {
        while (const std::uint8_t length = m_file.U8(m_position++)) m_position += length;
    }

    Picture ReadFrame()
    {
        m_picture.Width = m_file.Little16(m_position + 4);
        m_picture.Height = m_file.Little16(m_position + 6);
        const std::uint8_t flags = m_file.U8(m_position + 8);
        m_position += 9;
        ReadPalette(flags);
        if (m_picture.Palette.empty()) m_file.Fail("il file GIF non ha una tavolozza");
        std::string indices = ReadPixels();
        if ((flags & Interlaced) != 0) indices = InOrder(indices);
        prPackIndices(m_picture, std::move(indices), m_paletteBits);
        return std::move(m_picture);
    }

    std::string ReadPixels()
    {
        const int bits = m_file.U8(m_position++);
        if (bits < 1 || bits > 8) m_file.Fail("i pixel del file GIF hanno più di 8 bit o nessuno");
        const auto pixels = static_cast<std::uint64_t>(m_picture.Width) *
                            static_cast<std::uint64_t>(m_picture.Height);
        if (pixels == 0) m_file.Fail(NoPixels);
        const std::string bytes = SubBlocks();
        if (pixels > std::min(bytes.size() * PixelsPerByte, PixelsNeverExceeded)) {
            m_file.Fail(TooFewBytes);
        }
        return GifDecoder(m_file, bits, static_cast<std::size_t>(pixels)).Decode(bytes);
    }

    // The bytes of the sub-blocks that stand here. A missing end is no error yet: whether pixels
    // are missing shows when they are counted.
    std::string SubBlocks()
    {
        std::string bytes;
        while (m_position < m_file.Size()) {
            const std::uint64_t length = m_file.U8(m_position++);
            if (length == 0) break;
            bytes.append(m_file.Slice(m_position, std::min(length, m_file.Size() - m_position)));
            m_position += length;
        }
        return bytes;
    }

    // The rows of an interlaced picture come in four passes.
    std::string InOrder(const std::string& indices) const
    {
        struct Pass
        {
            std::size_t First;
            std::size_t Step;
        };
        constexpr std::array<Pass, 4> passes{{{0, 8}, {4, 8}, {2, 4}, {1, 2}}};
        const auto width = static_cast<std::size_t>(m_picture.Width);
        const auto height = static_cast<std::size_t>(m_picture.Height);
        std::string result(indices.size(), '\0');
        std::size_t from = 0;
        for (const Pass& pass : passes) {
            for (std::size_t y = pass.First; y < height; y += pass.Step, from += width) {
                indices.copy(&result[y * width], width, from);
            }
        }
        return result;
    }

    const ByteReader& m_file;
    std::uint64_t m_position = 0;
    int m_paletteBits = 0;
    Picture m_picture;
};

} // namespace

Picture prReadGIF(std::string_view bytes, const std::string& fileName)
{
    const ByteReader file(bytes, fileName);
    return GifReader(file).Read();
}

} // namespace pdf
