// Memory that runs out when a test wants it to: replaces operator new of the program it is linked
// into, for all of its libraries and threads.
#pragma once

#include <cstdint>

namespace memoria {

enum class Durata
{
    UnaVolta,
    DaAllora,
};

// Counts from here on; request number quale (from 1) fails, with DaAllora all later ones, too.
// 0: none fails.
void Guasta(std::uint64_t quale, Durata durata = Durata::UnaVolta);

// Ends that and returns how many requests there were.
std::uint64_t Ripara();

// How many blocks have been taken and not given back, ever.
std::int64_t Presi();

} // namespace memoria
