// The command, from its arguments to its exit code. Next: Opzioni.h (what it was asked for) and
// Corsa.h (the run).
#pragma once

#include <span>

namespace cli {

// From now on a failure that nothing can catch (memory that runs out before main, or so thoroughly
// that not even an exception has room) ends the program with one line and exit code 5 instead of an
// abort.
void PreparaFineImprovvisa() noexcept;

// Runs the command with its arguments (without the program's name) and returns the exit code.
// Results go to standard output, errors as one line to standard error. Never throws, not even
// when memory runs out.
int EseguiComando(std::span<const char* const> argomenti) noexcept;

} // namespace cli
