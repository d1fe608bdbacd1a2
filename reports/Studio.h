// Figures of a run that go beyond the reports: what estimates of error need. The shoe is the
// independent unit, since the coups of one shoe depend on each other.
#pragma once

#include "modCarte.h"

#include <array>
#include <cstdint>
#include <optional>

namespace Stampe {

// How often one outcome came, over all shoes.
struct ContoEsito
{
    std::int64_t Totale = 0;
    std::int64_t Quadrati = 0;   // sum of the squares of the counts per shoe
    std::int64_t Prodotti = 0;   // sum of count times complete coups per shoe
    std::int64_t PrimoColpo = 0; // shoes whose first coup was one
};

// Sums over shoes; adding up is exact and independent of the order.
class Studio
{
public:
    // Adds the shoe in modCarte.
    void AggiungiTaglia();

    void Aggiungi(const Studio& altro);

    std::int64_t Taglie() const { return m_taglie; }

    // Coups with an outcome, and the sum of their squares per shoe.
    std::int64_t ColpiCompleti() const { return m_colpi; }
    std::int64_t QuadratiColpi() const { return m_quadratiColpi; }

    // indice: of the table modCarte::Esiti.
    const ContoEsito& Esito(std::size_t indice) const { return m_esiti.at(indice); }

private:
    std::int64_t m_taglie = 0;
    std::int64_t m_colpi = 0;
    std::int64_t m_quadratiColpi = 0;
    std::array<ContoEsito, modCarte::NumeroEsiti> m_esiti{};
};

// A rate and how far it can be trusted.
struct Stima
{
    double Tasso;
    double ErroreStandard; // not a number with fewer than two shoes
};

// Rate of an outcome per complete coup, with the standard error of a ratio of sums over
// independent shoes: exactly 0 where the rate is the same in each shoe.
Stima StimaTasso(const Studio& studio, std::size_t esito);

// From where to where a rate is likely to lie, within 0 and 1.
struct Intervallo
{
    double Minimo;
    double Massimo;
};

// The interval that holds the true rate 95 times of 100, by Student's distribution with a degree of
// freedom less than there are shoes. Nothing where the shoes tell nothing about the error: with
// fewer than two, or when the rate is the same in each.
std::optional<Intervallo> Intervallo95(const Stima& stima, std::int64_t taglie);

// By how many standard deviations the outcome's number among the first coups differs from what
// probability probabilita leads one to expect.
double ScartoPrimoColpo(const Studio& studio, std::size_t esito, double probabilita);

} // namespace Stampe
