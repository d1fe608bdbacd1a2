#include "RigaErrore.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

namespace cli {

namespace {

// Collects bytes so that a line of usual length goes out in one piece: other programs may write to
// the same terminal.
class Riga
{
public:
    void Aggiungi(char c) noexcept
    {
        if (m_quanti == m_byte.size()) Scarica();
        m_byte[m_quanti++] = c;
    }

    void Scarica() noexcept
    {
        std::fwrite(m_byte.data(), 1, m_quanti, stderr);
        m_quanti = 0;
    }

private:
    std::array<char, 8192> m_byte;
    std::size_t m_quanti = 0;
};

bool Continua(unsigned char byte)
{
    return (byte & 0xC0U) == 0x80U;
}

// How many bytes the UTF-8 character takes that the text begins with; 1 for a byte that begins
// none.
std::size_t LunghezzaCarattere(std::string_view testo)
{
    const auto primo = static_cast<unsigned char>(testo.front());
    std::size_t lunghezza = 1;
    if (primo >= 0xC2 && primo <= 0xDF) lunghezza = 2;
    else if (primo >= 0xE0 && primo <= 0xEF) lunghezza = 3;
    else if (primo >= 0xF0 && primo <= 0xF4) lunghezza = 4;
    if (lunghezza > testo.size()) return 1;
    const auto coda = testo.substr(1, lunghezza - 1);
    if (!std::all_of(coda.begin(), coda.end(),
                     [](char c) { return Continua(static_cast<unsigned char>(c)); })) {
        return 1;
    }
    // A longer form than needed hides what it stands for.
    const auto secondo = lunghezza > 1 ? static_cast<unsigned char>(testo[1]) : 0U;
    if ((primo == 0xE0 && secondo < 0xA0) || (primo == 0xF0 && secondo < 0x90)) return 1;
    return lunghezza;
}

bool Comando(std::string_view carattere)
{
    constexpr unsigned char cancella = 0x7F;
    const auto primo = static_cast<unsigned char>(carattere.front());
    const auto ultimo = static_cast<unsigned char>(carattere.back());
    if (carattere.size() == 1) return primo < ' ' || (primo >= cancella && primo <= 0x9F);
    return primo == 0xC2 && ultimo <= 0x9F;
}

void AggiungiInnocuo(Riga& riga, std::string_view testo) noexcept
{
    while (!testo.empty()) {
        const auto carattere = testo.substr(0, LunghezzaCarattere(testo));
        testo.remove_prefix(carattere.size());
        if (Comando(carattere)) riga.Aggiungi('?');
        else
            for (const char c : carattere) riga.Aggiungi(c);
    }
}

} // namespace

void ScriviErrore(std::initializer_list<std::string_view> parti) noexcept
{
    Riga riga;
    AggiungiInnocuo(riga, "taglie: ");
    for (const auto parte : parti) AggiungiInnocuo(riga, parte);
    riga.Aggiungi('\n');
    riga.Scarica();
}

} // namespace cli
