// The rows of the general statistics that every report shows: label, total and share. Where they
// stand is the business of each layout: Stampe_Txt.cpp, Stampe_Html.cpp, Stampe_Pdf.cpp and
// Stampe_Video.cpp.
#pragma once

#include "CorsaTaglie.h"
#include "Esiti.h"
#include "Separatori.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Stampe {

// The headings above the general statistics, and the label of their first row.
inline constexpr std::string_view TitoloSimulazione = "Simulazione taglie";
inline constexpr std::string_view TitoloStatistiche = "Statistiche generali";
inline constexpr std::string_view EtichettaNumero = "Numero taglie:";

// Labels of the outcomes, in the order of modCarte::OrdineReport.
inline constexpr std::array<std::string_view, modCarte::NumeroMostrati> EtichetteEsiti = {
    "Vincite Nero:",          "Vincite Rosso:",        "Colpi pari:",
    "Vincite Colore:",        "Vincite Inverso:",      "31 après:",
    "Vincite Nero-Colore:",   "Vincite Nero-Inverso:", "Vincite Rosso-Colore:",
    "Vincite Rosso-Inverso:",
};
static_assert(!EtichetteEsiti.back().empty(), "each outcome that reports show has a label");

// A label for where there is less room, or where a heading says already what is counted: the
// combined outcomes lose the word "Vincite". posto: an index of EtichetteEsiti.
constexpr std::string_view EtichettaBreve(std::size_t posto)
{
    constexpr std::string_view parola = "Vincite ";
    const std::string_view etichetta = EtichetteEsiti.at(posto);
    return posto < modCarte::PrimoCombinato ? etichetta : etichetta.substr(parola.size());
}

struct RigaGenerale
{
    std::string_view Etichetta;
    std::int64_t Totale;
    std::string Quota; // coups for each shoe; cards used or coups with the outcome in percent
};

// Where the outcomes begin among the rows, and the combined ones.
inline constexpr std::size_t PrimoEsito = 2;
inline constexpr std::size_t PrimaCombinata = PrimoEsito + modCarte::PrimoCombinato;

// The rows that follow the number of shoes: coups, cards, then the outcomes in the order of
// modCarte::OrdineReport. Error 11 when there are no coups.
std::vector<RigaGenerale> RigheGenerali(const NumeroTaglie& chieste, const TotaliReport& totali,
                                        const Separatori& separatori);

} // namespace Stampe
