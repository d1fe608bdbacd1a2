// The flags with which a file is created and opened again, each against something that somebody
// else may put in its place. FileNuovo.cpp writes.
#include "FileNuovo.h"

#include "ErroreSistema.h"
#include "FileVecchio.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

FileNuovo::FileNuovo(std::string percorso)
    : m_percorso(std::move(percorso))
{
    std::string nome = m_percorso; // all memory is taken before there is a file
    TogliFile(m_percorso);
    constexpr mode_t permessi = 0666; // less the user's umask
    // Appending: after a block that was cut back the next one starts where the file now ends. An
    // exclusive creation follows no link by itself.
    m_descrittore =
        ::open(m_percorso.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_EXCL | O_CLOEXEC, permessi);
    if (m_descrittore < 0) throw ErroreSistema(errno, m_percorso);

    try {
        m_impronta.emplace(std::move(nome), m_descrittore);
    } catch (...) {
        ::close(m_descrittore);
        throw;
    }
}

void FileNuovo::Riapri()
{
    // Without O_NONBLOCK a FIFO planted between two shoes would hold the program for ever.
    const int descrittore =
        ::open(m_percorso.c_str(), O_WRONLY | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descrittore < 0) throw ErroreSistema(errno, m_percorso);
    if (!m_impronta->Riconosce(descrittore)) {
        ::close(descrittore);
        throw m_impronta->Sostituito();
    }
    m_descrittore = descrittore;
}

void FileNuovo::Accorcia(std::uint64_t lunghezza) noexcept
{
    if (m_descrittore < 0) return;
    // The write's own error is the one to report; a disk that refuses this too is that error.
    [[maybe_unused]] const int esito = ::ftruncate(m_descrittore, static_cast<off_t>(lunghezza));
}
