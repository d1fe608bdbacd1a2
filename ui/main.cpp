#include "Ambiente.h"
#include "Applicazione.h"
#include "Form1.h"

#include <QIcon>

namespace {

int Avvia(Applicazione& applicazione)
{
    applicazione.ObbedisciAiSegnali();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/scalvino.svg")));
    Form1 finestra;
    finestra.ImpostaAmbiente();
    if (!finestra.Carica()) return Applicazione::UscitaErrore;
    finestra.show();
    const int esito = QApplication::exec();
    return applicazione.CodiceUscita() != 0 ? applicazione.CodiceUscita() : esito;
}

} // namespace

int main(int argc, char** argv)
{
    Applicazione applicazione(argc, argv);
    int esito = Applicazione::UscitaErrore;
    try {
        esito = Avvia(applicazione);
    } catch (...) {
        applicazione.Fallisci(Applicazione::ErroreInCorso());
    }
    Stampe::AmbienteInUso = {}; // it refers to the window that is gone
    return esito;
}
