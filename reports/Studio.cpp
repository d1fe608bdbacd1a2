#include "Studio.h"

#include <cmath>
#include <limits>

namespace Stampe {

namespace {

using Conteggi = std::array<std::int64_t, NumeroEsiti>;

Conteggi InOrdine(const modCarte::StatisticheTaglia& s)
{
    const std::array<double, NumeroEsiti> valori = {
        s.VinceNero,     s.VinceRosso, s.Colore,      s.Inverso,     s.Pari,
        s.TrentunoApres, s.NeroColore, s.NeroInverso, s.RossoColore, s.RossoInverso};
    Conteggi conteggi{};
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        conteggi[i] = static_cast<std::int64_t>(valori[i]);
    }
    return conteggi;
}

// The outcomes of one coup as counts of 0 and 1.
Conteggi EsitiDelColpo(std::string_view record)
{
    const auto campi = modCarte::DividiColpo<modCarte::CampoCarteNero>(record);
    const auto esito = campi[modCarte::CampoEsito];
    const auto colore = campi[modCarte::CampoColore];
    const bool nero = esito == "N";
    const bool rosso = esito == "R";
    const bool pari = esito == "E";
    const bool trentuno = pari && campi[modCarte::CampoTotaleNero] == "31";
    const bool conColore = colore == "C";
    const bool conInverso = colore == "I";
    return {nero,
            rosso,
            conColore,
            conInverso,
            pari,
            trentuno,
            nero && conColore,
            nero && conInverso,
            rosso && conColore,
            rosso && conInverso};
}

} // namespace

void Studio::AggiungiTaglia()
{
    const auto& statistiche = modCarte::Statistiche;
    const auto colpi = static_cast<std::int64_t>(statistiche.VinceNero + statistiche.VinceRosso +
                                                 statistiche.Pari);
    ++m_taglie;
    m_colpi += colpi;
    m_quadratiColpi += colpi * colpi;

    const auto& registro = modCarte::Colpi;
    const Conteggi taglia = InOrdine(statistiche);
    const Conteggi primo = registro.size() > 1 ? EsitiDelColpo(registro[1]) : Conteggi{};
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        m_esiti[i].Totale += taglia[i];
        m_esiti[i].Quadrati += taglia[i] * taglia[i];
        m_esiti[i].Prodotti += taglia[i] * colpi;
        m_esiti[i].PrimoColpo += primo[i];
    }
}

void Studio::Aggiungi(const Studio& altro)
{
    m_taglie += altro.m_taglie;
    m_colpi += altro.m_colpi;
    m_quadratiColpi += altro.m_quadratiColpi;
    for (std::size_t i = 0; i < NumeroEsiti; ++i) {
        m_esiti[i].Totale += altro.m_esiti[i].Totale;
        m_esiti[i].Quadrati += altro.m_esiti[i].Quadrati;
        m_esiti[i].Prodotti += altro.m_esiti[i].Prodotti;
        m_esiti[i].PrimoColpo += altro.m_esiti[i].PrimoColpo;
    }
}

Stima StimaTasso(const Studio& studio, std::size_t esito)
{
    const ContoEsito& conto = studio.Esito(esito);
    const auto colpi = static_cast<double>(studio.ColpiCompleti());
    const auto taglie = static_cast<double>(studio.Taglie());
    const double tasso = static_cast<double>(conto.Totale) / colpi;
    if (studio.Taglie() < 2) return {tasso, std::numeric_limits<double>::quiet_NaN()};

    // Residuals x - tasso * c per shoe; in extended precision, since the terms nearly cancel.
    const long double t = tasso;
    const long double somma = static_cast<long double>(conto.Quadrati) -
                              2 * t * static_cast<long double>(conto.Prodotti) +
                              t * t * static_cast<long double>(studio.QuadratiColpi());
    const double residui = somma > 0 ? static_cast<double>(somma) : 0;
    return {tasso, std::sqrt(residui * taglie / (taglie - 1)) / colpi};
}

double ScartoPrimoColpo(const Studio& studio, std::size_t esito, double probabilita)
{
    const auto taglie = static_cast<double>(studio.Taglie());
    const auto visti = static_cast<double>(studio.Esito(esito).PrimoColpo);
    return (visti - taglie * probabilita) / std::sqrt(taglie * probabilita * (1 - probabilita));
}

} // namespace Stampe
