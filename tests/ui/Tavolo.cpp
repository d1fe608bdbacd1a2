// The eyes and screens of Tavolo.h.

#include "Tavolo.h"

#include "FormatiNumero.h"
#include "Stampe.h"
#include "modCarte.h"

#include <array>
#include <cmath>

namespace aiuti {

QImage Tavolo::Immagine()
{
    const QImage& intera = Carte().Disegno().Immagine;
    EXPECT_EQ(intera.size(), (QSizeF(550, 388) * Carte().Disegno().Rapporto).toSize());
    return intera.scaled(550, 388, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QColor Tavolo::Punto(int x, int y)
{
    const qreal rapporto = Carte().Disegno().Rapporto;
    return Carte().Disegno().Immagine.pixelColor(qRound(x * rapporto), qRound(y * rapporto));
}

QRect Tavolo::Inchiostro(const QRect& zona)
{
    const QImage immagine = Immagine();
    QRect riquadro;
    for (int y = zona.top(); y <= zona.bottom(); ++y) {
        for (int x = zona.left(); x <= zona.right(); ++x) {
            if (!Vicini(immagine.pixelColor(x, y), Verde, 60)) riquadro |= QRect(x, y, 1, 1);
        }
    }
    return riquadro;
}

bool Tavolo::Vicini(const QColor& uno, const QColor& altro, int scarto)
{
    return std::abs(uno.red() - altro.red()) <= scarto &&
           std::abs(uno.green() - altro.green()) <= scarto &&
           std::abs(uno.blue() - altro.blue()) <= scarto;
}

void Tavolo::Colpo()
{
    Clicca("cmdMescola");
    Colpi({"0", "1,R,I,33,32,KC#AQ#QF#2P#10C,JC#KQ#9F#3P", "2,,,0,0,,"});
    Clicca("cmdColpo");
}

void Tavolo::Fine()
{
    Clicca("cmdMescola");
    modCarte::Statistiche = {17, 16, 18, 15, 2, 1, 9, 8, 9, 7};
    Colpi({"0", "1,,,32,27,KP#9C#5F#8Q,10F#QC#7P"});
    Clicca("cmdColpo");
}

void Tavolo::Video(const char* taglie)
{
    Stampe::AmbienteInUso.PreparaTaglia = [](std::int64_t taglia) {
        modCarte::AvviaSeme(2026, static_cast<std::uint64_t>(taglia));
        modCarte::MescolaMazzo();
    };
    Scegli(FormaVideo, true);
    Scrivi(taglie);
    Clicca("cmdTaglie");
}

void Tavolo::VideoDi(double taglie)
{
    struct UnaRiga
    {
        float Y;
        const char* Etichetta;
        double PerTaglia;
        const char* Quota;
    };
    constexpr std::array<UnaRiga, 13> righe = {{
        {1500, "Taglie:", 1, ""},
        {1800, "Colpi totali:", 28.6525, "28,65"},
        {2100, "Carte utilizzate:", 303.9664, "97,43%"},
        {2400, "Vincite Nero:", 12.7280, "44,42%"},
        {2700, "Vincite Rosso:", 12.7020, "44,33%"},
        {3000, "Colpi pari:", 3.1548, "11,01%"},
        {3300, "Vincite Colore:", 12.7286, "44,42%"},
        {3600, "Vincite Inverso:", 12.7014, "44,33%"},
        {3900, "31 après:", 0.6252, "2,18%"},
        {4300, "Nero-Colore:", 6.3682, "22,23%"},
        {4600, "Nero-Inverso:", 6.3598, "22,20%"},
        {4900, "Rosso-Colore:", 6.3604, "22,20%"},
        {5200, "Rosso-Inverso:", 6.3416, "22,13%"},
    }};
    Carte().Pulisci();
    for (const auto& [y, etichetta, perTaglia, quota] : righe) {
        Scritta(etichetta, 1000, y);
        Scritta(Stampe::MigliaiaConZero(std::llround(perTaglia * taglie), {",", "."}), 3500, y);
        if (*quota != '\0') Scritta(quota, 4500, y);
    }
    Carte().Aggiorna();
}

void Tavolo::Scritta(const std::string& testo, float x, float y)
{
    Carte().PrintText(testo, x, y, "Verdana", 16, 400, 0, Falso, Falso, Falso);
}

QImage Tavolo::Riga(const std::vector<std::pair<std::string, float>>& scritte)
{
    Carte().Pulisci();
    for (const auto& [testo, x] : scritte) Scritta(testo, x, 1500);
    Carte().Aggiorna();
    return Carte().Disegno().Immagine.copy();
}

double Scarto(const QImage& una, const QImage& altra)
{
    if (una.size() != altra.size()) return 255;
    double somma = 0;
    for (int y = 0; y < una.height(); ++y) {
        for (int x = 0; x < una.width(); ++x) {
            const QColor a = una.pixelColor(x, y);
            const QColor b = altra.pixelColor(x, y);
            somma += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                     std::abs(a.blue() - b.blue());
        }
    }
    return somma / (3.0 * una.width() * una.height());
}

} // namespace aiuti
