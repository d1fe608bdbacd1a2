// Chooses the encoding of a text outside the pages and writes it as a literal string.

#include "TextString.h"

#include "Windows1252.h"

#include <algorithm>
#include <array>
#include <optional>

namespace pdf {

namespace {

constexpr char32_t Escape = 0x1B;

// PDFDocEncoding where it is not Latin-1 (ISO 32000-1, annex D.3): the codes 18 to 1F and 80 to 9E.
constexpr std::array<char16_t, 8> Accents = {0x02D8, 0x02C7, 0x02C6, 0x02D9,
                                             0x02DD, 0x02DB, 0x02DA, 0x02DC};
constexpr std::array<char16_t, 31> Signs = {
    0x2022, 0x2020, 0x2021, 0x2026, 0x2014, 0x2013, 0x0192, 0x2044, 0x2039, 0x203A, 0x2212,
    0x2030, 0x201E, 0x201C, 0x201D, 0x2018, 0x2019, 0x201A, 0x2122, 0xFB01, 0xFB02, 0x0141,
    0x0152, 0x0160, 0x0178, 0x017D, 0x0131, 0x0142, 0x0153, 0x0161, 0x017E};

// Codes that are the character of the same number.
bool IsItself(char32_t character)
{
    constexpr char32_t softHyphen = 0xAD;
    if (character == '\t' || character == '\n' || character == '\r') return true;
    if (character >= ' ' && character <= '~') return true;
    return character > 0xA0 && character <= 0xFF && character != softHyphen;
}

template <std::size_t Size>
std::optional<char> CodeIn(const std::array<char16_t, Size>& table, unsigned first, char32_t wanted)
{
    const auto found = std::find(table.begin(), table.end(), wanted);
    if (found == table.end()) return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(first + (found - table.begin())));
}

std::optional<char> CodeOf(char32_t character)
{
    constexpr char32_t euro = 0x20AC;
    if (IsItself(character)) return static_cast<char>(character);
    if (character == euro) return '\xA0';
    const auto accent = CodeIn(Accents, 0x18, character);
    return accent ? accent : CodeIn(Signs, 0x80, character);
}

// The next character of the text; "?" for what has no place in any text string.
char32_t Take(std::string_view& utf8)
{
    const char32_t character = PrendiCarattere(utf8);
    return character == NonValido || character == Escape ? U'?' : character;
}

bool LooksLikeAMark(std::string_view bytes)
{
    return bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xEF\xBB\xBF");
}

// Nothing where a character has no code, or the codes would be read as something else.
std::optional<std::string> InDocEncoding(std::string_view utf8)
{
    std::string bytes;
    while (!utf8.empty()) {
        const auto code = CodeOf(Take(utf8));
        if (!code) return std::nullopt;
        bytes.push_back(*code);
    }
    if (LooksLikeAMark(bytes)) return std::nullopt;
    return bytes;
}

void AppendUnit(std::string& bytes, char32_t unit)
{
    bytes.push_back(static_cast<char>(static_cast<unsigned char>(unit >> 8U)));
    bytes.push_back(static_cast<char>(static_cast<unsigned char>(unit & 0xFFU)));
}

std::string InUtf16(std::string_view utf8)
{
    constexpr char32_t beyondUnits = 0x10000;
    std::string bytes = "\xFE\xFF";
    while (!utf8.empty()) {
        const char32_t character = Take(utf8);
        if (character < beyondUnits) {
            AppendUnit(bytes, character);
        } else {
            AppendUnit(bytes, 0xD800U + ((character - beyondUnits) >> 10U));
            AppendUnit(bytes, 0xDC00U + ((character - beyondUnits) & 0x3FFU));
        }
    }
    return bytes;
}

} // namespace

std::string prTextString(std::string_view utf8)
{
    const auto plain = InDocEncoding(utf8);
    std::string text = "(";
    for (const char c : plain ? *plain : InUtf16(utf8)) {
        if (c == '\\' || c == '(' || c == ')') text.push_back('\\');
        if (c == '\r') text.append("\\r");
        else text.push_back(c);
    }
    return text + ")";
}

} // namespace pdf
