// Detectors: what a uniform shuffle looks like over many shoes, and how far these shoes are from
// it.
#pragma once

#include "modCarte.h"

#include <cstdint>
#include <span>
#include <vector>

namespace statistica {

using Taglia = std::span<const std::int16_t, modCarte::CarteTaglia>;

// Numbers of standard deviations, but for Ripetute.
struct Misure
{
    double Posti;            // chi-square of card against position
    double Successioni;      // chi-square of card against the card that follows it
    double CellaPosti;       // the farthest single cell of the first table
    double CellaSuccessioni; // and of the second
    std::int64_t Ripetute;   // shoes that had come before

    // Whether any detector has gone off.
    bool Sospette() const;
};

// Cells of either table.
inline constexpr int CellePosti = modCarte::CarteTaglia * modCarte::CarteTaglia;
inline constexpr int CelleSuccessioni = modCarte::CarteTaglia * (modCarte::CarteTaglia - 1);

// Gathers whole shoes, each a permutation of the codes 1 to 312, and measures them.
class Rivelatori
{
public:
    void Guarda(Taglia taglia);

    // At least two shoes must have been seen.
    Misure Misura() const;

private:
    std::int64_t m_taglie = 0;
    std::vector<std::uint32_t> m_posti = std::vector<std::uint32_t>(CellePosti);
    std::vector<std::uint32_t> m_successioni = std::vector<std::uint32_t>(CellePosti);
    std::vector<std::uint64_t> m_impronte;
};

// Shuffles so many shoes by mescola(i), each of which leaves its shoe in modCarte::Mazzo.
template <typename Mescola>
Misure MisuraMazzi(std::int64_t quante, Mescola mescola)
{
    Rivelatori rivelatori;
    for (std::int64_t i = 0; i < quante; ++i) {
        mescola(static_cast<std::uint64_t>(i));
        rivelatori.Guarda(modCarte::Mazzo);
    }
    return rivelatori.Misura();
}

} // namespace statistica
