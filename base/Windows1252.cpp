// The two ways between UTF-8 and Windows-1252, character by character; the promises stand in
// Windows1252.h.

#include "Windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace {

// Code points of the bytes 80 to 9F; all other bytes are the code point of the same value.
constexpr std::array<char16_t, 32> DaOttanta = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Sequenza
{
    std::size_t lunghezza;
    char32_t minimo;
    char32_t bit;
};

std::optional<Sequenza> SequenzaDa(unsigned char primo)
{
    if (primo < 0x80) return Sequenza{1, 0, primo};
    if (primo >= 0xC2 && primo <= 0xDF) return Sequenza{2, 0x80, primo & 0x1Fu};
    if (primo >= 0xE0 && primo <= 0xEF) return Sequenza{3, 0x800, primo & 0x0Fu};
    if (primo >= 0xF0 && primo <= 0xF4) return Sequenza{4, 0x10000, primo & 0x07u};
    return std::nullopt;
}

std::optional<char> Codice(char32_t carattere)
{
    if (carattere < 0x80 || (carattere >= 0xA0 && carattere <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(carattere));
    }
    const auto posto = std::find(DaOttanta.begin(), DaOttanta.end(), carattere);
    if (posto == DaOttanta.end()) return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(0x80 + (posto - DaOttanta.begin())));
}

bool SoloAscii(std::string_view testo)
{
    for (const char c : testo) {
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    }
    return true;
}

// What PrendiCarattere does, set into the loops of this file: a call for each letter is felt.
inline char32_t Prendi(std::string_view& utf8)
{
    const auto sequenza = SequenzaDa(static_cast<unsigned char>(utf8.front()));
    if (!sequenza || sequenza->lunghezza > utf8.size()) {
        utf8.remove_prefix(1);
        return NonValido;
    }
    char32_t carattere = sequenza->bit;
    for (std::size_t i = 1; i < sequenza->lunghezza; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if ((byte & 0xC0u) != 0x80u) {
            utf8.remove_prefix(1);
            return NonValido;
        }
        carattere = (carattere << 6) | (byte & 0x3Fu);
    }
    const bool surrogato = carattere >= 0xD800 && carattere <= 0xDFFF;
    const bool valido = carattere >= sequenza->minimo && carattere <= 0x10FFFF && !surrogato;
    utf8.remove_prefix(valido ? sequenza->lunghezza : 1);
    return valido ? carattere : NonValido;
}

} // namespace

char32_t PrendiCarattere(std::string_view& utf8)
{
    return Prendi(utf8);
}

std::string InWindows1252(std::string_view utf8)
{
    // Nearly every text is plain ASCII, which passes as it is.
    const auto primo = std::find_if(utf8.begin(), utf8.end(),
                                    [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    std::string byte(utf8.begin(), primo);
    utf8.remove_prefix(byte.size());
    while (!utf8.empty()) {
        if (static_cast<unsigned char>(utf8.front()) < 0x80) {
            byte.push_back(utf8.front());
            utf8.remove_prefix(1);
        } else {
            byte.push_back(Codice(Prendi(utf8)).value_or('?'));
        }
    }
    return byte;
}

std::string_view InWindows1252(std::string_view utf8, std::string& byte)
{
    if (SoloAscii(utf8)) return utf8;
    byte = InWindows1252(utf8);
    return byte;
}

bool EntraInWindows1252(std::string_view utf8)
{
    while (!utf8.empty()) {
        if (!Codice(Prendi(utf8))) return false;
    }
    return true;
}

char32_t DaWindows1252(unsigned char codice)
{
    constexpr unsigned primo = 0x80;
    const bool proprio = codice < primo || codice >= primo + DaOttanta.size();
    return proprio ? codice : DaOttanta[codice - primo];
}

void AggiungiUtf8(std::string& testo, char32_t carattere)
{
    const auto coda = [&testo](char32_t bit) {
        testo.push_back(static_cast<char>(static_cast<unsigned char>(0x80u | (bit & 0x3Fu))));
    };
    const auto testa = [&testo](char32_t bit) {
        testo.push_back(static_cast<char>(static_cast<unsigned char>(bit)));
    };
    if (carattere > 0x10FFFF || (carattere >= 0xD800 && carattere <= 0xDFFF)) {
        testo.push_back('?');
    } else if (carattere < 0x80) {
        testa(carattere);
    } else if (carattere < 0x800) {
        testa(0xC0u | (carattere >> 6));
        coda(carattere);
    } else if (carattere < 0x10000) {
        testa(0xE0u | (carattere >> 12));
        coda(carattere >> 6);
        coda(carattere);
    } else {
        testa(0xF0u | (carattere >> 18));
        coda(carattere >> 12);
        coda(carattere >> 6);
        coda(carattere);
    }
}
