// Which of the keyboard's repetitions reach a control. Which keys the number field takes at all:
// Form1_Numero.cpp.

#include "TastiRipetuti.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool Muove(int tasto)
{
    switch (tasto) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

// In the field these two leave it.
bool Lascia(int tasto)
{
    return tasto == Qt::Key_Return || tasto == Qt::Key_Enter || tasto == Qt::Key_Escape;
}

bool Scrive(const QObject* ricevente, int tasto)
{
    return qobject_cast<const QLineEdit*>(ricevente) != nullptr && !Lascia(tasto);
}

} // namespace

bool TastiRipetuti::Ripetuto(const QKeyEvent& tasto) const
{
    const bool insieme = m_istante != 0 && tasto.timestamp() == m_istante;
    return tasto.isAutoRepeat() || (insieme && tasto.key() == m_rilasciato);
}

bool TastiRipetuti::Trattiene(const QObject* ricevente, QEvent* evento)
{
    const auto tipo = evento->type();
    // What the window itself receives it hands on to one of its widgets.
    if (!ricevente->isWidgetType()) return false;
    if (tipo == QEvent::KeyRelease) {
        const auto* tasto = static_cast<QKeyEvent*>(evento);
        m_rilasciato = tasto->key();
        m_istante = tasto->timestamp();
        return false;
    }
    // The second kind asks first whether a key is a shortcut, which would press a button, too.
    if (tipo != QEvent::KeyPress && tipo != QEvent::ShortcutOverride) return false;
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    if (!Ripetuto(*tasto) || Muove(tasto->key()) || Scrive(ricevente, tasto->key())) return false;
    evento->accept();
    return true;
}
