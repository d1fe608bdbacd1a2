// The style sheets of the HTML report, Stampe_Html.cpp.
#pragma once

#include <string>

namespace Stampe {

enum class FoglioStile
{
    Completo,    // full report: cards, coup tables, general statistics
    Statistiche, // statistics only: the rules that its one table needs
};

// Appends the rules, one line each for selector, declarations and closing brace.
void AggiungiStile(std::string& testo, FoglioStile foglio);

} // namespace Stampe
