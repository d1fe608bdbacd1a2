// One number for the whole behaviour of the engine: any change of a record or of a count changes
// it. The benchmark prints it and a test holds it.
#pragma once

#include "modCarte.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace aiuti {

// The value for 1,000 shoes of seed 2026, in every build.
inline constexpr std::uint64_t FirmaAttesa = 16794926542622035867U;

// FNV-1a, 64 bits.
class Impronta
{
public:
    void Aggiungi(std::string_view testo)
    {
        for (const char c : testo) AggiungiByte(static_cast<unsigned char>(c));
        AggiungiByte(0);
    }

    void Aggiungi(double conto) { AggiungiByte(static_cast<unsigned char>(conto)); }

    std::uint64_t Valore() const { return m_valore; }

private:
    void AggiungiByte(unsigned char byte) { m_valore = (m_valore ^ byte) * 0x100000001B3u; }

    std::uint64_t m_valore = 0xCBF29CE484222325u;
};

// Plays the shoes 1 to taglie of a seed and hashes all their records and statistics.
inline std::uint64_t FirmaMotore(std::uint64_t seme = 2026, std::uint64_t taglie = 1000)
{
    Impronta impronta;
    for (std::uint64_t taglia = 1; taglia <= taglie; ++taglia) {
        modCarte::AvviaSeme(seme, taglia);
        modCarte::SimulaTaglia();
        for (const auto& record : modCarte::Colpi) impronta.Aggiungi(record);
        const auto& s = modCarte::Statistiche;
        const std::array<double, 10> conti = {
            s.VinceNero,     s.VinceRosso, s.Colore,      s.Inverso,     s.Pari,
            s.TrentunoApres, s.NeroColore, s.NeroInverso, s.RossoColore, s.RossoInverso};
        for (const double conto : conti) impronta.Aggiungi(conto);
    }
    return impronta.Valore();
}

} // namespace aiuti
