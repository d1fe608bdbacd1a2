// From counts and probabilities to standard deviations, with the limits beyond which a test fails.
#include "Statistica.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>
#include <vector>

namespace statistica {

namespace {

// x ln(x / atteso), which tends to 0 with x.
double Termine(double x, double atteso)
{
    return x > 0 ? x * std::log(x / atteso) : 0;
}

// The chance of a standard normal beyond z on either side.
double Coda(double z)
{
    return std::erfc(std::abs(z) / std::numbers::sqrt2);
}

struct Classe
{
    double Visti = 0;
    double Attesi = 0;
};

std::vector<Classe> Raggruppa(std::span<const std::int64_t> visti,
                              std::span<const double> probabilita)
{
    constexpr double minimo = 10;
    const auto totale =
        static_cast<double>(std::accumulate(visti.begin(), visti.end(), std::int64_t{0}));
    std::vector<Classe> classi(1);
    for (std::size_t i = 0; i < visti.size(); ++i) {
        if (classi.back().Attesi >= minimo) classi.emplace_back();
        classi.back().Visti += static_cast<double>(visti[i]);
        classi.back().Attesi += totale * probabilita[i];
    }
    if (classi.size() > 1 && classi.back().Attesi < minimo) {
        const Classe resto = classi.back();
        classi.pop_back();
        classi.back().Visti += resto.Visti;
        classi.back().Attesi += resto.Attesi;
    }
    return classi;
}

} // namespace

double ZConteggio(std::int64_t visti, std::int64_t prove, double probabilita)
{
    const auto n = static_cast<double>(prove);
    const auto x = static_cast<double>(visti);
    const double atteso = n * probabilita;
    const double rapporto = Termine(x, atteso) + Termine(n - x, n - atteso);
    // Rounding may leave a trace below zero where x is exactly what is expected.
    return std::copysign(std::sqrt(2 * std::fmax(rapporto, 0)), x - atteso);
}

double ZChiQuadro(double valore, double gradi)
{
    const double varianza = 2 / (9 * gradi);
    return (std::cbrt(valore / gradi) - (1 - varianza)) / std::sqrt(varianza);
}

double ZDistribuzione(std::span<const std::int64_t> visti, std::span<const double> probabilita)
{
    const auto classi = Raggruppa(visti, probabilita);
    double chiQuadro = 0;
    for (const auto& classe : classi) {
        const double scarto = classe.Visti - classe.Attesi;
        chiQuadro += scarto * scarto / classe.Attesi;
    }
    return ZChiQuadro(chiQuadro, static_cast<double>(classi.size()) - 1);
}

double ZDelMassimo(double z, double celle)
{
    // Adding up the chances of all cells overstates them by nothing that matters when small.
    const double caso = celle * Coda(z);
    if (caso >= 1) return 0;
    if (caso < std::numeric_limits<double>::min()) return z;
    double sotto = 0;
    double sopra = std::abs(z);
    constexpr int dimezzamenti = 60;
    for (int i = 0; i < dimezzamenti; ++i) {
        const double mezzo = (sotto + sopra) / 2;
        (Coda(mezzo) > caso ? sotto : sopra) = mezzo;
    }
    return std::copysign(sotto, z);
}

void ControllaZ(const std::string& nome, double z)
{
    ::testing::Test::RecordProperty(nome, std::to_string(z));
    EXPECT_LT(std::abs(z), Limite) << nome;
}

} // namespace statistica
