// See Generale.h. A caption goes on to Quadro.cpp, the help page comes from scalvino.qrc.

#include "Generale.h"

#include "Ambiente.h"
#include "Caratteri.h"
#include "ErroreRuntime.h"
#include "FileNuovo.h"
#include "Percorsi.h"
#include "Quadro.h"

#include <QFile>

#include <string>
#include <utility>

namespace Generale {

namespace {

// Where the resources of type HTML stand inside the program.
constexpr int TipoHtml = 23;

QByteArray LeggiRisorsa(std::int32_t numero)
{
    QFile risorsa(QStringLiteral(":/%1/%2").arg(TipoHtml).arg(numero));
    return risorsa.open(QIODevice::ReadOnly) ? risorsa.readAll() : QByteArray();
}

} // namespace

void PrintText(std::string_view testo, float x, float y, std::string_view nomeFont,
               std::int32_t altezza, std::int32_t peso, std::int32_t angolo, Flag corsivo,
               Flag sottolineato, Flag barrato, Quadro& superficie)
{
    Didascalia didascalia;
    didascalia.Testo = testo;
    didascalia.X = x;
    didascalia.Y = y;
    didascalia.Faccia = nomeFont;
    didascalia.Corpo = caratteri::PixelPerCella(nomeFont, altezza);
    didascalia.Peso = peso;
    didascalia.Angolo = angolo;
    didascalia.Corsivo = corsivo != Falso;
    didascalia.Sottolineato = sottolineato != Falso;
    didascalia.Barrato = barrato != Falso;
    didascalia.Cede = angolo == 0;
    superficie.Scrivi(std::move(didascalia));
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
