// One run of the command: shoes, report, files and data as the options ask for. Next: Opzioni.h and
// reports/Stampe.h.
#pragma once

#include "Opzioni.h"

#include <string>

namespace cli {

// Plays the shoes, writes the report and the files, and returns what is left for standard output:
// the data, the statistics of the form "video", the path of the report, or nothing; each ends in a
// line end. Whatever can be refused is refused before the first file is replaced.
//
// ErroreComando with UscitaRifiuto for shoes that cannot be played, with UscitaInterrotta when the
// user stopped the run; ErroreRuntime when a file fails. AmbienteInUso is empty afterwards.
std::string EseguiCorsa(const Opzioni& opzioni);

} // namespace cli
