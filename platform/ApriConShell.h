// Opens a finished file with the desktop's default handler. Reports do so by Ambiente::Apri of
// reports/Ambiente.h.
#pragma once

#include <string>

// How the window that shows the file should appear; a hint that only Windows heeds.
enum class StileFinestra
{
    NormaleConFuoco,
    MassimizzataConFuoco,
};

// Starts the desktop's handler for percorso and does not wait for it. No shell stands in between:
// the path is one argument, whatever bytes it holds, and must be absolute. The handler gets no
// input and its output is dropped. Returns false where nothing can open files.
bool ApriConShell(const std::string& percorso, StileFinestra stile);
