// The files that a run is to write, looked at before the first of them is replaced. Who
// writes them: FileDati.h and the reports.
#pragma once

#include "Opzioni.h"

#include <string>

namespace cli {

// ErroreComando with UscitaUso when one file stands for two purposes, under whatever names: written
// twice, or read and replaced, it would be lost. percorsoReport may be empty.
void RifiutaFileDoppi(const Opzioni& opzioni, const std::string& percorsoReport);

// The error that creating one of these files would raise about what stands there already: a file
// that cannot be replaced must not cost the others.
void PretendiScrivibili(const Opzioni& opzioni, const std::string& percorsoReport);

} // namespace cli
