// The application object: language, failures, signals. What a failure's box says stands in
// Messaggi.cpp.

#include "Applicazione.h"

#include "Messaggi.h"
#include "Segnali.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QSocketNotifier>
#include <QTranslator>

#include <clocale>
#include <new>

Applicazione::Applicazione(int& argc, char** argv)
    : QApplication(argc, argv)
{
    // The one menu is that of the number field, which takes most of these keys for no digits.
    setAttribute(Qt::AA_DontShowShortcutsInContextMenus);
    // Qt has just taken the user's locale for all of the C library.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName(InQt(NomeProgramma));
    setApplicationVersion(InQt(VersioneProgramma));
    setDesktopFileName(InQt(NomeComando));
    auto* traduzione = new QTranslator(this);
    if (traduzione->load(QStringLiteral("qtbase_it"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(traduzione);
    }
}

bool Applicazione::SuWayland()
{
    return platformName().startsWith(QLatin1String("wayland"));
}

void Applicazione::Proteggi(const std::function<void()>& gestore)
{
    try {
        gestore();
    } catch (...) {
        static_cast<Applicazione*>(instance())->Fallisci(ErroreInCorso());
    }
}

bool Applicazione::notify(QObject* ricevente, QEvent* evento)
{
    try {
        if (m_tasti.Trattiene(ricevente, evento)) return true;
        return QApplication::notify(ricevente, evento);
    } catch (...) {
        Fallisci(ErroreInCorso());
        return true;
    }
}

ErroreRuntime Applicazione::ErroreInCorso()
{
    try {
        throw;
    } catch (const ErroreRuntime& errore) {
        return errore;
    } catch (const std::bad_alloc&) {
        return ErroreRuntime(NumeroErrore::MemoriaEsaurita);
    } catch (const std::exception& errore) {
        return ErroreRuntime(NumeroErrore::ChiamataNonValida, errore.what());
    } catch (...) {
        return ErroreRuntime(NumeroErrore::ChiamataNonValida);
    }
}

void Applicazione::Fallisci(const ErroreRuntime& errore)
{
    if (m_codice != 0) return;
    m_codice = UscitaErrore;
    MsgBox(activeWindow(), TestoMessaggio(errore) + "\rIl programma si chiude.",
           QMessageBox::Critical);
    closeAllWindows();
    exit(m_codice);
}

void Applicazione::ObbedisciAiSegnali()
{
    const int canale = ApriCanaleInterruzioni();
    AscoltaInterruzioni();
    if (canale < 0) return;
    auto* guardia = new QSocketNotifier(canale, QSocketNotifier::Read, this);
    connect(guardia, &QSocketNotifier::activated, this, [this, guardia] {
        guardia->setEnabled(false);
        closeAllWindows();
        exit(m_codice);
    });
}
