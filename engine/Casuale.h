// The random numbers behind the shuffle; only engine/ includes this.
#pragma once

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

// The next r, uniform in the open interval (0, 1): 2^23 equally likely values, each exact in
// single precision. A replaced source may return 0, too.
float NumeroR(Stato& stato);

// The public Casuale with the state at hand.
std::int16_t Casuale(Stato& stato, std::int16_t massimo, std::int16_t minimo);

} // namespace modCarte::casuale
