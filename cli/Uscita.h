// The exit codes of the command; ErroreComando.h carries them to the one place that ends it.
#pragma once

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

} // namespace cli
