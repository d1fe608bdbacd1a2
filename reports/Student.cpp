// Student's distribution: exact sums for few degrees of freedom, a series for many. Studio.cpp
// asks.
#include "Student.h"

#include <cmath>
#include <numbers>

namespace Stampe {

namespace {

// The chance that |t| stays below sqrt(gradi) tan(angolo), for a whole number of degrees: a finite
// sum of powers of the cosine, all positive, so that nothing cancels.
double Dentro(std::int64_t gradi, double angolo)
{
    const double coseno = std::cos(angolo);
    const bool dispari = gradi % 2 != 0;
    double termine = dispari ? coseno : 1;
    double somma = 0;
    for (std::int64_t k = dispari ? 3 : 2; k <= gradi; k += 2) {
        somma += termine;
        termine *= coseno * coseno * static_cast<double>(k - 1) / static_cast<double>(k);
    }
    somma *= std::sin(angolo);
    return dispari ? (angolo + somma) * 2 / std::numbers::pi : somma;
}

// Halves the angles in between, more often than a double has binary digits: to wait until none is
// left would not end where the processor computes with more digits than it stores.
double DaSomme(std::int64_t gradi, double quota)
{
    constexpr int meta = 64;
    double sotto = 0;
    double sopra = std::numbers::pi / 2;
    for (int i = 0; i < meta; ++i) {
        const double mezzo = (sotto + sopra) / 2;
        (Dentro(gradi, mezzo) < quota ? sotto : sopra) = mezzo;
    }
    return std::sqrt(static_cast<double>(gradi)) * std::tan(sotto);
}

// Fisher's expansion about the normal distribution, whose number of the same kind is z. The first
// term left out is of the size of 1 / gradi^5.
double DaSerie(std::int64_t gradi, double z)
{
    const double q = z * z;
    const double g1 = z * (q + 1) / 4;
    const double g2 = z * ((5 * q + 16) * q + 3) / 96;
    const double g3 = z * (((3 * q + 19) * q + 17) * q - 15) / 384;
    const double g4 = z * ((((79 * q + 776) * q + 1482) * q - 1920) * q - 945) / 92160;
    const auto n = static_cast<double>(gradi);
    return z + (g1 + (g2 + (g3 + g4 / n) / n) / n) / n;
}

} // namespace

double Student95(std::int64_t gradi)
{
    constexpr std::int64_t molti = 500;
    constexpr double quota = 0.95;
    constexpr double normale = 1.959963984540054;
    return gradi < molti ? DaSomme(gradi, quota) : DaSerie(gradi, normale);
}

} // namespace Stampe
