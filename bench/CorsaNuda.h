// The least work that any simulation of the game must do: what the engine is measured against.
#pragma once

#include <cstdint>

namespace bench {

struct ContiCorsa
{
    std::int64_t nero = 0;
    std::int64_t rosso = 0;
    std::int64_t pari = 0;
    std::int64_t trentuno = 0;
    std::int64_t colore = 0;
    std::int64_t inverso = 0;
};

// Plays taglie shoes with a fast generator, an exchange shuffle, whole-number points and counters
// only: no records, no clock, no second pass.
ContiCorsa CorsaNuda(std::int64_t taglie);

} // namespace bench
