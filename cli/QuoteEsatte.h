// Exact odds of the first coup of a shoe, worked out from its composition. The tests work them out
// again and compare.
#pragma once

#include "Studio.h"

#include <array>
#include <string_view>

namespace cli {

struct QuotaEsatta
{
    std::string_view Esito; // name of the field of StatisticheTaglia
    double Probabilita;
};

// In the order of StatisticheTaglia. Nero and Rosso are alike while the shoe cannot run out, and
// so are Colore and Inverso, since every value has as many black cards as red ones.
inline constexpr std::array<QuotaEsatta, Stampe::NumeroEsiti> QuotePrimoColpo = {{
    {"VinceNero", 0.44520054341892984},
    {"VinceRosso", 0.44520054341892984},
    {"Colore", 0.44520054341892984},
    {"Inverso", 0.44520054341892984},
    {"Pari", 0.10959891316214038},
    {"TrentunoApres", 0.021891370486570891},
    {"NeroColore", 0.22260027170946492},
    {"NeroInverso", 0.22260027170946492},
    {"RossoColore", 0.22260027170946492},
    {"RossoInverso", 0.22260027170946492},
}};

} // namespace cli
