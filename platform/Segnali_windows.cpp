// Requests to stop from a console: Ctrl-C, Ctrl-Break, the console that is closed.
#include "Segnali.h"

#include <csignal>

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

void FinisciDiTubo() noexcept {} // no signal tells of it here

int ApriCanaleInterruzioni() noexcept
{
    return -1;
}
