// The field with the number of shoes: what reaches it and what it makes of that. How its text
// becomes a number stands in NumeroUtente.cpp.

#include "Form1.h"

#include "Ambiente.h"
#include "Cifre.h"
#include "NumeroUtente.h"
#include "Testi.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <string_view>

namespace {

constexpr QChar Invio(13);
constexpr QChar Annulla(27);

bool CifraQt(QChar carattere)
{
    return Cifra(carattere.toLatin1());
}

// Digits and the keys that edit or leave the field: backspace, tab, line feed, delete.
bool Passa(QChar carattere)
{
    constexpr std::u16string_view tasti = u"\b\t\n\x7F";
    return CifraQt(carattere) || tasti.find(carattere.unicode()) != tasti.npos;
}

bool Niente(const QString& testo)
{
    return testo.isEmpty() || testo == QLatin1String("0");
}

bool SoloCifre(const QString& testo)
{
    return std::all_of(testo.begin(), testo.end(), CifraQt);
}

// On X11 these keys insert what is selected anywhere, as the middle button does. A word selected
// by chance would be no number.
bool IncollaLaSelezione(const QKeyEvent& evento)
{
    constexpr auto insieme = Qt::ControlModifier | Qt::ShiftModifier;
    return evento.key() == Qt::Key_Insert && (evento.modifiers() & insieme) == insieme;
}

bool Centrale(QEvent* evento)
{
    return static_cast<QMouseEvent*>(evento)->button() == Qt::MiddleButton;
}

// The window was left or a menu opened: the field keeps its place and its selection.
bool Passeggero(Qt::FocusReason motivo)
{
    return motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason;
}

} // namespace

bool Form1::FiltraNumero(QEvent* evento)
{
    switch (evento->type()) {
    case QEvent::KeyPress:
        return numTaglie_KeyPress(static_cast<QKeyEvent*>(evento));
    case QEvent::InputMethod:
        return FiltraScrittura(static_cast<QInputMethodEvent*>(evento));
    case QEvent::FocusIn:
        numTaglie_GotFocus(static_cast<QFocusEvent*>(evento)->reason());
        return false;
    case QEvent::FocusOut:
        numTaglie_LostFocus(static_cast<QFocusEvent*>(evento)->reason());
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return Centrale(evento);
    case QEvent::MouseButtonRelease:
        // The press has put the caret somewhere; a click selects all, dragging selects a part.
        if (m_clicDaFinire && !numTaglie->hasSelectedText()) SelezionaNumero();
        m_clicDaFinire = false;
        return Centrale(evento);
    default:
        return false;
    }
}

// By the characters that a key gives, not by the key: layouts differ.
bool Form1::numTaglie_KeyPress(QKeyEvent* evento)
{
    const QString testo = evento->text();
    if (IncollaLaSelezione(*evento)) return true;
    // Tab backwards gives one character or another, or none, depending on the platform.
    if (testo.isEmpty() || evento->key() == Qt::Key_Backtab) return false;
    if ((evento->modifiers() & Qt::AltModifier) != 0) {
        evento->ignore(); // a command of the window or the desktop, not a character of the field
        return true;
    }
    if (testo == Invio) {
        focusNextChild();
        return true;
    }
    if (testo == Annulla) {
        focusPreviousChild();
        return true;
    }
    return !std::all_of(testo.begin(), testo.end(), Passa);
}

// Dead keys and composed characters come this way, past every key press.
bool Form1::FiltraScrittura(QInputMethodEvent* evento)
{
    return !SoloCifre(evento->commitString()) || !SoloCifre(evento->preeditString());
}

void Form1::numTaglie_GotFocus(Qt::FocusReason motivo)
{
    const bool ritorno = m_fuocoSospeso && Passeggero(motivo);
    m_fuocoSospeso = false;
    if (ritorno) return;
    m_clicDaFinire = motivo == Qt::MouseFocusReason;
    SelezionaNumero();
}

void Form1::numTaglie_LostFocus(Qt::FocusReason motivo)
{
    m_fuocoSospeso = Passeggero(motivo);
    if (Niente(numTaglie->text())) numTaglie->setText(InQt(UnaTaglia));
}

void Form1::SelezionaNumero()
{
    numTaglie->selectAll();
}

void Form1::numTaglie_Change()
{
    if (Niente(numTaglie->text())) {
        numTaglie->setText(InQt(UnaTaglia)); // comes back here with the new text
        SelezionaNumero();
        return;
    }
    cmdTaglie->setText(InQt(NumeroTaglie() <= 1 ? SimulaUna : SimulaTante));
}

double Form1::NumeroTaglie() const
{
    return NumeroUtente(numTaglie->text().trimmed().toStdString(),
                        Stampe::AmbienteInUso.SeparatoriNumeri);
}
