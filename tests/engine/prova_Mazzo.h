// Random numbers as a test wants them, for the draws (prova_Casuale.cpp) and the shuffle
// (prova_Mazzo.cpp).
#pragma once

#include "modCarte.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

// Gives the r's of a list in turn, then the last one for ever; takes itself out at its end.
class SorgenteFissa
{
public:
    explicit SorgenteFissa(std::vector<float> numeri)
    {
        s_numeri = std::move(numeri);
        s_letti = 0;
        modCarte::ImpostaSorgente([] {
            const std::size_t posto = std::min(s_letti++, s_numeri.size() - 1);
            return s_numeri[posto];
        });
    }
    ~SorgenteFissa() { modCarte::ImpostaSorgente(nullptr); }
    SorgenteFissa(const SorgenteFissa&) = delete;
    SorgenteFissa& operator=(const SorgenteFissa&) = delete;
    static std::size_t Letti() { return s_letti; }

private:
    static inline std::vector<float> s_numeri;
    static inline std::size_t s_letti = 0;
};

// The least and the greatest r of the module's own generator.
inline constexpr float Minimo = 0.5F / 8388608.0F;
inline constexpr float Massimo = 8388607.5F / 8388608.0F;

// Whether the shoe of this thread holds every card once.
inline bool OgniCartaUnaVolta()
{
    auto ordinate = modCarte::Mazzo;
    std::sort(ordinate.begin(), ordinate.end());
    for (std::size_t i = 0; i < ordinate.size(); ++i) {
        if (ordinate[i] != static_cast<std::int16_t>(i + 1)) return false;
    }
    return true;
}
