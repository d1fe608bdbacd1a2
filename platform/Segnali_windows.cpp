// Requests to stop from a console: Ctrl-C, Ctrl-Break, the console that is closed.
#include "Segnali.h"

#include <csignal>

#include <io.h>
#include <windows.h>

namespace {

constexpr int Richieste[] = {SIGINT, SIGTERM, SIGBREAK};

extern "C" void Segna(int /*segnale*/)
{
    ImpostaInterruzione(true);
    // Whichever comes next is the second one.
    for (const int segnale : Richieste) std::signal(segnale, SIG_DFL);
}

} // namespace

void AscoltaInterruzioni()
{
    for (const int segnale : Richieste) std::signal(segnale, Segna);
}

int ApriCanaleInterruzioni() noexcept
{
    return -1;
}

bool ErroriSuTerminale()
{
    return ::_isatty(2) != 0;
}

int ColonneErrori()
{
    CONSOLE_SCREEN_BUFFER_INFO misure = {};
    const HANDLE errori = GetStdHandle(STD_ERROR_HANDLE);
    if (GetConsoleScreenBufferInfo(errori, &misure) == 0) return 0;
    return misure.srWindow.Right - misure.srWindow.Left + 1;
}
