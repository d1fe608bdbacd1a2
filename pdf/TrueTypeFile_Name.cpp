// Finds the name of a TrueType font for TrueTypeFile.cpp.

#include "TrueTypeFile_Name.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pdf {

namespace {

constexpr std::uint16_t PostScriptName = 6;
constexpr std::uint16_t FullName = 4;
constexpr std::uint16_t AmericanEnglish = 0x409;
constexpr std::size_t LongestName = 127;

enum PlatformId : std::uint16_t
{
    UnicodePlatform = 0,
    Macintosh = 1,
    Windows = 3,
};

struct NameRecord
{
    std::uint16_t Platform;
    std::uint16_t Language;
    std::uint16_t Id;
    std::uint16_t Length;
    std::uint64_t Offset;
};

NameRecord Record(const ByteReader& table, std::uint64_t index)
{
    const std::uint64_t at = 6 + 12 * index;
    return {table.Big16(at), table.Big16(at + 4), table.Big16(at + 6), table.Big16(at + 8),
            std::uint64_t{table.Big16(4)} + table.Big16(at + 10)};
}

// The names in the order in which they are asked: 0 is asked first, 3 last.
int Rank(const NameRecord& record)
{
    switch (record.Platform) {
    case Windows:
        return record.Language == AmericanEnglish ? 0 : 1;
    case UnicodePlatform:
        return 2;
    case Macintosh:
        return 3;
    default:
        return -1;
    }
}

bool FitsPdfName(unsigned character)
{
    constexpr std::string_view special = "()<>[]{}/%#"; // delimiters, and the mark of escapes
    return character > ' ' && character < 127 &&
           special.find(static_cast<char>(character)) == std::string_view::npos;
}

// Characters of two bytes but on the Macintosh, whose upper half no name needs.
std::string Text(const ByteReader& table, const NameRecord& record)
{
    const unsigned step = record.Platform == Macintosh ? 1 : 2;
    // Several times what is kept: a longer one is no name, and many of them would take long.
    const std::uint64_t length = std::min<std::uint64_t>(record.Length, 4 * LongestName);
    const ByteReader text = table.Part(record.Offset, length / step * step);
    std::string name;
    for (std::uint64_t i = 0; i < text.Size() && name.size() < LongestName; i += step) {
        const unsigned character = step == 1 ? text.U8(i) : text.Big16(i);
        if (FitsPdfName(character)) name.push_back(static_cast<char>(character));
    }
    return name;
}

std::string FindName(const ByteReader& table, std::uint16_t id, int rank)
{
    const std::uint16_t count = table.Big16(2);
    for (std::uint64_t i = 0; i < count; ++i) {
        const NameRecord record = Record(table, i);
        if (record.Id != id || Rank(record) != rank) continue;
        std::string name = Text(table, record);
        if (!name.empty()) return name;
    }
    return {};
}

} // namespace

std::string prReadFontName(const ByteReader& table)
{
    for (const std::uint16_t id : {PostScriptName, FullName}) {
        for (const int rank : {0, 1, 2, 3}) {
            std::string name = FindName(table, id, rank);
            if (!name.empty()) return name;
        }
    }
    table.Fail("il font non dice il suo nome");
}

} // namespace pdf
