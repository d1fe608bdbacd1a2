// Finds the best character map of a TrueType font and looks characters up in it.

#include "TrueTypeFile_CharMap.h"

#include <algorithm>
#include <cstddef>

namespace pdf {

namespace {

// --- Codes --------------------------------------------------------------------------------------

// Windows-1252 from 80 to 9F. Readers draw the bullet for the codes it leaves open.
constexpr std::array<char16_t, 32> HighControls{
    0x20AC, 0x2022, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x2022, 0x017D, 0x2022, 0x2022, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x2022, 0x017E, 0x0178,
};
constexpr std::uint32_t Bullet = 0x2022;

// Macintosh Roman from 80 on.
constexpr std::array<char16_t, 128> HighMacintosh{
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3,
    0x00E5, 0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3,
    0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3,
    0x00A7, 0x2022, 0x00B6, 0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8,
    0x221E, 0x00B1, 0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA,
    0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB,
    0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D,
    0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02,
    0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1, 0x00CB, 0x00C8, 0x00CD, 0x00CE,
    0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC,
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};

std::uint32_t UnicodeOf(std::uint32_t code)
{
    if (code == 127) return Bullet;
    return code >= 0x80 && code <= 0x9F ? HighControls[code - 0x80] : code;
}

// The Macintosh code of a Unicode character; 0 for none.
std::uint32_t MacintoshOf(std::uint32_t unicode)
{
    if (unicode < 0x80) return unicode;
    const auto* found = std::find(HighMacintosh.begin(), HighMacintosh.end(), unicode);
    if (found == HighMacintosh.end()) return 0;
    return 0x80 + static_cast<std::uint32_t>(found - HighMacintosh.begin());
}

// --- The forms of a map -------------------------------------------------------------------------

// The first of count ascending values that is not below wanted; count when all are.
template <typename ValueAt>
std::uint64_t FirstNotBelow(std::uint64_t count, std::uint32_t wanted, ValueAt valueAt)
{
    std::uint64_t first = 0;
    while (first < count) {
        const std::uint64_t middle = first + (count - first) / 2;
        if (valueAt(middle) < wanted) first = middle + 1;
        else count = middle;
    }
    return first;
}

// Format 4: segments with either a distance to their glyphs or a list of them.
std::uint32_t GlyphInSegments(const ByteReader& map, std::uint32_t character)
{
    const std::uint64_t length = map.Big16(6) / 2 * 2; // of each of the four lists
    const std::uint64_t ends = 14;
    const std::uint64_t starts = ends + length + 2;
    const std::uint64_t found = 2 * FirstNotBelow(length / 2, character, [&](std::uint64_t i) {
                                    return std::uint32_t{map.Big16(ends + 2 * i)};
                                });
    if (found == length) return 0;
    const std::uint32_t start = map.Big16(starts + found);
    if (character < start) return 0;
    const std::uint32_t distance = map.Big16(starts + length + found);
    const std::uint64_t listPlace = starts + 2 * length + found;
    const std::uint64_t list = map.Big16(listPlace);
    if (list == 0) return (character + distance) & 0xFFFF;
    const std::uint32_t glyph = map.Big16(listPlace + list + 2 * std::uint64_t{character - start});
    return glyph == 0 ? 0 : (glyph + distance) & 0xFFFF;
}

// Format 12: groups of characters with consecutive glyphs.
std::uint32_t GlyphInGroups(const ByteReader& map, std::uint32_t character)
{
    const std::uint32_t count = map.Big32(12);
    const std::uint64_t found = FirstNotBelow(
        count, character, [&](std::uint64_t i) { return map.Big32(16 + 12 * i + 4); });
    if (found == count) return 0;
    const std::uint64_t group = 16 + 12 * found;
    const std::uint32_t start = map.Big32(group);
    return character < start ? 0 : map.Big32(group + 8) + (character - start);
}

// Format 6: one run of characters.
std::uint32_t GlyphInRun(const ByteReader& map, std::uint32_t character)
{
    const std::uint32_t first = map.Big16(6);
    if (character < first || character - first >= map.Big16(8)) return 0;
    return map.Big16(10 + 2 * std::uint64_t{character - first});
}

bool KnownFormat(std::uint16_t format)
{
    return format == 0 || format == 4 || format == 6 || format == 12;
}

std::uint32_t GlyphOf(const ByteReader& map, std::uint32_t character)
{
    switch (map.Big16(0)) {
    case 0:
        return character < 256 ? map.U8(6 + character) : 0;
    case 4:
        return character < 0x10000 ? GlyphInSegments(map, character) : 0;
    case 6:
        return GlyphInRun(map, character);
    default:
        return GlyphInGroups(map, character);
    }
}

// --- Which map ----------------------------------------------------------------------------------

enum class MapKind : std::uint8_t // the better the earlier
{
    WindowsUnicode,
    OtherUnicode,
    Symbol,
    Macintosh,
    None,
};

MapKind KindOf(std::uint16_t platform, std::uint16_t encoding)
{
    if (platform == 3 && encoding == 1) return MapKind::WindowsUnicode;
    if (platform == 0 || (platform == 3 && encoding == 10)) return MapKind::OtherUnicode;
    if (platform == 3 && encoding == 0) return MapKind::Symbol;
    if (platform == 1 && encoding == 0) return MapKind::Macintosh;
    return MapKind::None;
}

// Fonts put their codes at F000 as a rule, a few at the pages behind it or where they are.
std::uint32_t SymbolGlyph(const ByteReader& map, std::uint32_t code)
{
    for (const std::uint32_t page : {0xF000U, 0xF100U, 0xF200U, 0U}) {
        if (const std::uint32_t glyph = GlyphOf(map, page + code)) return glyph;
    }
    return 0;
}

std::uint32_t LatinGlyph(const ByteReader& map, MapKind kind, std::uint32_t code)
{
    const std::uint32_t unicode = UnicodeOf(code);
    const std::uint32_t own = kind == MapKind::Macintosh ? MacintoshOf(unicode) : unicode;
    const std::uint32_t glyph = own == 0 ? 0 : GlyphOf(map, own);
    if (glyph != 0) return glyph;
    if (code == 0xA0) return GlyphOf(map, ' '); // the blank that does not break
    if (code == 0xAD) return GlyphOf(map, '-'); // the soft hyphen
    return 0;
}

} // namespace

CharMap prReadCharMap(const ByteReader& table)
{
    MapKind best = MapKind::None;
    std::uint64_t offset = 0;
    const std::uint16_t count = table.Big16(2);
    for (std::uint64_t record = 4; record < 4 + 8 * std::uint64_t{count}; record += 8) {
        const MapKind kind = KindOf(table.Big16(record), table.Big16(record + 2));
        const std::uint64_t place = table.Big32(record + 4);
        if (kind >= best || !KnownFormat(table.Big16(place))) continue;
        best = kind;
        offset = place;
    }
    if (best == MapKind::None) table.Fail("il font non ha una mappa di caratteri che si legga");
    const ByteReader map = table.Part(offset, table.Size() - offset);
    CharMap result;
    result.Symbolic = best == MapKind::Symbol;
    // Codes below the blank name no character of Windows-1252, whatever the font shows for them.
    for (std::uint32_t code = result.Symbolic ? 0 : ' '; code < result.Glyphs.size(); ++code) {
        result.Glyphs[code] =
            result.Symbolic ? SymbolGlyph(map, code) : LatinGlyph(map, best, code);
    }
    return result;
}

} // namespace pdf
