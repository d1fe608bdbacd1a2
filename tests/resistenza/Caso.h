// Chance that can be repeated: one seed, one sequence of choices.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace resistenza {

class Caso
{
public:
    explicit Caso(std::uint64_t seme)
        : m_stato(seme)
    {
    }

    // 64 bits (splitmix64). The library's distributions differ from one library to the next.
    std::uint64_t Bit()
    {
        m_stato += 0x9E3779B97F4A7C15U;
        std::uint64_t z = m_stato;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
        return z ^ (z >> 31U);
    }

    // A whole number from da to a, both included.
    int Intero(int da, int a)
    {
        return da + static_cast<int>(Bit() % static_cast<std::uint64_t>(a - da + 1));
    }

    // A number from da to a.
    double Reale(double da, double a)
    {
        constexpr double passi = 1 << 24;
        return da + (a - da) * static_cast<double>(Bit() >> 40U) / passi;
    }

    // True one time in quante.
    bool Una(int quante) { return Intero(1, quante) == 1; }

    // One of them; there must be some.
    template <typename Cosa>
    const Cosa& Fra(const std::vector<Cosa>& cose)
    {
        return cose[static_cast<std::size_t>(Bit() % cose.size())];
    }

private:
    std::uint64_t m_stato;
};

} // namespace resistenza
