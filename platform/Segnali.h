// Requests to stop that come from outside. The flag that they set is in Segnali.cpp.
#pragma once

// From now on every signal that asks the program to end (Ctrl-C, SIGTERM, a terminal that hangs up,
// a limit of time and whatever else would end it; no fault of its own) only sets a flag; a second
// one of the same kind ends the program at once. SIGINT, SIGQUIT and SIGTERM are one kind. What the
// caller ignores stays ignored. Writing into a closed pipe or past a file-size limit becomes an
// ordinary error of the write. Call once, before any thread is started.
void AscoltaInterruzioni();

// True once a request to stop has arrived. Any thread may ask.
bool InterruzioneChiesta() noexcept;

// Ends the program as it would have ended by itself when it wrote into a pipe that nobody reads any
// more. Returns where nothing of the kind was to happen: the caller ignores SIGPIPE, there is none
// on this system, or AscoltaInterruzioni() was not called.
void FinisciDiTubo() noexcept;

// Opens a descriptor that becomes readable when a request to stop arrives, for an event loop to
// watch; negative where there is none. It stays open to the end of the program. Call it once,
// before AscoltaInterruzioni().
int ApriCanaleInterruzioni() noexcept;

// As if the request had arrived (or had not): for tests.
void ImpostaInterruzione(bool chiesta) noexcept;
