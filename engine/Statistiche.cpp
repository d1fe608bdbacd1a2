// Counting the outcomes of a shoe from its records, by the table of Esiti.h.

#include "modCarte.h"

#include "ErroreRuntime.h"

#include <algorithm>
#include <cstddef>

namespace modCarte {

constinit thread_local StatisticheTaglia Statistiche{};

namespace {

// The letters that the table asks about; their position, or the one past the last for any other
// text, says what stands in a field.
constexpr std::string_view LettereEsito = "NRE";
constexpr std::string_view LettereColore = "CI";

constexpr std::size_t PostoLettera(std::string_view lettere, std::string_view campo)
{
    if (campo.size() != 1) return lettere.size();
    return std::min(lettere.find(campo.front()), lettere.size());
}

constexpr bool Accetta(char richiesta, std::string_view lettere, std::size_t posto)
{
    return richiesta == Ogni || (posto < lettere.size() && lettere[posto] == richiesta);
}

// All that the table can tell of a record.
struct Caso
{
    std::size_t Esito;
    std::size_t Colore;
    bool Trentuno;
};

constexpr std::size_t CasiColore = LettereColore.size() + 1;
constexpr std::size_t NumeroCasi = (LettereEsito.size() + 1) * CasiColore * 2;

constexpr std::size_t Indice(const Caso& caso)
{
    return (caso.Esito * CasiColore + caso.Colore) * 2 + (caso.Trentuno ? 1 : 0);
}

constexpr EsitiColpo EsitiDelCaso(const Caso& caso)
{
    EsitiColpo esiti{};
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        const auto& riga = Esiti<double>[i];
        const bool conta = Accetta(riga.Esito, LettereEsito, caso.Esito) &&
                           Accetta(riga.Colore, LettereColore, caso.Colore) &&
                           (!riga.Trentuno || caso.Trentuno);
        esiti[i] = conta ? 1 : 0;
    }
    return esiti;
}

// Worked out once for each case: a record then costs one addition of all outcomes together.
constexpr std::array<EsitiColpo, NumeroCasi> EsitiDeiCasi = [] {
    std::array<EsitiColpo, NumeroCasi> esiti{};
    for (std::size_t esito = 0; esito <= LettereEsito.size(); ++esito) {
        for (std::size_t colore = 0; colore <= LettereColore.size(); ++colore) {
            for (const bool trentuno : {false, true}) {
                const Caso caso{esito, colore, trentuno};
                esiti[Indice(caso)] = EsitiDelCaso(caso);
            }
        }
    }
    return esiti;
}();

} // namespace

const EsitiColpo& EsitiDelColpo(std::string_view record)
{
    const RecordColpo colpo(record);
    return EsitiDeiCasi[Indice({PostoLettera(LettereEsito, colpo.Esito()),
                                PostoLettera(LettereColore, colpo.Colore()), colpo.Trentuno()})];
}

void CalcolaStatistiche(std::int16_t n)
{
    const auto& colpi = Colpi;
    if (n >= 1 && static_cast<std::size_t>(n) >= colpi.size()) {
        throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    }
    EsitiColpo somme{}; // n has 16 bits, and so no sum has more
    for (int i = 1; i <= n; ++i) {
        const EsitiColpo& esiti = EsitiDelColpo(colpi[static_cast<std::size_t>(i)]);
        for (std::size_t j = 0; j < NumeroEsiti; ++j) {
            somme[j] = static_cast<std::uint16_t>(somme[j] + esiti[j]);
        }
    }
    for (std::size_t j = 0; j < NumeroEsiti; ++j) Conto(Statistiche, j) = somme[j];
}

} // namespace modCarte
