// Turns the operating system's error codes into the program's run-time error.
#pragma once

#include "ErroreRuntime.h"

#include <string>
#include <system_error>

// The run-time error for errno value codice about file, with an Italian reason.
ErroreRuntime ErroreSistema(int codice, const std::string& file);

// The Italian reason alone, lower case, without a full stop.
std::string MotivoSistema(int codice);

// std::bad_alloc when this is the want of memory: the standard library's file operations report
// that like any other failure, while it says nothing about the file.
void PretendiMemoria(const std::error_code& errore);
