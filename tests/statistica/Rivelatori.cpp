// Counts places and neighbours of cards over many shoes. Statistica.cpp turns counts into
// deviations.
#include "Rivelatori.h"

#include "Statistica.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace statistica {

namespace {

constexpr std::size_t Lato = modCarte::CarteTaglia;
constexpr double N = modCarte::CarteTaglia;

// A hash of the whole shoe: equal shoes are as good as certain when 64 bits agree.
std::uint64_t Impronta(Taglia taglia)
{
    constexpr std::uint64_t moltiplica = 0x9E3779B97F4A7C15u;
    constexpr int scarto = 29;
    std::uint64_t impronta = 0;
    for (const std::int16_t codice : taglia) {
        impronta = (impronta ^ static_cast<std::uint64_t>(codice)) * moltiplica;
        impronta ^= impronta >> scarto;
    }
    return impronta;
}

std::int64_t ContaRipetute(std::vector<std::uint64_t> impronte)
{
    std::sort(impronte.begin(), impronte.end());
    const auto diverse = std::unique(impronte.begin(), impronte.end());
    return impronte.end() - diverse;
}

// A table of counts where each cell is as likely as any other, one in 312 with each shoe.
class Tabella
{
public:
    Tabella(const std::vector<std::uint32_t>& conti, bool conDiagonale, std::int64_t taglie)
        : m_conti(conti)
        , m_conDiagonale(conDiagonale)
        , m_taglie(taglie)
    {
    }

    double SommaQuadrati() const
    {
        const double attesi = static_cast<double>(m_taglie) / N;
        double somma = 0;
        PerOgniCella([&](std::uint32_t conto) {
            const double scarto = static_cast<double>(conto) - attesi;
            somma += scarto * scarto;
        });
        return somma;
    }

    double CellaMassima() const
    {
        double massima = 0;
        PerOgniCella([&](std::uint32_t conto) {
            const double z = ZConteggio(conto, m_taglie, 1 / N);
            if (std::abs(z) > std::abs(massima)) massima = z;
        });
        return massima;
    }

private:
    template <typename Fa>
    void PerOgniCella(Fa fa) const
    {
        for (std::size_t i = 0; i < m_conti.size(); ++i) {
            if (m_conDiagonale || i / Lato != i % Lato) fa(m_conti[i]);
        }
    }

    const std::vector<std::uint32_t>& m_conti;
    bool m_conDiagonale;
    std::int64_t m_taglie;
};

// The squares of a table add up, over all pairs of shoes, how much two shoes have in common beyond
// what is expected. For two different shoes that has mean 0 and the variance given per pair; a
// shoe with itself gives the same number always. Hence mean and variance are exact, and the sum of
// some 10^5 almost independent squares is as normal as anything.
double ZQuadrati(double somma, std::int64_t taglie, double conSeStessa, double varianzaDiCoppia)
{
    const auto numero = static_cast<double>(taglie);
    const double varianza = 2 * numero * (numero - 1) * varianzaDiCoppia;
    return (somma - numero * conSeStessa) / std::sqrt(varianza);
}

} // namespace

bool Misure::Sospette() const
{
    const auto oltre = [](double z) { return std::abs(z) >= Limite; };
    return oltre(Posti) || oltre(Successioni) || oltre(CellaPosti) || oltre(CellaSuccessioni) ||
           Ripetute > 0;
}

void Rivelatori::Guarda(Taglia taglia)
{
    ++m_taglie;
    m_impronte.push_back(Impronta(taglia));
    const auto riga = [](std::int16_t codice) { return static_cast<std::size_t>(codice) - 1; };
    for (std::size_t posto = 0; posto < Lato; ++posto) {
        ++m_posti[posto * Lato + riga(taglia[posto])];
    }
    for (std::size_t posto = 1; posto < Lato; ++posto) {
        ++m_successioni[riga(taglia[posto - 1]) * Lato + riga(taglia[posto])];
    }
}

Misure Rivelatori::Misura() const
{
    const Tabella posti(m_posti, true, m_taglie);
    const Tabella successioni(m_successioni, false, m_taglie);
    Misure misure{};
    // Two shoes agree in one place on average, with variance 1: the squares times 311 / shoes are
    // a chi-square with 311 * 311 degrees of freedom.
    misure.Posti = ZQuadrati(posti.SommaQuadrati(), m_taglie, N - 1, 1);
    // Two shoes share a succession (n - 1) / n times on average, with variance 1 - 1/n - 1/n^2.
    misure.Successioni = ZQuadrati(successioni.SommaQuadrati(), m_taglie, (N - 1) * (N - 1) / N,
                                   1 - 1 / N - 1 / (N * N));
    misure.CellaPosti = posti.CellaMassima();
    misure.CellaSuccessioni = successioni.CellaMassima();
    misure.Ripetute = ContaRipetute(m_impronte);
    return misure;
}

} // namespace statistica
