// Walks through the segments of a JPEG as far as its size; the rest goes into the document as it
// is. Picture.h says what comes of it.

#include "JpegFile.h"

#include "ByteReader.h"

#include <cstddef>
#include <utility>

namespace pdf {

namespace {

// The second byte of a marker (ISO/IEC 10918-1, table B.1).
enum Marker : std::uint8_t
{
    Temporary = 0x01,
    BaselineFrame = 0xC0,
    ProgressiveFrame = 0xC2,
    HuffmanTables = 0xC4,
    ReservedFrame = 0xC8,
    ArithmeticConditions = 0xCC,
    LastFrame = 0xCF,
    FirstRestart = 0xD0,
    StartOfImage = 0xD8,
    EndOfImage = 0xD9,
    StartOfScan = 0xDA,
    AdobeSegment = 0xEE,
};

constexpr const char* Damaged = "il file JPEG è danneggiato";
constexpr const char* NoDimensions = "il file JPEG non dichiara le dimensioni prima dei dati";

bool IsFrame(std::uint8_t marker)
{
    return marker >= BaselineFrame && marker <= LastFrame && marker != HuffmanTables &&
           marker != ReservedFrame && marker != ArithmeticConditions;
}

// Markers that stand alone, without a length behind them.
bool IsBare(std::uint8_t marker)
{
    return marker == Temporary || (marker >= FirstRestart && marker <= StartOfImage);
}

class JpegHeaders
{
public:
    explicit JpegHeaders(const ByteReader& file)
        : m_file(file)
    {
    }

    // Walks the segments up to the first scan.
    Picture Read()
    {
        if (m_file.Slice(0, 2) != "\xFF\xD8") m_file.Fail("non è un'immagine JPEG");
        m_position = 2;
        for (std::uint8_t marker = Next(); marker != StartOfScan; marker = Next()) {
            if (marker == EndOfImage) m_file.Fail("il file JPEG non contiene immagini");
            if (!IsBare(marker)) ReadSegment(marker);
        }
        if (m_picture.BitsPerPixel == 0) {
            m_file.Fail(NoDimensions);
        }
        m_picture.InvertedCMYK = m_adobe && m_picture.Space == ColorSpace::CMYK;
        return m_picture;
    }

private:
    // The next marker. Any number of FF bytes may stand before its second byte.
    std::uint8_t Next()
    {
        if (m_file.U8(m_position++) != 0xFF) m_file.Fail(Damaged);
        while (m_file.U8(m_position) == 0xFF) ++m_position;
        return m_file.U8(m_position++);
    }

    void ReadSegment(std::uint8_t marker)
    {
        const std::uint16_t length = m_file.Big16(m_position);
        if (length < 2) m_file.Fail(Damaged);
        const ByteReader segment = m_file.Part(m_position + 2, length - 2U);
        m_position += length;
        if (IsFrame(marker)) ReadFrame(marker, segment);
        if (marker == AdobeSegment && length >= 14) m_adobe |= segment.Slice(0, 5) == "Adobe";
    }

    void ReadFrame(std::uint8_t marker, const ByteReader& segment)
    {
        if (marker > ProgressiveFrame) {
            m_file.Fail("il file JPEG è di un tipo (senza perdita, aritmetico o gerarchico) che il "
                        "PDF non ammette");
        }
        if (m_picture.BitsPerPixel != 0)
            m_file.Fail("il file JPEG dichiara due volte le dimensioni");
        if (segment.U8(0) != 8) m_file.Fail("il file JPEG non ha 8 bit per campione");
        m_picture.Height = segment.Big16(1);
        m_picture.Width = segment.Big16(3);
        if (m_picture.Width == 0 || m_picture.Height == 0) {
            m_file.Fail(NoDimensions);
        }
        SetComponents(segment.U8(5));
        segment.Slice(6, 3U * segment.U8(5));
    }

    void SetComponents(std::uint8_t count)
    {
        switch (count) {
        case 1:
            m_picture.Space = ColorSpace::Gray;
            break;
        case 3:
            m_picture.Space = ColorSpace::RGB;
            break;
        case 4:
            m_picture.Space = ColorSpace::CMYK;
            break;
        default:
            m_file.Fail("il file JPEG ha " + std::to_string(count) +
                        " componenti invece di 1, 3 o 4");
        }
        m_picture.BitsPerPixel = 8 * count;
    }

    const ByteReader& m_file;
    std::uint64_t m_position = 0;
    bool m_adobe = false;
    Picture m_picture;
};

} // namespace

Picture prReadJPEG(std::string bytes, const std::string& fileName)
{
    const ByteReader file(bytes, fileName);
    Picture picture = JpegHeaders(file).Read();
    picture.IsJpeg = true;
    picture.Pixels = std::move(bytes);
    return picture;
}

} // namespace pdf
