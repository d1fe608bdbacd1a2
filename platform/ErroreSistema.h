// Turns the operating system's error codes into the program's run-time error.
#pragma once

#include "ErroreRuntime.h"

#include <string>

// The run-time error for errno value codice about file, with an Italian reason.
ErroreRuntime ErroreSistema(int codice, const std::string& file);

// The Italian reason alone, lower case, without a full stop.
std::string MotivoSistema(int codice);
