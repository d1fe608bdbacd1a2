// Before the application object exists: what needs no display, and how large the window is drawn.
// main.cpp goes through these in order.
#pragma once

#include <QSize>

#include <optional>
#include <string>

class Applicazione;

namespace avvio {

// The answer to --help or --version among the arguments, which ends the program, or nothing.
std::optional<std::string> Risposta(int argc, const char* const* argv);

// Removes the variables of Qt that scale all windows (QT_SCALE_FACTOR, QT_SCREEN_SCALE_FACTORS,
// QT_FONT_DPI) where one holds no number, or one that no screen has: Qt takes 0 and infinity for
// sizes and draws nothing any more.
void TogliScaleNonValide();

// How many pixels of the screen one pixel of the layout takes: as many as asked for, but so few
// that the window with a frame around it fits a screen of so many pixels, in sixty-fourths. Never
// below 1, where Qt draws at 1 and cuts off at less.
double Scala(double chiesta, QSizeF schermo);

// The application object, with argc and argv as it wants them, made again with another
// QT_SCALE_FACTOR where the first screen asks for it (see Scala); the window keeps its logical
// size. Where no display can be opened, one sentence on standard error, and the program ends here
// with code 1. The caller owns the result.
Applicazione* Crea(int& argc, char** argv);

} // namespace avvio
