// Fonts for captions: measured as the wanted face, drawn by it or by a substitute. Quadro.cpp
// prints with them.

#include "Caratteri.h"

#include "Scritte.h"
#include "Testi.h"

#include <QFontDatabase>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

namespace caratteri {

namespace {

// Per em of 2048 units.
struct Metrica
{
    std::string_view Faccia;
    double Ascendente;
    double Discendente;
};

constexpr double UnitaPerEm = 2048;
constexpr std::array<Metrica, 3> Metriche = {{
    {scritte::Arial, 1854, 434},
    {scritte::Verdana, 2059, 430},
    {scritte::ArialBlack, 2254, 634},
}};

// An unknown face is measured like the first.
const Metrica& MetricaDi(std::string_view faccia)
{
    const auto* trovata = std::find_if(Metriche.begin(), Metriche.end(),
                                       [&](const Metrica& m) { return m.Faccia == faccia; });
    return trovata == Metriche.end() ? Metriche.front() : *trovata;
}

int Arrotonda(double unita, int pixel)
{
    return static_cast<int>(std::lround(unita * pixel / UnitaPerEm));
}

// Who draws a face that is not installed. A family alone would not do: the heavy face's substitute
// is an ordinary one at its heaviest.
struct Sostituto
{
    std::string_view Faccia;
    const char* Famiglia;
    int Peso; // 0: the weight that was asked for
};

constexpr int PesoMassimo = 900;
constexpr std::array<Sostituto, 4> Sostituti = {{
    {scritte::Arial, "Liberation Sans", 0},
    {scritte::Arial, "Arimo", 0},
    {scritte::Verdana, "DejaVu Sans", 0},
    {scritte::ArialBlack, "DejaVu Sans", PesoMassimo},
}};

QFont Trova(const std::string& faccia, int peso)
{
    QFont font;
    font.setFamily(InQt(faccia));
    font.setWeight(static_cast<QFont::Weight>(peso));
    if (QFontDatabase::hasFamily(InQt(faccia))) return font;
    for (const auto& sostituto : Sostituti) {
        const QString famiglia = QString::fromLatin1(sostituto.Famiglia);
        if (sostituto.Faccia != faccia || !QFontDatabase::hasFamily(famiglia)) continue;
        font.setFamily(famiglia);
        if (sostituto.Peso != 0) font.setWeight(static_cast<QFont::Weight>(sostituto.Peso));
        break;
    }
    return font;
}

} // namespace

int PixelPerCella(std::string_view faccia, std::int32_t altezza)
{
    const Metrica& metrica = MetricaDi(faccia);
    int pixel = std::max(1, altezza);
    while (pixel > 1 &&
           Arrotonda(metrica.Ascendente, pixel) + Arrotonda(metrica.Discendente, pixel) > altezza) {
        --pixel;
    }
    return pixel;
}

int Ascendente(std::string_view faccia, int pixel)
{
    return Arrotonda(MetricaDi(faccia).Ascendente, pixel);
}

QFont Font(std::string_view faccia, int peso, int pixel)
{
    // Plain values, which may outlive the application.
    static std::map<std::pair<std::string, int>, QFont> trovati;
    auto chiave = std::pair(std::string(faccia), peso);
    auto posto = trovati.find(chiave);
    if (posto == trovati.end()) {
        QFont font = Trova(chiave.first, peso);
        // The same picture on every platform: no hinting, grey smoothing.
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(
            static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
        posto = trovati.emplace(std::move(chiave), font).first;
    }
    QFont font = posto->second;
    font.setPixelSize(std::max(1, pixel));
    return font;
}

int PixelPerPunti(std::int32_t punti)
{
    constexpr double puntiPerPollice = 72;
    constexpr double pixelPerPollice = 96;
    return static_cast<int>(std::lround(punti * pixelPerPollice / puntiPerPollice));
}

} // namespace caratteri
