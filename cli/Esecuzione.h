// One run of the command, from its options to its exit code.
#pragma once

#include "Opzioni.h"

#include <span>

namespace cli {

// Runs the command with its arguments (without the program's name) and returns the exit code.
// Results go to standard output, errors as one line to standard error. Never throws, not even
// when memory runs out.
int EseguiComando(std::span<const char* const> argomenti) noexcept;

} // namespace cli
