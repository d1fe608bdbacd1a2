// What LetturaFile.cpp asks the system, one file per platform. Failures are told as by read(2): a
// negative result and errno.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace lettura {

// Length in bytes; seconds and nanoseconds of the last writing. Two that differ tell that the file
// was changed in between.
using StatoFile = std::array<std::int64_t, 3>;

// Opens a file for reading and never waits for a writer; programs started later do not get it.
int Apri(const char* percorso);

void Chiudi(int descrittore);

// The descriptor of standard input, of which all bytes come as they are.
int IngressoStandard();

// Whether it is a regular file. False on any error.
bool Regolare(int descrittore);

// All zero on any error.
StatoFile StatoDi(int descrittore);

// Where the next Leggi reads.
std::int64_t Posto(int descrittore);

// Waits until there is something to read; false when fermare says to stop.
bool Attendi(int descrittore, const std::function<bool()>& fermare);

// The next bytes: how many, 0 at the end.
std::ptrdiff_t Leggi(int descrittore, char* byte, std::size_t quanti);

// The bytes from inizio on. Any thread may call it.
std::ptrdiff_t LeggiDa(int descrittore, std::uint64_t inizio, char* byte, std::size_t quanti);

} // namespace lettura
