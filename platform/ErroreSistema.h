// Turns the operating system's error codes into the program's run-time error, base/ErroreRuntime.h.
#pragma once

#include "ErroreRuntime.h"

#include <string>
#include <system_error>

// The run-time error for errno value codice about file, with an Italian reason.
ErroreRuntime ErroreSistema(int codice, const std::string& file);

// The Italian reason alone, lower case, without a full stop.
std::string MotivoSistema(int codice);

// Whether errore is that of writing to somebody who reads no more, as after "| head".
bool DiChiNonLegge(const ErroreRuntime& errore);

// Throws std::bad_alloc when errore says that memory ran out; any other error, or none, has no
// effect. To be called after file operations of the standard library: they report exhausted memory
// like an answer of the disk ("no such file"), and the program would go on with a wrong answer.
void PretendiMemoria(const std::error_code& errore);
