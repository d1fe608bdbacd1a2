// The application object: the one place where a failure that nobody answered is shown and ends the
// program. main.cpp makes it, Messaggi.h shows the box.
#pragma once

#include "ErroreRuntime.h"
#include "TastiRipetuti.h"

#include <QApplication>

#include <functional>

class Applicazione : public QApplication
{
    Q_OBJECT
public:
    // Reads Qt's own arguments. Numbers stay those of the "C" locale, texts of Qt are Italian.
    Applicazione(int& argc, char** argv);

    // Whether a Wayland compositor shows the windows; needs the application object.
    static bool SuWayland();

    // Runs a handler of the window; an exception out of it ends the program through Fallisci and
    // goes no further, since Qt's own code cleans nothing up on its way.
    static void Proteggi(const std::function<void()>& gestore);

    // Delivers an event, unless it is a held key's repetition that must press nothing. The last
    // resort for an exception that came by another way.
    bool notify(QObject* ricevente, QEvent* evento) override;

    // Shows one message box about the failure, which also says that the program ends, closes all
    // windows (with their closing steps) and leaves the event loop. Later failures are not shown
    // any more: they follow from the first.
    void Fallisci(const ErroreRuntime& errore);

    // The failure being handled now, as a run-time error. Call it inside a catch block.
    static ErroreRuntime ErroreInCorso();

    // What the program returns: 0 until something failed.
    int CodiceUscita() const { return m_codice; }

    // As if nothing had failed yet. For tests.
    void DimenticaGuasto() { m_codice = 0; }

    // From now on a polite request from outside (log-out, Ctrl-C on the terminal) closes all
    // windows like their close buttons. Call it once.
    void ObbedisciAiSegnali();

    static constexpr int UscitaErrore = 1;

private:
    int m_codice = 0;
    TastiRipetuti m_tasti;
};
