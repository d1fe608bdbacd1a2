// Turns places in twips into lines and columns; what is drawn: reports/Stampe_Video.cpp.
#include "SuperficieTesto.h"

#include <algorithm>
#include <cmath>

namespace cli {

namespace {

// Twips.
constexpr float MargineSinistro = 1000;
constexpr float LarghezzaCarattere = 125;
constexpr float RigaVuotaOltre = 350;
constexpr float Ombra = 30;

std::size_t Colonna(float x)
{
    return static_cast<std::size_t>(std::max(0.0F, x - MargineSinistro) / LarghezzaCarattere);
}

// Characters of a UTF-8 text: continuation bytes are none of their own.
std::size_t Caratteri(std::string_view testo)
{
    const auto inizia = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return static_cast<std::size_t>(std::count_if(testo.begin(), testo.end(), inizia));
}

} // namespace

void SuperficieTesto::ImpostaPosizione(float x, float y)
{
    m_x = x;
    m_y = y;
}

void SuperficieTesto::Stampa(std::string_view testo)
{
    if (!m_didascalie.empty()) {
        auto& ultima = m_didascalie.back();
        const bool ombra = ultima.Testo == testo && std::abs(ultima.X - m_x) <= Ombra &&
                           std::abs(ultima.Y - m_y) <= Ombra;
        if (ombra) m_didascalie.pop_back();
    }
    m_didascalie.push_back({m_x, m_y, std::string(testo)});
}

void SuperficieTesto::PrintText(std::string_view testo, float x, float y,
                                std::string_view /*nomeFont*/, std::int32_t /*altezza*/,
                                std::int32_t /*peso*/, std::int32_t /*angolo*/, Flag /*corsivo*/,
                                Flag /*sottolineato*/, Flag /*barrato*/)
{
    m_didascalie.push_back({x, y, std::string(testo)});
}

std::string SuperficieTesto::Testo() const
{
    auto ordinate = m_didascalie;
    std::stable_sort(ordinate.begin(), ordinate.end(), [](const auto& una, const auto& altra) {
        return una.Y != altra.Y ? una.Y < altra.Y : una.X < altra.X;
    });
    std::string testo;
    std::size_t scritti = 0; // characters of the line so far
    for (std::size_t i = 0; i < ordinate.size(); ++i) {
        const auto& didascalia = ordinate[i];
        const bool nuovaRiga = i > 0 && ordinate[i - 1].Y != didascalia.Y;
        if (nuovaRiga) {
            testo.push_back('\n');
            if (didascalia.Y - ordinate[i - 1].Y > RigaVuotaOltre) testo.push_back('\n');
            scritti = 0;
        }
        // A long number pushes the next one on: two blanks always part them.
        const std::size_t minimo = scritti == 0 ? 0 : scritti + 2;
        const std::size_t inizio = std::max(Colonna(didascalia.X), minimo);
        testo.append(inizio - scritti, ' ').append(didascalia.Testo);
        scritti = inizio + Caratteri(didascalia.Testo);
    }
    if (!testo.empty()) testo.push_back('\n');
    return testo;
}

} // namespace cli
