// Starts xdg-open (or open) as a program that outlives this one. The promise is in ApriConShell.h.
#include "ApriConShell.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The name of a program is nothing that a feature of the system's headers could tell: the only
// place that asks for a system by its name.
#ifdef __APPLE__
constexpr const char* Programma = "open";
#else
constexpr const char* Programma = "xdg-open";
#endif

// Between fork and exec only async-signal-safe calls are allowed.

void StaccaDalTerminale()
{
    ::setsid();
    const int nulla = ::open("/dev/null", O_RDWR);
    if (nulla < 0) return;
    for (const int canale : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) ::dup2(nulla, canale);
    if (nulla > STDERR_FILENO) ::close(nulla);
}

[[noreturn]] void EseguiNelNipote(const char* percorso, int esito)
{
    StaccaDalTerminale();
    // What this program ignores, a handler would ignore too, and every program it starts.
    for (const int segnale : {SIGPIPE, SIGXFSZ}) ::signal(segnale, SIG_DFL);
    const std::array<const char*, 3> argomenti = {Programma, percorso, nullptr};
    ::execvp(Programma, const_cast<char* const*>(argomenti.data()));
    const int codice = errno;
    [[maybe_unused]] const auto scritti = ::write(esito, &codice, sizeof codice);
    ::_exit(127);
}

} // namespace

// The handler is a grandchild: its parent ends at once and is reaped here, so that the handler
// belongs to init and leaves no zombie. The pipe closes by itself when exec succeeds.
bool ApriConShell(const std::string& percorso, StileFinestra /*stile*/)
{
    std::array<int, 2> tubo{};
    if (::pipe(tubo.data()) != 0) return false;
    for (const int capo : tubo) ::fcntl(capo, F_SETFD, FD_CLOEXEC);

    const pid_t figlio = ::fork();
    if (figlio == 0) {
        const pid_t nipote = ::fork();
        if (nipote == 0) EseguiNelNipote(percorso.c_str(), tubo[1]);
        ::_exit(nipote < 0 ? 1 : 0);
    }
    ::close(tubo[1]);

    bool avviato = figlio > 0;
    if (avviato) {
        int stato = 0;
        while (::waitpid(figlio, &stato, 0) < 0 && errno == EINTR) {
        }
        int codice = 0;
        ssize_t letti = 0;
        do {
            letti = ::read(tubo[0], &codice, sizeof codice);
        } while (letti < 0 && errno == EINTR);
        avviato = letti == 0 && stato == 0;
    }
    ::close(tubo[0]);
    return avviato;
}
