// Blocks that go into a new file whole or not at all. How it is opened is in FileNuovo_posix.cpp
// and FileNuovo_windows.cpp.
#include "FileNuovo.h"

#include "ErroreSistema.h"
#include "ScritturaFile.h"

#include <cerrno>

FileNuovo::~FileNuovo()
{
    // Nobody can be told here: who wants to know whether the file is whole calls Chiudi().
    if (m_descrittore >= 0) ChiamateInUso.Chiudi(m_descrittore);
    if (!m_conserva) m_impronta->Togli();
}

void FileNuovo::ScriviTutto(std::string_view byte)
{
    if (m_descrittore < 0) throw ErroreSistema(EBADF, m_percorso);
    ScriviSuDescrittore(m_descrittore, byte, m_percorso);
}

void FileNuovo::Scrivi(std::string_view byte)
{
    try {
        ScriviTutto(byte);
    } catch (...) {
        Accorcia(m_lunghezza);
        throw;
    }
    m_lunghezza += byte.size();
}

void FileNuovo::Chiudi()
{
    if (m_descrittore < 0) return;
    const int descrittore = m_descrittore;
    m_descrittore = -1;
    // An interrupted close has closed the descriptor all the same: it must not be repeated.
    if (ChiamateInUso.Chiudi(descrittore) != 0 && errno != EINTR) {
        throw ErroreSistema(errno, m_percorso);
    }
}
