// Whole numbers of 128 bits, for quotients that must be exact: the compiler's own where it has
// some, numbers made of four parts elsewhere (on 32-bit processors). Both do the same.
#pragma once

#include "ErroreRuntime.h"

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>

namespace Stampe {

// From 0 to 2^128 - 1. Error 6 (Overflow) for a product, a sum or a shift (by 0 to 127) beyond
// that.
class Intero128DiParti
{
public:
    constexpr Intero128DiParti(std::uint64_t valore = 0)
        : m_parti{static_cast<std::uint32_t>(valore), static_cast<std::uint32_t>(valore >> Bit)}
    {
    }

    Intero128DiParti operator*(std::uint64_t fattore) const
    {
        const auto basso = static_cast<std::uint32_t>(fattore);
        const auto alto = static_cast<std::uint32_t>(fattore >> Bit);
        return Per(basso) + (Per(alto) << int{Bit});
    }

    Intero128DiParti operator+(const Intero128DiParti& altro) const
    {
        Intero128DiParti somma;
        std::uint64_t riporto = 0;
        for (std::size_t i = 0; i < Parti; ++i) {
            riporto += std::uint64_t{m_parti[i]} + altro.m_parti[i];
            somma.m_parti[i] = static_cast<std::uint32_t>(riporto);
            riporto >>= Bit;
        }
        PretendiEntro(riporto == 0);
        return somma;
    }

    Intero128DiParti operator<<(int posti) const
    {
        Intero128DiParti spostato = *this;
        for (; posti > 0; --posti) spostato = spostato + spostato;
        return spostato;
    }

    // The whole part of the quotient; the divisor is not 0.
    Intero128DiParti operator/(const Intero128DiParti& divisore) const
    {
        Intero128DiParti quoziente;
        Intero128DiParti resto;
        for (std::size_t posto = Parti * Bit; posto-- > 0;) {
            // What leaves the remainder at the top counts, too: a large divisor is below it then.
            const bool oltre = resto.HaBit(Parti * Bit - 1);
            resto.Raddoppia(HaBit(posto));
            if (!oltre && resto < divisore) continue;
            resto.Togli(divisore);
            quoziente.m_parti[posto / Bit] |= std::uint32_t{1} << (posto % Bit);
        }
        return quoziente;
    }

    std::strong_ordering operator<=>(const Intero128DiParti& altro) const
    {
        for (std::size_t i = Parti; i-- > 0;) {
            if (m_parti[i] != altro.m_parti[i]) return m_parti[i] <=> altro.m_parti[i];
        }
        return std::strong_ordering::equal;
    }
    bool operator==(const Intero128DiParti&) const = default;

    // The lowest 64 bits.
    std::uint64_t Basso() const { return std::uint64_t{m_parti[1]} << Bit | m_parti[0]; }

private:
    static constexpr std::uint8_t Bit = 32;
    static constexpr std::size_t Parti = 4;

    static void PretendiEntro(bool entro)
    {
        if (!entro) throw ErroreRuntime(NumeroErrore::Overflow);
    }

    Intero128DiParti Per(std::uint32_t fattore) const
    {
        Intero128DiParti prodotto;
        std::uint64_t riporto = 0;
        for (std::size_t i = 0; i < Parti; ++i) {
            riporto += std::uint64_t{m_parti[i]} * fattore;
            prodotto.m_parti[i] = static_cast<std::uint32_t>(riporto);
            riporto >>= Bit;
        }
        PretendiEntro(riporto == 0);
        return prodotto;
    }

    bool HaBit(std::size_t posto) const { return (m_parti[posto / Bit] >> (posto % Bit) & 1) != 0; }

    // Twice the number and the bit, modulo 2^128.
    void Raddoppia(bool bit)
    {
        std::uint32_t entra = bit ? 1 : 0;
        for (auto& parte : m_parti) {
            const std::uint32_t esce = parte >> (Bit - 1);
            parte = parte << 1 | entra;
            entra = esce;
        }
    }

    // Less the other, modulo 2^128.
    void Togli(const Intero128DiParti& altro)
    {
        std::uint64_t riporto = 1;
        for (std::size_t i = 0; i < Parti; ++i) {
            riporto += std::uint64_t{m_parti[i]} + static_cast<std::uint32_t>(~altro.m_parti[i]);
            m_parti[i] = static_cast<std::uint32_t>(riporto);
            riporto >>= Bit;
        }
    }

    std::array<std::uint32_t, Parti> m_parti; // the lowest first
};

#ifdef __SIZEOF_INT128__

// The same with the compiler's own numbers.
class Intero128DelCompilatore
{
public:
    constexpr Intero128DelCompilatore(std::uint64_t valore = 0)
        : m_valore(valore)
    {
    }

    Intero128DelCompilatore operator*(std::uint64_t fattore) const
    {
        Intero128DelCompilatore prodotto;
        PretendiEntro(!__builtin_mul_overflow(m_valore, fattore, &prodotto.m_valore));
        return prodotto;
    }

    Intero128DelCompilatore operator+(const Intero128DelCompilatore& altro) const
    {
        Intero128DelCompilatore somma;
        PretendiEntro(!__builtin_add_overflow(m_valore, altro.m_valore, &somma.m_valore));
        return somma;
    }

    Intero128DelCompilatore operator<<(int posti) const
    {
        Intero128DelCompilatore spostato;
        spostato.m_valore = m_valore << posti;
        PretendiEntro(spostato.m_valore >> posti == m_valore);
        return spostato;
    }

    Intero128DelCompilatore operator/(const Intero128DelCompilatore& divisore) const
    {
        Intero128DelCompilatore quoziente;
        quoziente.m_valore = m_valore / divisore.m_valore;
        return quoziente;
    }

    std::strong_ordering operator<=>(const Intero128DelCompilatore& altro) const
    {
        return m_valore < altro.m_valore   ? std::strong_ordering::less
               : m_valore > altro.m_valore ? std::strong_ordering::greater
                                           : std::strong_ordering::equal;
    }
    bool operator==(const Intero128DelCompilatore& altro) const
    {
        return m_valore == altro.m_valore;
    }

    std::uint64_t Basso() const { return static_cast<std::uint64_t>(m_valore); }

private:
    static void PretendiEntro(bool entro)
    {
        if (!entro) throw ErroreRuntime(NumeroErrore::Overflow);
    }

    __extension__ unsigned __int128 m_valore;
};

using Intero128 = Intero128DelCompilatore;

#else

using Intero128 = Intero128DiParti;

#endif

} // namespace Stampe
