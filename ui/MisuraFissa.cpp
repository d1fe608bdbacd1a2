// A guard that brings a window back to its size; why it is needed stands in MisuraFissa.h.

#include "MisuraFissa.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <vector>

namespace {

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
        finestra.installEventFilter(this);
    }

    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        const bool cambiato = oggetto == &m_finestra && evento->type() == QEvent::WindowStateChange;
        if (cambiato && (m_finestra.windowState() & Ingrandita) != 0) Rinasci();
        return QObject::eventFilter(oggetto, evento);
    }

private:
    // The new state has been accepted by now, but nothing of the window's own size been shown under
    // it. A window that is hidden in between has no state to be shown in.
    void Rinasci()
    {
        QWindow* finestra = m_finestra.windowHandle();
        if (finestra == nullptr || !finestra->isVisible()) return;
        const auto riquadri = SopraDi(finestra);
        for (auto* riquadro : riquadri) riquadro->setVisible(false);
        finestra->setVisible(false);
        m_finestra.setWindowState(m_finestra.windowState() & ~Ingrandita);
        finestra->setVisible(true);
        for (auto* riquadro : riquadri) riquadro->setVisible(true);
    }

    QWidget& m_finestra;
};

bool SuWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

void TieniMisuraFissa(QWidget& finestra)
{
    if (SuWayland()) new Custode(finestra);
}
