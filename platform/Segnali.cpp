#include "Segnali.h"

#include <atomic>
#include <csignal>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

constinit std::atomic<bool> chiesta = false;
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void Segna(int /*segnale*/)
{
    chiesta.store(true, std::memory_order_relaxed);
}

} // namespace

void AscoltaInterruzioni()
{
#ifdef _WIN32
    std::signal(SIGINT, Segna);
    std::signal(SIGTERM, Segna);
#else
    struct sigaction azione = {};
    azione.sa_handler = Segna;
    // No SA_RESTART: a read that waits must come back and ask.
    azione.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigaction(SIGINT, &azione, nullptr);
    ::sigaction(SIGTERM, &azione, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

bool InterruzioneChiesta() noexcept
{
    return chiesta.load(std::memory_order_relaxed);
}

void ImpostaInterruzione(bool adesso) noexcept
{
    chiesta.store(adesso, std::memory_order_relaxed);
}

bool ErroriSuTerminale()
{
#ifdef _WIN32
    return ::_isatty(2) != 0;
#else
    return ::isatty(STDERR_FILENO) != 0;
#endif
}
