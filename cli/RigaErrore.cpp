// Makes any text harmless and short enough for one line; who decides what is told: Comando.cpp.
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

// U+2028 to 202E and U+2066 to 2069: separators of lines and paragraphs, and what turns the
// direction of the text behind it, so that a name could show itself as another one.
bool GiraORompe(std::string_view carattere)
{
    const auto ultimo = static_cast<unsigned char>(carattere.back());
    if (carattere.starts_with("\xE2\x80")) return ultimo >= 0xA8 && ultimo <= 0xAE;
    return carattere.starts_with("\xE2\x81") && ultimo >= 0xA6 && ultimo <= 0xA9;
}

// Control characters and the above: what a terminal would obey instead of showing it.
bool DiControllo(std::string_view carattere)
{
    constexpr unsigned char cancella = 0x7F;
    const auto primo = static_cast<unsigned char>(carattere.front());
    const auto ultimo = static_cast<unsigned char>(carattere.back());
    if (carattere.size() == 1) return primo < ' ' || (primo >= cancella && primo <= 0x9F);
    if (carattere.size() == 2) return primo == 0xC2 && ultimo <= 0x9F;
    return GiraORompe(carattere);
}

void AggiungiInnocuo(Riga& riga, std::string_view testo) noexcept
{
    while (!testo.empty()) {
        const auto carattere = testo.substr(0, LunghezzaCarattere(testo));
        testo.remove_prefix(carattere.size());
        if (DiControllo(carattere)) riga.Aggiungi('?');
        else
            for (const char c : carattere) riga.Aggiungi(c);
    }
}

bool AMeta(std::string_view testo, std::size_t posto)
{
    return Continua(static_cast<unsigned char>(testo[posto]));
}

// The first and the last quanti bytes of a longer text, or up to three fewer: whole characters.
std::string_view Inizio(std::string_view testo, std::size_t quanti)
{
    for (int i = 0; i < 3 && AMeta(testo, quanti); ++i) --quanti;
    return testo.substr(0, quanti);
}

std::string_view Fine(std::string_view testo, std::size_t quanti)
{
    std::size_t da = testo.size() - quanti;
    for (int i = 0; i < 3 && AMeta(testo, da); ++i) ++da;
    return testo.substr(da);
}

// An argument may have 128 KiB. No file has a name of more than 4 KiB, and those are told whole,
// with the reason behind them.
void AggiungiAccorciato(Riga& riga, std::string_view testo) noexcept
{
    constexpr std::size_t massimo = 4608;
    constexpr std::size_t capo = 120;
    constexpr std::size_t coda = 200; // the reason is in it
    if (testo.size() <= massimo) return AggiungiInnocuo(riga, testo);
    AggiungiInnocuo(riga, Inizio(testo, capo));
    AggiungiInnocuo(riga, "...");
    AggiungiInnocuo(riga, Fine(testo, coda));
}

} // namespace

void ScriviErrore(std::initializer_list<std::string_view> parti) noexcept
{
    Riga riga;
    AggiungiInnocuo(riga, "taglie: ");
    for (const auto parte : parti) AggiungiAccorciato(riga, parte);
    riga.Aggiungi('\n');
    riga.Scarica();
}

} // namespace cli
