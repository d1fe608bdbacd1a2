#include "Entropia.h"

#include <random>

std::uint64_t Entropia64()
{
    std::random_device sorgente;
    const std::uint64_t alti = sorgente();
    return (alti << 32) | sorgente();
}
