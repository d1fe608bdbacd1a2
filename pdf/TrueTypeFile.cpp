// Reads a TrueType font table by table: its name by TrueTypeFile_Name.cpp, its characters by
// TrueTypeFile_CharMap.cpp.

#include "TrueTypeFile.h"

#include "ByteReader.h"
#include "Numeri.h"
#include "TrueTypeFile_CharMap.h"
#include "TrueTypeFile_Name.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace pdf {

namespace {

// Bits of /Flags (ISO 32000-1, table 123).
enum FontFlags : unsigned
{
    FixedPitch = 1,
    Serif = 2,
    Symbolic = 4,
    NonSymbolic = 32,
    Italic = 64,
};

// --- The tables ---------------------------------------------------------------------------------

// The table of that tag, if the directory names it.
std::optional<ByteReader> FindTable(const ByteReader& file, std::string_view tag)
{
    const std::uint16_t count = file.Big16(4);
    for (std::uint64_t record = 12; record < 12 + 16 * std::uint64_t{count}; record += 16) {
        if (file.Slice(record, 4) != tag) continue;
        return file.Part(file.Big32(record + 8), file.Big32(record + 12));
    }
    return std::nullopt;
}

ByteReader Table(const ByteReader& file, std::string_view tag)
{
    const auto table = FindTable(file, tag);
    if (!table) file.Fail("al font manca la tabella \"" + std::string(tag) + "\"");
    return *table;
}

void CheckKind(const ByteReader& file)
{
    const std::string_view kind = file.Slice(0, 4);
    if (kind == "OTTO") file.Fail("il font ha contorni PostScript invece che TrueType");
    if (kind == "ttcf") file.Fail("il file è una raccolta di font");
    if (kind != "true" && kind != std::string_view("\0\1\0\0", 4)) {
        file.Fail("non è un font TrueType");
    }
}

// --- Measures -----------------------------------------------------------------------------------

// The table "OS/2", of which any part may be missing.
class Os2Table
{
public:
    explicit Os2Table(std::optional<ByteReader> table)
        : m_table(table)
    {
    }

    bool Has(std::uint64_t offset) const { return m_table && m_table->Size() >= offset + 2; }
    int Signed(std::uint64_t offset) const
    {
        return Has(offset) ? m_table->BigSigned16(offset) : 0;
    }
    unsigned Value(std::uint64_t offset) const { return Has(offset) ? m_table->Big16(offset) : 0; }

    // The heights of letters came with version 2.
    int Height(std::uint64_t offset) const { return Value(0) >= 2 ? Signed(offset) : 0; }

    // Serifs by the class of the family; a class of 0 tells nothing.
    bool HasSerifs() const
    {
        const unsigned family = Value(30) >> 8;
        return (family >= 1 && family <= 5) || family == 7;
    }

    // Where several licences are ticked the most generous holds; bitmaps only are no outlines.
    bool MayEmbed() const
    {
        constexpr unsigned restricted = 2;
        constexpr unsigned bitmapsOnly = 0x200;
        const unsigned licence = Value(8);
        return (licence & 14) != restricted && (licence & bitmapsOnly) == 0;
    }

private:
    std::optional<ByteReader> m_table;
};

class FontReader
{
public:
    explicit FontReader(const ByteReader& file)
        : m_file(file)
        , m_head(Table(file, "head"))
        , m_hhea(Table(file, "hhea"))
        , m_hmtx(Table(file, "hmtx"))
        , m_glyf(Table(file, "glyf"))
        , m_loca(Table(file, "loca"))
        , m_os2(FindTable(file, "OS/2"))
        , m_post(FindTable(file, "post"))
        , m_map(prReadCharMap(Table(file, "cmap")))
        , m_unitsPerEm(m_head.Big16(18))
    {
        if (m_unitsPerEm < 16 || m_unitsPerEm > 16384) {
            file.Fail("il font ha " + std::to_string(m_unitsPerEm) + " unità per em");
        }
    }

    TrueTypeFont Read()
    {
        TrueTypeFont font;
        font.Name = prReadFontName(Table(m_file, "name"));
        for (std::size_t code = 0; code < font.Widths.size(); ++code) {
            font.Widths[code] = static_cast<float>(Scaled(Advance(m_map.Glyphs[code])));
        }
        font.Descent = static_cast<float>(Scaled(Descent()));
        font.Symbolic = m_map.Symbolic;
        font.MayEmbed = m_os2.MayEmbed();
        font.Descriptor = Descriptor(font);
        return font;
    }

private:
    // Font units as thousandths of the size.
    long Scaled(int value) const { return std::lrint(value * 1000.0 / m_unitsPerEm); }

    // The last width listed holds for all glyphs behind it.
    int Advance(std::uint32_t glyph) const
    {
        const std::uint32_t listed = m_hhea.Big16(34);
        if (listed == 0) m_file.Fail("il font non ha larghezze");
        return m_hmtx.Big16(4 * std::uint64_t{std::min(glyph, listed - 1)});
    }

    bool HheaSaysNothing() const { return m_hhea.Big16(4) == 0 && m_hhea.Big16(6) == 0; }
    int Ascent() const { return HheaSaysNothing() ? m_os2.Signed(68) : m_hhea.BigSigned16(4); }

    // Some fonts give it without its sign.
    int Descent() const
    {
        return -std::abs(HheaSaysNothing() ? m_os2.Signed(70) : m_hhea.BigSigned16(6));
    }

    // The top of a code's glyph; 0 when it shows nothing.
    int TopOf(unsigned char code) const
    {
        const std::uint64_t glyph = m_map.Glyphs[code];
        if (glyph == 0) return 0;
        const bool wide = m_head.Big16(50) != 0;
        const auto place = [&](std::uint64_t i) {
            return wide ? std::uint64_t{m_loca.Big32(4 * i)}
                        : 2 * std::uint64_t{m_loca.Big16(2 * i)};
        };
        return place(glyph) == place(glyph + 1) ? 0 : m_glyf.BigSigned16(place(glyph) + 8);
    }

    // The first of the ways to know a height that tells something.
    int CapHeight() const
    {
        if (const int told = m_os2.Height(88)) return told;
        const int top = TopOf('H');
        return top != 0 ? top : Ascent();
    }
    int XHeight() const
    {
        const int told = m_os2.Height(86);
        return told != 0 ? told : TopOf('x');
    }

    double ItalicAngle() const
    {
        if (!m_post) return 0;
        return static_cast<std::int32_t>(m_post->Big32(4)) / 65536.0;
    }

    bool IsBold() const
    {
        constexpr unsigned boldStyle = 1;
        return m_os2.Has(4) ? m_os2.Value(4) > 500 : (m_head.Big16(44) & boldStyle) != 0;
    }

    long AverageWidth(const TrueTypeFont& font) const
    {
        if (const int told = m_os2.Signed(2)) return Scaled(told);
        double sum = 0;
        for (const float width : font.Widths) sum += width;
        return std::lrint(sum / static_cast<double>(font.Widths.size()));
    }

    unsigned Flags() const
    {
        unsigned flags = m_map.Symbolic ? Symbolic : NonSymbolic;
        if (m_post && m_post->Big32(12) != 0) flags |= FixedPitch;
        if (m_os2.HasSerifs()) flags |= Serif;
        if (ItalicAngle() != 0) flags |= Italic;
        return flags;
    }

    std::string BoundingBox() const
    {
        std::string box;
        for (const unsigned offset : {36U, 38U, 40U, 42U}) {
            box.append(std::to_string(Scaled(m_head.BigSigned16(offset)))).append(" ");
        }
        return box;
    }

    std::string Descriptor(const TrueTypeFont& font) const
    {
        const auto item = [](std::string_view key, long value) {
            return std::string(key) + " " + std::to_string(value);
        };
        const double angle = std::nearbyint(ItalicAngle() * 1000) / 1000 + 0.0; // no "-0"
        return item("/Flags", static_cast<long>(Flags())) + " /FontBBox [ " + BoundingBox() + "]" +
               item(" /MissingWidth", Scaled(Advance(0))) + item(" /StemV", IsBold() ? 120 : 70) +
               " /ItalicAngle " + TestoNumero(angle) + item(" /CapHeight", Scaled(CapHeight())) +
               item(" /XHeight", Scaled(XHeight())) + item(" /Ascent", Scaled(Ascent())) +
               item(" /Descent", Scaled(Descent())) + item(" /MaxWidth", Scaled(m_hhea.Big16(10))) +
               item(" /AvgWidth", AverageWidth(font));
    }

    const ByteReader& m_file;
    ByteReader m_head;
    ByteReader m_hhea;
    ByteReader m_hmtx;
    ByteReader m_glyf;
    ByteReader m_loca;
    Os2Table m_os2;
    std::optional<ByteReader> m_post;
    CharMap m_map;
    int m_unitsPerEm;
};

} // namespace

TrueTypeFont prReadTrueType(std::string_view bytes, const std::string& fileName)
{
    const ByteReader file(bytes, fileName);
    CheckKind(file);
    return FontReader(file).Read();
}

} // namespace pdf
