// A guard that brings a window back to its size; why it is needed stands in MisuraFissa.h.

#include "MisuraFissa.h"

#include "Applicazione.h"

#include <QEvent>
#include <QExposeEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <chrono>
#include <thread>
#include <utility>
#include <vector>

namespace {

// Longer than a compositor takes to tell that a picture has been shown: it shows 60 a second.
constexpr std::chrono::milliseconds Quiete(25);

constexpr Qt::WindowStates Ingrandita = Qt::WindowMaximized | Qt::WindowFullScreen;

// The boxes of a window: the compositor keeps them in front of it only if they come after it.
std::vector<QWindow*> SopraDi(const QWindow* finestra)
{
    std::vector<QWindow*> riquadri;
    for (auto* altra : QGuiApplication::topLevelWindows()) {
        if (altra->transientParent() == finestra && altra->isVisible()) riquadri.push_back(altra);
    }
    return riquadri;
}

class Custode : public QObject
{
public:
    explicit Custode(QWidget& finestra)
        : QObject(&finestra)
        , m_finestra(finestra)
    {
        qApp->installEventFilter(this);
        connect(&m_giri, &QTimer::timeout, this, [this] { Giro(); });
    }

    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        if (evento->type() == QEvent::MetaCall) Diffida(*oggetto);
        if (Espone(*oggetto, *evento) && InDubbio()) return m_esposta = true;
        if (oggetto != &m_finestra) return false;
        if (evento->type() == QEvent::UpdateRequest && InDubbio()) return m_rimandato = true;
        const bool cambiato = evento->type() == QEvent::WindowStateChange;
        if (cambiato && EIngrandita()) Rinasci();
        return false;
    }

private:
    bool EIngrandita() const { return (m_finestra.windowState() & Ingrandita) != 0; }

    // A window that comes to light is drawn at once, without being asked to.
    bool Espone(const QObject& oggetto, const QEvent& evento) const
    {
        const QWindow* finestra = m_finestra.windowHandle();
        return evento.type() == QEvent::Expose && &oggetto == finestra && finestra->isExposed();
    }

    // A call that Qt has queued for its end of the connection may accept a new state, of which the
    // window hears a moment later: whatever is shown in between has the wrong size for it. Nothing
    // is drawn until the event loop has gone round twice, by when the news has come, if there is
    // any.
    void Diffida(QObject& chiamato)
    {
        if (!chiamato.inherits("QtWaylandClient::QWaylandWindow")) return;
        if (m_connessione == nullptr) m_connessione = &chiamato;
        m_mancanti = 2;
        m_giri.start(0);
    }

    // Calls that still wait are made first: else the drawing itself would make them, half-way.
    bool InDubbio()
    {
        if (m_connessione != nullptr) {
            QCoreApplication::sendPostedEvents(m_connessione, QEvent::MetaCall);
        }
        return m_mancanti != 0;
    }

    void Giro()
    {
        if (--m_mancanti != 0) return;
        m_giri.stop();
        if (std::exchange(m_esposta, false)) Esponi();
        if (!std::exchange(m_rimandato, false)) return;
        QCoreApplication::postEvent(&m_finestra, new QEvent(QEvent::UpdateRequest));
    }

    void Esponi() const
    {
        QWindow* finestra = m_finestra.windowHandle();
        if (finestra == nullptr) return;
        const QRect tutta(QPoint(0, 0), finestra->size());
        QCoreApplication::postEvent(finestra, new QExposeEvent(tutta));
    }

    // The new state has been accepted by now, but nothing of the window's own size been shown under
    // it. A window that is hidden in between has no state to be shown in.
    void Rinasci()
    {
        QWindow* finestra = m_finestra.windowHandle();
        if (finestra == nullptr || !finestra->isVisible()) return;
        // Another thread of Qt is told when a picture has been shown. If the window is hidden at
        // that very moment, Qt gives the notice back twice and the program ends; so let it come.
        std::this_thread::sleep_for(Quiete);
        const auto riquadri = SopraDi(finestra);
        for (auto* riquadro : riquadri) riquadro->setVisible(false);
        finestra->setVisible(false);
        m_finestra.setWindowState(m_finestra.windowState() & ~Ingrandita);
        finestra->setVisible(true);
        for (auto* riquadro : riquadri) riquadro->setVisible(true);
    }

    QWidget& m_finestra;
    QPointer<QObject> m_connessione; // the first that was called: this window's, as a rule
    QTimer m_giri;                   // of the event loop
    int m_mancanti = 0;              // rounds until something may be drawn
    bool m_rimandato = false;        // a drawing waits for that
    bool m_esposta = false;          // so does a window that has come to light
};

} // namespace

void TieniMisuraFissa(QWidget& finestra)
{
    if (Applicazione::SuWayland()) new Custode(finestra);
}
