// The flags and the sharing with which a file is created and opened again. FileNuovo.cpp writes.
#include "FileNuovo.h"

#include "ErroreSistema.h"
#include "FileVecchio.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

FileNuovo::FileNuovo(std::string percorso)
    : m_percorso(std::move(percorso))
{
    std::string nome = m_percorso; // all memory is taken before there is a file
    TogliFile(m_percorso);
    m_descrittore = ::_sopen(m_percorso.c_str(),
                             _O_WRONLY | _O_APPEND | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                             _SH_DENYWR, _S_IREAD | _S_IWRITE);
    if (m_descrittore < 0) throw ErroreSistema(errno, m_percorso);

    try {
        m_impronta.emplace(std::move(nome), m_descrittore);
    } catch (...) {
        ::_close(m_descrittore);
        throw;
    }
}

void FileNuovo::Riapri()
{
    const int descrittore =
        ::_sopen(m_percorso.c_str(), _O_WRONLY | _O_APPEND | _O_BINARY | _O_NOINHERIT, _SH_DENYWR);
    if (descrittore < 0) {
        const int codice = errno;
        PretendiSostituibile(m_percorso); // says so when it is a folder
        throw ErroreSistema(codice, m_percorso);
    }
    // The opening followed links, even one that leads to our own file.
    if (!m_impronta->Riconosce(descrittore) || !m_impronta->Vale()) {
        ::_close(descrittore);
        throw m_impronta->Sostituito();
    }
    m_descrittore = descrittore;
}

void FileNuovo::Accorcia(std::uint64_t lunghezza) noexcept
{
    if (m_descrittore < 0) return;
    // The write's own error is the one to report; a disk that refuses this too is that error.
    [[maybe_unused]] const int esito =
        ::_chsize_s(m_descrittore, static_cast<long long>(lunghezza));
}
