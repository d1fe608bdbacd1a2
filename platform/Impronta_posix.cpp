// A file is told by the numbers of its device and of itself. What follows from a difference is in
// Impronta.cpp.
#include "Impronta.h"

#include "ErroreSistema.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool StessaVoce(const struct stat& voce, std::uint64_t dispositivo, std::uint64_t indice)
{
    return static_cast<std::uint64_t>(voce.st_dev) == dispositivo &&
           static_cast<std::uint64_t>(voce.st_ino) == indice;
}

} // namespace

Impronta::Impronta(std::string percorso)
    : m_percorso(std::move(percorso))
{
    struct stat voce = {};
    if (::lstat(m_percorso.c_str(), &voce) == 0) {
        m_dispositivo = static_cast<std::uint64_t>(voce.st_dev);
        m_indice = static_cast<std::uint64_t>(voce.st_ino);
    }
    Ancora();
}

Impronta::Impronta(std::string percorso, int descrittore)
    : m_percorso(std::move(percorso))
{
    struct stat voce = {};
    if (::fstat(descrittore, &voce) != 0) throw ErroreSistema(errno, m_percorso);
    m_dispositivo = static_cast<std::uint64_t>(voce.st_dev);
    m_indice = static_cast<std::uint64_t>(voce.st_ino);
    Ancora();
}

Impronta::~Impronta()
{
    if (m_ancora != SenzaAncora) ::close(static_cast<int>(m_ancora));
}

// A file system may give the number of a removed file to the next one at once: while the file is
// closed, only a reference of ours makes the number mean this file. It counts as no opening. Where
// it cannot be had (no O_PATH, no descriptor left), the number alone must do.
void Impronta::Ancora() noexcept
{
#ifdef O_PATH
    m_ancora = ::open(m_percorso.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
#endif
}

bool Impronta::Vale() const noexcept
{
    struct stat voce = {};
    return ::lstat(m_percorso.c_str(), &voce) == 0 && S_ISREG(voce.st_mode) &&
           StessaVoce(voce, m_dispositivo, m_indice);
}

bool Impronta::Riconosce(int descrittore) const noexcept
{
    struct stat voce = {};
    return ::fstat(descrittore, &voce) == 0 && StessaVoce(voce, m_dispositivo, m_indice);
}

void Impronta::Togli() const noexcept
{
    if (Vale()) ::unlink(m_percorso.c_str());
}
