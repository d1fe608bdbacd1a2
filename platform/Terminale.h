// Whether somebody watches the messages on a terminal, and how wide it is: for cli/Avanzamento.cpp.
#pragma once

// True when standard error is a terminal.
bool ErroriSuTerminale();

// How many characters a line of that terminal holds now; 0 when it does not tell.
int ColonneErrori();
