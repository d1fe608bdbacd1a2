// The totals of a run for other programs: JSON and CSV. The fields are described in
// docs/dati.md; the figures come from reports/Studio.h.
#pragma once

#include "CorsaTaglie.h"
#include "Opzioni.h"
#include "Studio.h"

#include <cstdint>
#include <optional>
#include <string>

namespace cli {

// The run itself, as its data tell of it.
struct NotizieCorsa
{
    std::optional<std::uint64_t> Seme;
    double Secondi;
};

// The text for standard output, ending in a line end. Numbers have "." whatever the locale.
std::string TestoDati(FormaDati forma, const Stampe::TotaliReport& totali,
                      const Stampe::Studio& studio, const NotizieCorsa& corsa);

} // namespace cli
