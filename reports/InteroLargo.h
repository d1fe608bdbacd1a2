// Whole numbers of 192 bits, for sums of products that must not be rounded: the estimates of
// Studio.cpp.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace Stampe {

// Unsigned; every operation is modulo 2^192, so that a difference of two sums is right whenever it
// is not negative.
class InteroLargo
{
public:
    constexpr explicit InteroLargo(std::uint64_t valore)
        : m_parti{static_cast<std::uint32_t>(valore), static_cast<std::uint32_t>(valore >> Bit)}
    {
    }

    InteroLargo operator*(std::uint64_t fattore) const
    {
        return Per(static_cast<std::uint32_t>(fattore), 0) +
               Per(static_cast<std::uint32_t>(fattore >> Bit), 1);
    }

    InteroLargo operator+(const InteroLargo& altro) const
    {
        InteroLargo somma(0);
        std::uint64_t riporto = 0;
        for (std::size_t i = 0; i < m_parti.size(); ++i) {
            riporto += std::uint64_t{m_parti[i]} + altro.m_parti[i];
            somma.m_parti[i] = static_cast<std::uint32_t>(riporto);
            riporto >>= Bit;
        }
        return somma;
    }

    InteroLargo operator-(const InteroLargo& altro) const
    {
        InteroLargo complemento(0);
        for (std::size_t i = 0; i < m_parti.size(); ++i) complemento.m_parti[i] = ~altro.m_parti[i];
        return *this + complemento + InteroLargo(1);
    }

    // The nearest number but for the last bit or two; 0 is exactly 0.
    double InDouble() const
    {
        double valore = 0;
        for (std::size_t i = 0; i < m_parti.size(); ++i) {
            valore += std::ldexp(m_parti[i], Bit * static_cast<int>(i));
        }
        return valore;
    }

private:
    static constexpr int Bit = 32;

    // Times fattore times 2^(32 posti).
    InteroLargo Per(std::uint32_t fattore, std::size_t posti) const
    {
        InteroLargo prodotto(0);
        std::uint64_t riporto = 0;
        for (std::size_t i = 0; i + posti < m_parti.size(); ++i) {
            riporto += std::uint64_t{m_parti[i]} * fattore;
            prodotto.m_parti[i + posti] = static_cast<std::uint32_t>(riporto);
            riporto >>= Bit;
        }
        return prodotto;
    }

    std::array<std::uint32_t, 6> m_parti; // the lowest first
};

} // namespace Stampe
