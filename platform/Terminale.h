// Whether somebody watches the messages on a terminal, and how wide it is: for cli/Avanzamento.cpp;
// and whether results are shown on one.
#pragma once

// True when standard error is a terminal.
bool ErroriSuTerminale();

// True when standard output is one.
bool UscitaSuTerminale();

// How many characters a line of that terminal holds now; 0 when it does not tell.
int ColonneErrori();
