#include "Generale.h"

#include "Ambiente.h"
#include "Caratteri.h"
#include "ErroreRuntime.h"
#include "FileNuovo.h"
#include "Misure.h"
#include "Percorsi.h"
#include "Stampe.h"
#include "TavoloCarte.h"
#include "Testi.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPainter>

namespace Generale {

namespace {

// Where the resources of type HTML stand inside the program.
constexpr int TipoHtml = 23;

QByteArray LeggiRisorsa(std::int32_t numero)
{
    QFile risorsa(QStringLiteral(":/%1/%2").arg(TipoHtml).arg(numero));
    return risorsa.open(QIODevice::ReadOnly) ? risorsa.readAll() : QByteArray();
}

// How much narrower a caption is drawn so that a blank stays before the next one; 1: not at all.
double Stretta(const QString& testo, const QFont& font, double spazio)
{
    const QFontMetricsF metrica(font);
    const double larghezza = metrica.horizontalAdvance(testo);
    const double libero = spazio - metrica.horizontalAdvance(QLatin1Char(' '));
    // Where there is no room at all, nothing helps.
    return libero > 0 && larghezza > libero ? libero / larghezza : 1;
}

} // namespace

void PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
               std::int32_t altezza, std::int32_t peso, std::int32_t angolo, Flag corsivo,
               Flag sottolineato, Flag barrato, TavoloCarte& superficie)
{
    constexpr double decimiPerGrado = 10;
    const int pixel = caratteri::PixelPerCella(nomeFont, altezza);
    QFont font = caratteri::Font(nomeFont, peso, pixel);
    font.setItalic(corsivo != Falso);
    font.setUnderline(sottolineato != Falso);
    font.setStrikeOut(barrato != Falso);

    QPainter pennello(&superficie.Disegno().Immagine);
    pennello.scale(superficie.Disegno().Rapporto, superficie.Disegno().Rapporto);
    pennello.translate(Pixel(x), Pixel(y));
    pennello.rotate(-angolo / decimiPerGrado);
    pennello.setPen(superficie.ColoreTesto());
    pennello.setFont(font);
    if (angolo == 0) pennello.scale(Stretta(InQt(testo), font, superficie.Spazio(x, y)), 1);
    pennello.drawText(0, caratteri::Ascendente(nomeFont, pixel), InQt(testo));
}

void TrovaCartella()
{
    std::string& cartella = Stampe::AmbienteInUso.Cartella;
    if (cartella.empty()) cartella = PercorsoTemp();
}

void ApriRisorsa(std::string_view nome, std::int32_t numero)
{
    const QByteArray byte = LeggiRisorsa(numero);
    if (byte.isEmpty()) return;
    const std::string percorso = Stampe::PercorsoReport(nome);
    try {
        FileNuovo file(percorso);
        file.Scrivi(std::string_view(byte.constData(), static_cast<std::size_t>(byte.size())));
        file.Chiudi();
        file.PretendiNostro(); // nobody else's file is opened as the page
        file.Conserva();
    } catch (const ErroreRuntime&) {
        // The page is help, not work: without it the program goes on, and says nothing.
        return;
    }
    Stampe::AmbienteInUso.Apri(percorso, StileFinestra::MassimizzataConFuoco);
}

} // namespace Generale
