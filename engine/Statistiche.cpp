// Counting the outcomes of a shoe from its records, by the table of Esiti.h.

#include "modCarte.h"

#include "ErroreRuntime.h"

#include <cstddef>
#include <utility>

namespace modCarte {

constinit thread_local StatisticheTaglia Statistiche{};

namespace {

template <std::size_t esito>
bool Conta(const RecordColpo& colpo)
{
    constexpr auto riga = Esiti<double>[esito];
    if constexpr (riga.Insieme) {
        if (!(colpo.*(*riga.Insieme))()) return false;
    }
    return (colpo.*riga.Quando)();
}

// Spelt out outcome by outcome, so that the compiler puts each question in place of a call.
template <std::size_t... esiti>
EsitiColpo EsitiDi(const RecordColpo& colpo, std::index_sequence<esiti...>)
{
    return {Conta<esiti>(colpo)...};
}

} // namespace

EsitiColpo EsitiDelColpo(const RecordColpo& colpo)
{
    return EsitiDi(colpo, std::make_index_sequence<NumeroEsiti>());
}

void CalcolaStatistiche(std::int16_t n)
{
    const auto& colpi = Colpi;
    if (n >= 1 && static_cast<std::size_t>(n) >= colpi.size()) {
        throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    }
    EsitiColpo somme{}; // n has 16 bits, and so no sum has more
    for (int i = 1; i <= n; ++i) {
        const auto esiti = EsitiDelColpo(RecordColpo(colpi[static_cast<std::size_t>(i)]));
        for (std::size_t j = 0; j < NumeroEsiti; ++j) {
            somme[j] = static_cast<std::uint16_t>(somme[j] + esiti[j]);
        }
    }
    for (std::size_t j = 0; j < NumeroEsiti; ++j) Conto(Statistiche, j) = somme[j];
}

} // namespace modCarte
