// Which exit code an error of the run ends with; who asks: Comando.cpp.
#include "Uscita.h"

namespace cli {

Uscita UscitaPer(NumeroErrore numero)
{
    switch (numero) {
    case NumeroErrore::FileNonTrovato:
    case NumeroErrore::ErroreInputOutput:
    case NumeroErrore::DiscoPieno:
    case NumeroErrore::PermessoNegato:
    case NumeroErrore::AccessoAlFile:
    case NumeroErrore::PercorsoNonTrovato:
        return UscitaScrittura;
    case NumeroErrore::Overflow:
        return UscitaRifiuto;
    default:
        return UscitaInterna;
    }
}

} // namespace cli
