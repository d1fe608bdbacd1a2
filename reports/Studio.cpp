// Sums over the shoes of a run and the estimates made of them. cli/Dati.cpp writes these out.
#include "Studio.h"

#include "InteroLargo.h"
#include "Student.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Stampe {

namespace {

// The sum over the shoes of the squares of x - X / C c, times the square of C: x and c are the
// shoe's count and coups, X and C those of all shoes. In whole numbers: the terms nearly cancel,
// and what is 0 must come out as 0.
double ResiduiPerColpi(const Studio& studio, const ContoEsito& conto)
{
    const auto intero = [](std::int64_t n) { return static_cast<std::uint64_t>(n); };
    const std::uint64_t x = intero(conto.Totale);
    const std::uint64_t c = intero(studio.ColpiCompleti());
    const InteroLargo quadrati = InteroLargo(c) * c * intero(conto.Quadrati) +
                                 InteroLargo(x) * x * intero(studio.QuadratiColpi());
    const InteroLargo prodotti = InteroLargo(x) * c * intero(conto.Prodotti) * 2;
    return (quadrati - prodotti).InDouble();
}

} // namespace

void Studio::AggiungiTaglia()
{
    const auto& statistiche = modCarte::Statistiche;
    const auto colpi = static_cast<std::int64_t>(modCarte::ColpiCompiuti(statistiche));
    ++m_taglie;
    m_colpi += colpi;
    m_quadratiColpi += colpi * colpi;

    const auto& registro = modCarte::Colpi;
    const auto primo = registro.size() > 1
                           ? modCarte::EsitiDelColpo(modCarte::RecordColpo(registro[1]))
                           : modCarte::EsitiColpo{};
    for (std::size_t i = 0; i < modCarte::NumeroEsiti; ++i) {
        const auto conto = static_cast<std::int64_t>(modCarte::Conto(statistiche, i));
        m_esiti[i].Totale += conto;
        m_esiti[i].Quadrati += conto * conto;
        m_esiti[i].Prodotti += conto * colpi;
        m_esiti[i].PrimoColpo += primo[i];
    }
}

void Studio::Aggiungi(const Studio& altro)
{
    m_taglie += altro.m_taglie;
    m_colpi += altro.m_colpi;
    m_quadratiColpi += altro.m_quadratiColpi;
    for (std::size_t i = 0; i < modCarte::NumeroEsiti; ++i) {
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
    const double varianza = ResiduiPerColpi(studio, conto) * taglie / (taglie - 1);
    return {tasso, std::sqrt(varianza) / colpi / colpi};
}

std::optional<Intervallo> Intervallo95(const Stima& stima, std::int64_t taglie)
{
    if (taglie < 2 || !(stima.ErroreStandard > 0)) return std::nullopt;
    const double scarto = Student95(taglie - 1) * stima.ErroreStandard;
    return Intervallo{std::max(stima.Tasso - scarto, 0.0), std::min(stima.Tasso + scarto, 1.0)};
}

double ScartoPrimoColpo(const Studio& studio, std::size_t esito, double probabilita)
{
    const auto taglie = static_cast<double>(studio.Taglie());
    const auto visti = static_cast<double>(studio.Esito(esito).PrimoColpo);
    return (visti - taglie * probabilita) / std::sqrt(taglie * probabilita * (1 - probabilita));
}

} // namespace Stampe
