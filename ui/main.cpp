// The program: from the arguments to the window and back to the exit code. Next: Avvio.h, Form1.h.

#include "Ambiente.h"
#include "Applicazione.h"
#include "Avvio.h"
#include "Form1.h"

#include <QIcon>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

// The one of 32 by 32 in 16 colours, one drawn for 16 by 16, and every other size from the same
// motif.
QIcon Icona()
{
    QIcon icona(QStringLiteral(":/scalvino.ico"));
    icona.addFile(QStringLiteral(":/scalvino-16.png"));
    icona.addFile(QStringLiteral(":/scalvino.svg"));
    return icona;
}

int Avvia(Applicazione& applicazione)
{
    applicazione.ObbedisciAiSegnali();
    QApplication::setWindowIcon(Icona());
    Form1 finestra;
    finestra.ImpostaAmbiente();
    if (!finestra.Carica()) return Applicazione::UscitaErrore;
    finestra.show();
    const int esito = QApplication::exec();
    // A session that ends may stop the event loop without closing any window.
    if (!finestra.Chiusa()) finestra.close();
    return applicazione.CodiceUscita() != 0 ? applicazione.CodiceUscita() : esito;
}

int Rispondi(const std::string& testo)
{
    const bool scritto = std::fputs(testo.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return scritto ? 0 : Applicazione::UscitaErrore;
}

// Ends the program with this code and leaves the connection to the kernel: Qt, when it takes a
// Wayland connection down, sometimes waits for ever for a thread of its own. The window and its
// files are gone by now.
[[noreturn]] void FinisciSubito(int esito)
{
    std::fflush(nullptr);
    std::_Exit(esito);
}

} // namespace

int main(int argc, char** argv)
{
    if (const auto risposta = avvio::Risposta(argc, argv)) return Rispondi(*risposta);
    avvio::TogliScaleNonValide();
    const std::unique_ptr<Applicazione> applicazione(avvio::Crea(argc, argv));
    int esito = Applicazione::UscitaErrore;
    try {
        esito = Avvia(*applicazione);
    } catch (...) {
        applicazione->Fallisci(Applicazione::ErroreInCorso());
    }
    Stampe::AmbienteInUso = {}; // it refers to the window that is gone
    if (Applicazione::SuWayland()) FinisciSubito(esito);
    return esito;
}
