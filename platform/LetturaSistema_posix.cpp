// Reading by descriptors, which may be FIFOs and terminals that signals interrupt. LetturaFile.cpp
// makes lines of it.
#include "LetturaSistema.h"

#include "SegnaliDiFine_posix.h"

#include <ctime>

#include <fcntl.h>
#include <sys/select.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lettura {

namespace {

// The time of the last writing, which macOS calls by a name of its own.
template <typename Voce>
const std::timespec& Scritto(const Voce& voce)
{
    if constexpr (requires { voce.st_mtim; }) return voce.st_mtim;
    else return voce.st_mtimespec;
}

} // namespace

// Does not wait for the writer of a FIFO: Attendi does.
int Apri(const char* percorso)
{
    return ::open(percorso, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

// The signals that ask to stop come through during the wait alone, so that none falls between the
// question and the wait.
bool Attendi(int descrittore, const std::function<bool()>& fermare)
{
    const sigset_t richieste = SegnaliDiFine();
    sigset_t prima;
    ::pthread_sigmask(SIG_BLOCK, &richieste, &prima);
    const bool avanti = !fermare();
    if (avanti && descrittore < FD_SETSIZE) {
        fd_set attesi;
        FD_ZERO(&attesi);
        FD_SET(descrittore, &attesi);
        ::pselect(descrittore + 1, &attesi, nullptr, nullptr, nullptr, &prima);
    }
    ::pthread_sigmask(SIG_SETMASK, &prima, nullptr);
    return avanti && !fermare();
}

bool Regolare(int descrittore)
{
    struct stat voce = {};
    return ::fstat(descrittore, &voce) == 0 && S_ISREG(voce.st_mode);
}

StatoFile StatoDi(int descrittore)
{
    struct stat voce = {};
    if (::fstat(descrittore, &voce) != 0) return {};
    const std::timespec& scritto = Scritto(voce);
    return {voce.st_size, scritto.tv_sec, scritto.tv_nsec};
}

std::ptrdiff_t Leggi(int descrittore, char* byte, std::size_t quanti)
{
    return ::read(descrittore, byte, quanti);
}

std::ptrdiff_t LeggiDa(int descrittore, std::uint64_t inizio, char* byte, std::size_t quanti)
{
    return ::pread(descrittore, byte, quanti, static_cast<off_t>(inizio));
}

std::int64_t Posto(int descrittore)
{
    return ::lseek(descrittore, 0, SEEK_CUR);
}

void Chiudi(int descrittore)
{
    ::close(descrittore);
}

int IngressoStandard()
{
    return STDIN_FILENO;
}

} // namespace lettura
