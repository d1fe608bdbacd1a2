// The random numbers behind the shuffle; only engine/ includes this. Who draws: Mazzo.cpp.
#pragma once

#include "ErroreRuntime.h"
#include "Numeri.h"

#include <bit>
#include <cstdint>

namespace modCarte::casuale {

// A small fast generator: three words stirred by shifts and additions plus a counter, 256 bits of
// state, no bad state to avoid, so that anything can be mixed into it at any time.
struct Generatore
{
    std::uint64_t a = 0;
    std::uint64_t b = 0;
    std::uint64_t c = 0;
    std::uint64_t contatore = 1;

    std::uint64_t Prossimo()
    {
        const std::uint64_t numero = a + b + contatore++;
        a = b ^ (b >> 11);
        b = c + (c << 3);
        c = std::rotl(c, 24) + numero;
        return numero;
    }
};

// Where the next r comes from.
enum class Modo : std::uint8_t
{
    DaAvviare, // nothing asked yet: entropy at the first draw
    Entropia,
    Seme,
};

// Everything a draw needs, one per thread.
struct Stato
{
    Generatore generatore;
    Modo modo = Modo::DaAvviare;
    double (*orologio)() = nullptr;
    float (*sorgente)() = nullptr;
};

// The calling thread's state, ready to draw.
Stato& StatoPronto();

// Mixes the clock of the state into its stream.
void MescolaOrologio(Stato& stato);

// The next r, uniform in the open interval (0, 1): 2^23 equally likely values, each exact in
// single precision. A replaced source may return 0, too.
inline float NumeroR(Stato& stato)
{
    if (stato.sorgente != nullptr) return stato.sorgente();
    // The clock is read before every single draw on purpose: the moment of each draw counts, so
    // that no shoe follows from the entropy of the start alone. It moves the stream on and never
    // restarts it: two draws in one tick of the clock still differ.
    if (stato.modo == Modo::Entropia) MescolaOrologio(stato);
    constexpr int scarto = 64 - 23;
    const auto k = static_cast<float>(stato.generatore.Prossimo() >> scarto);
    constexpr float passo = 1.0F / 8388608.0F; // 2^-23
    return (k + 0.5F) * passo;
}

// The public Casuale with the state at hand.
inline std::int16_t Casuale(Stato& stato, std::int16_t massimo, std::int16_t minimo)
{
    const std::int16_t d = Intero16(std::int64_t{massimo} - minimo + 1);
    const float r = NumeroR(stato);
    // Single-precision factors, but product and sum in double: in single precision the largest r
    // would round some sums up to the next position.
    const double somma = static_cast<double>(static_cast<float>(d)) * static_cast<double>(r) +
                         static_cast<double>(static_cast<float>(minimo));
    // A number of any size (a replaced source may give it) must be refused before it is converted.
    constexpr double limite = 32768;
    if (!(somma >= -limite && somma < limite)) throw ErroreRuntime(NumeroErrore::Overflow);
    // Truncation and one step down is the floor, at a third of a library call's cost.
    const int troncata = static_cast<int>(somma);
    return static_cast<std::int16_t>(somma < troncata ? troncata - 1 : troncata);
}

} // namespace modCarte::casuale
