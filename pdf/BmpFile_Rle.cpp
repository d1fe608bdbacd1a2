// Undoes the run-length forms of Windows bitmaps for BmpFile.cpp.

#include "BmpFile_Rle.h"

#include <cstddef>

namespace pdf {

namespace {

// What follows a zero in place of a count; greater values announce so many plain pixels.
enum Escape : std::uint8_t
{
    EndOfLine = 0,
    EndOfBitmap = 1,
    Delta = 2,
};

class RleCanvas
{
public:
    RleCanvas(const ByteReader& data, std::uint64_t width, std::uint64_t height, int bits)
        : m_data(data)
        , m_width(width)
        , m_height(height)
        , m_bits(bits)
        , m_indices(static_cast<std::size_t>(width * height), '\0')
    {
    }

    std::string Paint()
    {
        while (m_y < m_height && Step()) {
        }
        return std::move(m_indices);
    }

private:
    // One code; false after the last.
    bool Step()
    {
        const std::uint8_t count = Next();
        const std::uint8_t value = Next();
        if (count > 0) {
            for (unsigned i = 0; i < count; ++i) Put(IndexOf(value, i));
            return true;
        }
        switch (value) {
        case EndOfBitmap:
            return false;
        case EndOfLine:
            m_x = 0;
            ++m_y;
            return true;
        case Delta:
            m_x += Next();
            m_y += Next();
            return true;
        default:
            Plain(value);
            return true;
        }
    }

    // Pixels one by one; their bytes fill whole 16-bit words.
    void Plain(unsigned count)
    {
        const unsigned length = m_bits == 8 ? count : (count + 1) / 2;
        for (unsigned i = 0; i < count; ++i) {
            const unsigned byte = m_bits == 8 ? i : i / 2;
            Put(IndexOf(m_data.U8(m_position + byte), i));
        }
        m_position += length + length % 2;
    }

    // The left pixel of a pair lies in the high half.
    char IndexOf(std::uint8_t byte, unsigned i) const
    {
        if (m_bits == 8) return static_cast<char>(byte);
        return static_cast<char>(i % 2 == 0 ? byte >> 4 : byte & 15);
    }

    void Put(char index)
    {
        if (m_x < m_width && m_y < m_height) {
            m_indices[static_cast<std::size_t>((m_height - 1 - m_y) * m_width + m_x)] = index;
        }
        ++m_x;
    }

    std::uint8_t Next() { return m_data.U8(m_position++); }

    const ByteReader& m_data;
    std::uint64_t m_position = 0;
    std::uint64_t m_width;
    std::uint64_t m_height;
    std::uint64_t m_x = 0;
    std::uint64_t m_y = 0; // upward from the bottom row
    int m_bits;
    std::string m_indices;
};

} // namespace

std::string prReadRle(const ByteReader& data, std::uint64_t width, std::uint64_t height, int bits)
{
    return RleCanvas(data, width, height, bits).Paint();
}

} // namespace pdf
