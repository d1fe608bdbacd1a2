// The modal message boxes. Their texts stand with those who show them: Form1_*.cpp,
// Applicazione.cpp.
#pragma once

#include "ErroreRuntime.h"
#include "Testi.h"

#include <QMessageBox>

#include <string_view>

// Shows a box and waits for its button. Texts are UTF-8; a carriage return begins a new line. The
// first button is the default one, and all read Italian whatever the desktop's language. Closing a
// box with Yes and No means No. padre: the window it belongs to, or nullptr.
QMessageBox::StandardButton MsgBox(QWidget* padre, std::string_view testo, QMessageBox::Icon icona,
                                   QMessageBox::StandardButtons pulsanti = QMessageBox::Ok,
                                   std::string_view titolo = NomeProgramma);

// The number and the text of a run-time error, with file and reason where there is one. A reason
// that says the same as the text is left out.
std::string TestoMessaggio(const ErroreRuntime& errore);

// Writes "scalvino: ", the text (UTF-8) and a line end to standard error, for whoever started the
// program from a terminal. Control and format characters become "?", bytes that are no UTF-8 the
// replacement character. A line that cannot be written is lost.
void ScriviErrore(std::string_view testo);
