// Counts against probabilities, turned into numbers of standard deviations.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace statistica {

// Chance alone goes this far once in five hundred million.
inline constexpr double Limite = 6;

// How much of a full count this build does: all of it when optimised, else a fiftieth.
constexpr std::int64_t Quante(std::int64_t piene)
{
#ifdef SCALVINO_CONTEGGI_PIENI
    return piene;
#else
    return piene / 50;
#endif
}

// How far a count of events is from what probabilita leads one to expect in that many independent
// prove: the signed root of twice the log-likelihood ratio. It is the usual quotient wherever many
// are expected, and keeps the tails right where few are.
double ZConteggio(std::int64_t visti, std::int64_t prove, double probabilita);

// A chi-square value with its degrees of freedom, by the cube root transformation of Wilson and
// Hilferty.
double ZChiQuadro(double valore, double gradi);

// Goodness of fit of whole counts to probabilities that add up to one. Neighbouring classes are
// merged until each expects at least ten.
double ZDistribuzione(std::span<const std::int64_t> visti, std::span<const double> probabilita);

// The z of the largest of so many cells, restated as one single z of the same chance: out of a
// hundred thousand cells the largest is beyond 4 as a rule.
double ZDelMassimo(double z, double celle);

// Expects z within Limite and notes it down under this name in the test's record.
void ControllaZ(const std::string& nome, double z);

} // namespace statistica
