#include "modCarte.h"

#include "ErroreRuntime.h"

#include <cstddef>

namespace modCarte {

constinit thread_local StatisticheTaglia Statistiche{};

namespace {

void ContaEsito(StatisticheTaglia& conti, std::string_view esito, bool trentuno)
{
    if (esito == "N") {
        conti.VinceNero += 1;
    } else if (esito == "R") {
        conti.VinceRosso += 1;
    } else if (esito == "E") {
        conti.Pari += 1;
        if (trentuno) conti.TrentunoApres += 1;
    }
}

void ContaColore(StatisticheTaglia& conti, std::string_view colore)
{
    if (colore == "C") conti.Colore += 1;
    else if (colore == "I") conti.Inverso += 1;
}

void ContaCombinazione(StatisticheTaglia& conti, std::string_view esito, std::string_view colore)
{
    if (esito == "N") {
        if (colore == "C") conti.NeroColore += 1;
        else if (colore == "I") conti.NeroInverso += 1;
    } else if (esito == "R") {
        if (colore == "C") conti.RossoColore += 1;
        else if (colore == "I") conti.RossoInverso += 1;
    }
}

} // namespace

void CalcolaStatistiche(std::int16_t n)
{
    const auto& colpi = Colpi;
    if (n >= 1 && static_cast<std::size_t>(n) >= colpi.size()) {
        throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    }
    StatisticheTaglia conti;
    for (int i = 1; i <= n; ++i) {
        const auto campi = DividiColpo<CampoCarteNero>(colpi[static_cast<std::size_t>(i)]);
        const std::string_view esito = campi[CampoEsito];
        const std::string_view colore = campi[CampoColore];
        const bool trentuno = campi[CampoTotaleNero] == "31" && campi[CampoTotaleRosso] == "31";
        ContaEsito(conti, esito, trentuno);
        ContaColore(conti, colore);
        ContaCombinazione(conti, esito, colore);
    }
    Statistiche = conti;
}

} // namespace modCarte
