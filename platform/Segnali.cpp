#include "Segnali.h"

#include <atomic>
#include <cerrno>
#include <csignal>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

constinit std::atomic<bool> chiesta = false;
static_assert(std::atomic<bool>::is_always_lock_free);

// The end that the handler writes to; negative while nobody watches.
constinit std::atomic<int> sveglia = -1;
static_assert(std::atomic<int>::is_always_lock_free);

#ifndef _WIN32
// A file of ours must not take the number of a channel that the caller has closed: messages would
// end up in it. What stands in can be neither read nor written, so that using it stays an error.
void OccupaCanaliChiusi()
{
    for (const int canale : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(canale, F_GETFD) >= 0) continue;
        [[maybe_unused]] const int preso =
            ::open("/dev/null", canale == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}
#endif

void Sveglia()
{
#ifndef _WIN32
    const int capo = sveglia.load(std::memory_order_relaxed);
    if (capo < 0) return;
    const int prima = errno; // whatever was interrupted may be about to read it
    [[maybe_unused]] const auto scritti = ::write(capo, "", 1);
    errno = prima;
#endif
}

// What the caller chose to ignore stays so: Ctrl-C is not meant for a script's background jobs.
bool Ignorato([[maybe_unused]] int segnale)
{
#ifdef _WIN32
    return false;
#else
    struct sigaction presente = {};
    return ::sigaction(segnale, nullptr, &presente) == 0 && presente.sa_handler == SIG_IGN;
#endif
}

extern "C" void Segna(int /*segnale*/)
{
    chiesta.store(true, std::memory_order_relaxed);
    Sveglia();
    // Whichever comes next is the second one.
    for (const int segnale : {SIGINT, SIGTERM}) {
        if (!Ignorato(segnale)) std::signal(segnale, SIG_DFL);
    }
}

#ifndef _WIN32
void Ascolta(int segnale)
{
    if (Ignorato(segnale)) return;
    struct sigaction azione = {};
    azione.sa_handler = Segna;
    // No SA_RESTART: a read that waits must come back and ask.
    azione.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigaction(segnale, &azione, nullptr);
}
#endif

} // namespace

void AscoltaInterruzioni()
{
#ifdef _WIN32
    std::signal(SIGINT, Segna);
    std::signal(SIGTERM, Segna);
#else
    OccupaCanaliChiusi();
    for (const int segnale : {SIGINT, SIGTERM}) Ascolta(segnale);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

int ApriCanaleInterruzioni() noexcept
{
#ifdef _WIN32
    return -1;
#else
    int tubo[2];
    if (::pipe(tubo) != 0) return -1;
    for (const int capo : tubo) {
        ::fcntl(capo, F_SETFD, FD_CLOEXEC);
        ::fcntl(capo, F_SETFL, O_NONBLOCK);
    }
    sveglia.store(tubo[1], std::memory_order_relaxed);
    return tubo[0];
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
