// Keys that the keyboard repeats while they are held down: the first press counts. Asked by
// Applicazione.cpp.
#pragma once

#include <QtGlobal>

class QEvent;
class QKeyEvent;
class QObject;

// Knows a repeated key by its mark and, where the window system's pairs of release and press come
// torn apart and without it, by their common time. One object sees all key events of the program.
class TastiRipetuti
{
public:
    // True when this event on its way to a widget is the repetition of a key and must not arrive:
    // then it has been accepted. Held down, Tab and arrows move on and the other keys go on
    // writing in a field; nothing else happens twice, so that no button is pressed again and no
    // message is answered before it was read.
    bool Trattiene(const QObject* ricevente, QEvent* evento);

private:
    bool Ripetuto(const QKeyEvent& tasto) const;

    int m_rilasciato = 0;  // the key of the last release
    quint64 m_istante = 0; // and its time in milliseconds, 0 where the system tells none
};
