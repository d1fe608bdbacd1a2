// What main.cpp does before the window: answers, the scale, a display. Why each is needed stands in
// Avvio.h.

#include "Avvio.h"

#include "Applicazione.h"
#include "Messaggi.h"
#include "Misure.h"
#include "Testi.h"

#include <QList>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace avvio {

namespace {

constexpr const char* FattoreComune = "QT_SCALE_FACTOR";
constexpr const char* FattoriSchermi = "QT_SCREEN_SCALE_FACTORS";
constexpr const char* PuntiPerPollice = "QT_FONT_DPI";

// Follows the first line, which names the command.
constexpr std::string_view Aiuto =
    " [OPZIONE]\n"
    "Apre la finestra che gioca una taglia di Scalvino colpo per colpo e simula taglie intere.\n"
    "\n"
    "      --help       mostra questo aiuto\n"
    "      --version    mostra la versione\n"
    "\n"
    "Obbedisce anche alle opzioni di ogni programma Qt. La riga di comando è \"taglie\".\n";

bool Numero(const QByteArray& testo, double minimo, double massimo)
{
    bool letto = false;
    const double valore = testo.toDouble(&letto);
    return letto && valore >= minimo && valore <= massimo;
}

bool Fattore(const QByteArray& testo)
{
    constexpr double minimo = 0.1;
    constexpr double massimo = 20;
    return Numero(testo, minimo, massimo);
}

// "1.5;2" or "DP-1=1.5;HDMI-1=2": one for each screen. An empty part leaves its screen alone.
bool Fattori(const QByteArray& testo)
{
    const auto parti = testo.split(';');
    return std::all_of(parti.begin(), parti.end(), [](const QByteArray& parte) {
        return parte.isEmpty() || Fattore(parte.mid(parte.lastIndexOf('=') + 1));
    });
}

bool Punti(const QByteArray& testo)
{
    constexpr double minimo = 10;
    constexpr double massimo = 2000;
    return Numero(testo, minimo, massimo);
}

// What Qt says while it looks for a display: passed on when it found one, kept back when it did
// not, since then one sentence of ours says it all.
std::vector<std::pair<QtMsgType, QString>> Detti;

void Ascolta(QtMsgType tipo, const QMessageLogContext& /*dove*/, const QString& testo)
{
    if (tipo != QtFatalMsg) {
        Detti.emplace_back(tipo, testo);
        return;
    }
    ScriviErrore("non c'è uno schermo su cui aprire la finestra");
    std::_Exit(Applicazione::UscitaErrore); // Qt would abort
}

std::unique_ptr<Applicazione> SuUnoSchermo(int& argc, char** argv)
{
    const auto prima = qInstallMessageHandler(Ascolta);
    auto applicazione = std::make_unique<Applicazione>(argc, argv);
    qInstallMessageHandler(prima);
    for (const auto& [tipo, testo] : std::exchange(Detti, {})) qt_message_output(tipo, {}, testo);
    return applicazione;
}

// By how much the scale of the first screen must be multiplied; 1: it is right as it is.
double Correzione()
{
    const auto* schermo = QGuiApplication::primaryScreen();
    if (schermo == nullptr) return 1;
    const double scala = schermo->devicePixelRatio();
    return Scala(scala, QSizeF(schermo->availableGeometry().size()) * scala) / scala;
}

} // namespace

std::optional<std::string> Risposta(int argc, const char* const* argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--help") {
            return "Uso: " + std::string(NomeComando) + std::string(Aiuto);
        }
        if (std::string_view(argv[i]) == "--version") {
            return std::string(NomeComando) + " " + std::string(VersioneProgramma) + "\n";
        }
    }
    return std::nullopt;
}

void TogliScaleNonValide()
{
    const std::pair<const char*, bool (*)(const QByteArray&)> variabili[] = {
        {FattoreComune, Fattore}, {FattoriSchermi, Fattori}, {PuntiPerPollice, Punti}};
    for (const auto& [nome, valida] : variabili) {
        if (qEnvironmentVariableIsSet(nome) && !valida(qgetenv(nome))) qunsetenv(nome);
    }
}

double Scala(double chiesta, QSizeF schermo)
{
    // Layout and frame; a frame that Qt draws itself is scaled with the window.
    const double larghezza = Pixel(LarghezzaFinestra) + 6;
    const double altezza = Pixel(AltezzaFinestra) + 36;
    constexpr double passi = 64;
    const double massima = std::min(schermo.width() / larghezza, schermo.height() / altezza);
    return std::max(std::min(chiesta, std::floor(massima * passi) / passi), 1.0);
}

Applicazione* Crea(int& argc, char** argv)
{
    const int argomenti = argc; // Qt takes its own out
    const std::vector<char*> copia(argv, argv + argc);
    auto applicazione = SuUnoSchermo(argc, argv);
    const double correzione = Correzione();
    if (correzione == 1) return applicazione.release();
    const double prima =
        qEnvironmentVariableIsSet(FattoreComune) ? qgetenv(FattoreComune).toDouble() : 1;
    applicazione.reset();
    constexpr int tutteLeCifre = 17;
    qputenv(FattoreComune, QByteArray::number(prima * correzione, 'g', tutteLeCifre));
    argc = argomenti;
    std::copy(copia.begin(), copia.end(), argv);
    return SuUnoSchermo(argc, argv).release();
}

} // namespace avvio
