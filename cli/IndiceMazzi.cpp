// Shoes by place and fingerprint; who reads them stands in FileMazzi.cpp.
#include "IndiceMazzi.h"

#include <algorithm>
#include <tuple>

namespace cli {

namespace {

constexpr int Bit = 32;

std::uint64_t Unisci(std::uint16_t alto, std::uint32_t basso)
{
    return std::uint64_t{alto} << Bit | basso;
}

} // namespace

IndiceMazzi::Voce::Voce(std::uint64_t inizio, std::uint64_t impronta)
    : m_inizioBasso(static_cast<std::uint32_t>(inizio))
    , m_improntaBassa(static_cast<std::uint32_t>(impronta))
    , m_inizioAlto(static_cast<std::uint16_t>(inizio >> Bit))
    , m_improntaAlta(static_cast<std::uint16_t>(impronta >> Bit))
{
}

std::uint64_t IndiceMazzi::Voce::Inizio() const
{
    return Unisci(m_inizioAlto, m_inizioBasso);
}

std::uint64_t IndiceMazzi::Voce::Impronta() const
{
    return Unisci(m_improntaAlta, m_improntaBassa);
}

std::uint64_t IndiceMazzi::SoloImpronta(std::uint64_t impronta)
{
    return impronta & ((std::uint64_t{1} << BitImpronta) - 1);
}

void IndiceMazzi::Aggiungi(std::uint64_t inizio, std::uint64_t impronta)
{
    static_assert(sizeof(Voce) == 12);
    m_voci.emplace_back(inizio, impronta);
}

std::size_t IndiceMazzi::Indice(std::uint64_t inizio) const
{
    const auto voce = std::lower_bound(
        m_voci.begin(), m_voci.end(), inizio,
        [](const Voce& una, std::uint64_t cercato) { return una.Inizio() < cercato; });
    return static_cast<std::size_t>(voce - m_voci.begin());
}

// Sorted in place and back again: a second list would take as much memory as the first.
std::optional<IndiceMazzi::Ripetute>
IndiceMazzi::Ripetizioni(const std::function<bool(std::uint64_t, std::uint64_t)>& uguali)
{
    const auto chiave = [](const Voce& voce) { return std::tuple(voce.Impronta(), voce.Inizio()); };
    std::sort(m_voci.begin(), m_voci.end(),
              [&](const Voce& una, const Voce& altra) { return chiave(una) < chiave(altra); });
    std::size_t quante = 0;
    std::tuple<std::uint64_t, std::uint64_t> prima; // the repeated one and the one before it
    for (std::size_t i = 1; i < m_voci.size(); ++i) {
        const Voce& una = m_voci[i - 1];
        const Voce& altra = m_voci[i];
        if (una.Impronta() != altra.Impronta() || !uguali(una.Inizio(), altra.Inizio())) continue;
        const std::tuple coppia(altra.Inizio(), una.Inizio());
        if (quante++ == 0 || coppia < prima) prima = coppia;
    }
    std::sort(m_voci.begin(), m_voci.end(),
              [](const Voce& una, const Voce& altra) { return una.Inizio() < altra.Inizio(); });
    if (quante == 0) return std::nullopt;
    return Ripetute{quante, Indice(std::get<0>(prima)), Indice(std::get<1>(prima))};
}

} // namespace cli
