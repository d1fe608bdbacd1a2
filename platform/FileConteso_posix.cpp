// Asks by a lease of the file, where the system has leases. The promise is in FileConteso.h.
#include "FileConteso.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Whether a system call failed because somebody holds the file: has it open, holds a lease of it
// (one would have to wait), uses it as a disk or runs it.
bool Tenuto(int motivo)
{
    return motivo == EAGAIN || motivo == EBUSY || motivo == ETXTBSY;
}

#ifdef F_SETLEASE

// An opening by somebody else while the lease is held would raise SIGIO, which ends a program.
class SenzaSigio
{
public:
    SenzaSigio()
    {
        struct sigaction ignora = {};
        ignora.sa_handler = SIG_IGN;
        ::sigaction(SIGIO, &ignora, &m_prima);
    }
    ~SenzaSigio() { ::sigaction(SIGIO, &m_prima, nullptr); }
    SenzaSigio(const SenzaSigio&) = delete;
    SenzaSigio& operator=(const SenzaSigio&) = delete;

private:
    struct sigaction m_prima = {};
};

bool ApertoDaAltri(int descrittore)
{
    const SenzaSigio guardia;
    if (::fcntl(descrittore, F_SETLEASE, F_WRLCK) != 0) return Tenuto(errno);
    ::fcntl(descrittore, F_SETLEASE, F_UNLCK);
    return false;
}

#else

bool ApertoDaAltri(int /*descrittore*/)
{
    return false;
}

#endif

} // namespace

bool FileOccupato(const std::string& percorso)
{
    const int descrittore =
        ::open(percorso.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (descrittore < 0) return Tenuto(errno);
    const bool occupato = ApertoDaAltri(descrittore);
    ::close(descrittore);
    return occupato;
}
