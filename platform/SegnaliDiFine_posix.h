// Which signals ask a program to end: for Segnali_posix.cpp, and for who waits and must hear them.
#pragma once

#include <csignal>

// Every signal that ends a program which does nothing about it, except those that tell of a fault
// of its own (SIGSEGV and the like), those that nobody can catch, and the two that only tell of a
// failed write (SIGPIPE, SIGXFSZ).
sigset_t SegnaliDiFine() noexcept;
