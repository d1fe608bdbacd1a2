// The exit codes of the command; ErroreComando.h carries them to Comando.cpp, which returns them.
#pragma once

#include "ErroreRuntime.h"

namespace cli {

enum Uscita : int
{
    UscitaFatto = 0,
    UscitaUso = 2,
    UscitaRifiuto = 3,
    UscitaScrittura = 4,
    UscitaInterna = 5,
    UscitaInterrotta = 130,
};

// What a failure during the run means for the caller of the command: UscitaScrittura for those of
// files, UscitaRifiuto for more than a document can hold, UscitaInterna for all others.
Uscita UscitaPer(NumeroErrore numero);

} // namespace cli
