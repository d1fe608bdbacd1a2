// Requests to stop that come as signals; the flag that they set is in Segnali.cpp.
#include "Segnali.h"

#include "SegnaliDiFine_posix.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>

#include <fcntl.h>
#include <unistd.h>

namespace {

// The end that the handler writes to; negative while nobody watches.
constinit std::atomic<int> sveglia = -1;
static_assert(std::atomic<int>::is_always_lock_free);

// The signals that have come once, as Bit() of each.
constinit std::atomic<std::uint64_t> venuti = 0;
static_assert(std::atomic<std::uint64_t>::is_always_lock_free);

// Whether a closed pipe was to end the program before AscoltaInterruzioni() said otherwise.
constinit bool tuboFatale = false;

constexpr std::uint64_t Bit(int segnale)
{
    return std::uint64_t{1} << static_cast<unsigned>(segnale - 1);
}

// What somebody sends who wants to see the end: whichever of them comes after another is the second
// request. The others come by themselves, too: logging out sends SIGTERM and SIGHUP together.
constexpr std::uint64_t Insistenti = Bit(SIGINT) | Bit(SIGQUIT) | Bit(SIGTERM);

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

void Sveglia()
{
    const int capo = sveglia.load(std::memory_order_relaxed);
    if (capo < 0) return;
    const int prima = errno; // whatever was interrupted may be about to read it
    [[maybe_unused]] const auto scritti = ::write(capo, "", 1);
    errno = prima;
}

// True for a second request of the same kind. A terminal that goes away tells the programs on it
// itself, and so does its shell: the system's own word (a positive code) is not counted, so that
// the two are one.
bool Insiste(int segnale, const siginfo_t* notizia)
{
    if (segnale == SIGHUP && notizia->si_code > 0) return false;
    const std::uint64_t simili = (Insistenti & Bit(segnale)) != 0 ? Insistenti : Bit(segnale);
    return (venuti.fetch_or(Bit(segnale)) & simili) != 0;
}

// As if nobody had caught the signal.
void FinisciSubito(int segnale)
{
    sigset_t questo;
    ::sigemptyset(&questo);
    ::sigaddset(&questo, segnale);
    std::signal(segnale, SIG_DFL);
    std::raise(segnale);
    ::pthread_sigmask(SIG_UNBLOCK, &questo, nullptr); // held back while it is handled
}

extern "C" void Segna(int segnale, siginfo_t* notizia, void* /*contesto*/)
{
    ImpostaInterruzione(true);
    Sveglia();
    if (Insiste(segnale, notizia)) FinisciSubito(segnale);
}

// What the caller chose to ignore stays so: Ctrl-C is not meant for a script's background jobs, nor
// hanging up for what nohup started. A handler that is there already belongs to a library that
// measures the program, and stays.
void Ascolta(int segnale)
{
    struct sigaction azione = {};
    if (::sigaction(segnale, nullptr, &azione) != 0 || azione.sa_handler != SIG_DFL) return;
    azione.sa_sigaction = Segna;
    // No SA_RESTART: a read that waits must come back and ask.
    azione.sa_flags = SA_SIGINFO;
    ::sigaction(segnale, &azione, nullptr);
}

} // namespace

sigset_t SegnaliDiFine() noexcept
{
    sigset_t segnali;
    ::sigemptyset(&segnali);
    for (const int segnale : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGALRM, SIGVTALRM, SIGPROF,
                              SIGXCPU, SIGUSR1, SIGUSR2}) {
        ::sigaddset(&segnali, segnale);
    }
#ifdef SIGPWR // the systems that have it are those on which SIGIO ends a program
    for (const int segnale : {SIGIO, SIGPWR}) ::sigaddset(&segnali, segnale);
#endif
#ifdef SIGSTKFLT
    ::sigaddset(&segnali, SIGSTKFLT);
#endif
#ifdef SIGRTMIN
    for (int segnale = SIGRTMIN; segnale <= SIGRTMAX; ++segnale) ::sigaddset(&segnali, segnale);
#endif
    return segnali;
}

void AscoltaInterruzioni()
{
    OccupaCanaliChiusi();
    const sigset_t segnali = SegnaliDiFine();
    constexpr int ultimo = 64; // as many as Bit() has room for
    for (int segnale = 1; segnale <= ultimo; ++segnale) {
        if (::sigismember(&segnali, segnale) == 1) Ascolta(segnale);
    }
    if (std::signal(SIGPIPE, SIG_IGN) == SIG_DFL) tuboFatale = true;
    std::signal(SIGXFSZ, SIG_IGN);
}

void FinisciDiTubo() noexcept
{
    if (tuboFatale) FinisciSubito(SIGPIPE);
}

int ApriCanaleInterruzioni() noexcept
{
    int tubo[2];
    if (::pipe(tubo) != 0) return -1;
    for (const int capo : tubo) {
        ::fcntl(capo, F_SETFD, FD_CLOEXEC);
        ::fcntl(capo, F_SETFL, O_NONBLOCK);
    }
    sveglia.store(tubo[1], std::memory_order_relaxed);
    return tubo[0];
}
