// The standard library's way to the system's entropy; engine/Casuale.cpp seeds the game with it.
#include "Entropia.h"

#include <random>

std::uint64_t Entropia64()
{
    std::random_device sorgente;
    const std::uint64_t alti = sorgente();
    return (alti << 32) | sorgente();
}
