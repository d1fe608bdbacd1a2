// A bare loop that shuffles, deals and counts, and does nothing else; bench_taglie.cpp measures the
// engine against it.
#include "CorsaNuda.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <numeric>

namespace bench {

namespace {

constexpr int CarteTaglia = 312;
constexpr int Annullate = 5;
constexpr int DaSuperare = 30;

struct Carta
{
    std::int8_t punti;
    bool nera;
};

using Mazzo = std::array<std::int16_t, CarteTaglia>;

constexpr auto Carte = [] {
    std::array<Carta, CarteTaglia> carte{};
    for (int i = 0; i < CarteTaglia; ++i) {
        const int valore = i % 13 + 1;
        const bool nera = i % 52 >= 26;
        carte[static_cast<std::size_t>(i)] = {static_cast<std::int8_t>(std::min(valore, 10)), nera};
    }
    return carte;
}();

// xoroshiro128+: two words of state.
struct Generatore
{
    std::uint64_t a = 0x9E3779B97F4A7C15u;
    std::uint64_t b = 0xBF58476D1CE4E5B9u;

    std::uint32_t Sotto(std::uint32_t limite)
    {
        const std::uint64_t numero = a + b;
        b ^= a;
        a = std::rotl(a, 24) ^ b ^ (b << 16);
        b = std::rotl(b, 37);
        return static_cast<std::uint32_t>(((numero >> 32) * limite) >> 32);
    }
};

void Mescola(Mazzo& mazzo, Generatore& generatore)
{
    for (std::uint32_t i = CarteTaglia - 1; i > 0; --i) {
        std::swap(mazzo[i], mazzo[generatore.Sotto(i + 1)]);
    }
}

const Carta& CartaA(const Mazzo& mazzo, int posto)
{
    return Carte[static_cast<std::size_t>(mazzo[static_cast<std::size_t>(posto)])];
}

int Mano(const Mazzo& mazzo, int& posto)
{
    int totale = 0;
    while (totale <= DaSuperare && posto < CarteTaglia) totale += CartaA(mazzo, posto++).punti;
    return totale;
}

void Gioca(const Mazzo& mazzo, ContiCorsa& conti)
{
    int posto = Annullate;
    for (;;) {
        const int prima = posto;
        const int nero = Mano(mazzo, posto);
        const int rosso = Mano(mazzo, posto);
        if (nero <= DaSuperare || rosso <= DaSuperare) return;
        const bool primaNera = CartaA(mazzo, prima).nera;
        if (nero == rosso) {
            ++conti.pari;
            if (nero == DaSuperare + 1) ++conti.trentuno;
            continue;
        }
        const bool vinceNero = nero < rosso;
        ++(vinceNero ? conti.nero : conti.rosso);
        ++(vinceNero == primaNera ? conti.colore : conti.inverso);
    }
}

} // namespace

ContiCorsa CorsaNuda(std::int64_t taglie)
{
    Generatore generatore;
    Mazzo mazzo;
    std::iota(mazzo.begin(), mazzo.end(), std::int16_t{0});
    ContiCorsa conti;
    for (std::int64_t i = 0; i < taglie; ++i) {
        Mescola(mazzo, generatore);
        Gioca(mazzo, conti);
    }
    return conti;
}

} // namespace bench
