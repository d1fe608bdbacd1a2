// Reading by the C library's descriptors, which know neither signals nor reads at a place.
// LetturaFile.cpp makes lines of it.
#include "LetturaSistema.h"

#include "Percorsi.h"

#include <cerrno>
#include <filesystem>
#include <mutex>
#include <system_error>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

namespace lettura {

int Apri(const char* percorso)
{
    const int descrittore = ::_open(percorso, _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (descrittore >= 0 || errno != EACCES) return descrittore;
    // The system refuses folders without saying that they are some.
    std::error_code errore;
    const bool cartella = std::filesystem::is_directory(percorsi::Cammino(percorso), errore);
    errno = cartella ? EISDIR : EACCES;
    return -1;
}

bool Attendi(int /*descrittore*/, const std::function<bool()>& fermare)
{
    return !fermare();
}

bool Regolare(int descrittore)
{
    struct _stat64 voce = {};
    return ::_fstat64(descrittore, &voce) == 0 && (voce.st_mode & _S_IFREG) != 0;
}

StatoFile StatoDi(int descrittore)
{
    struct _stat64 voce = {};
    if (::_fstat64(descrittore, &voce) != 0) return {};
    return {voce.st_size, voce.st_mtime, 0};
}

std::ptrdiff_t Leggi(int descrittore, char* byte, std::size_t quanti)
{
    return ::_read(descrittore, byte, static_cast<unsigned>(quanti));
}

// There is but one place in the file for all threads.
std::ptrdiff_t LeggiDa(int descrittore, std::uint64_t inizio, char* byte, std::size_t quanti)
{
    static std::mutex chiave;
    const std::lock_guard guardia(chiave);
    if (::_lseeki64(descrittore, static_cast<std::int64_t>(inizio), SEEK_SET) < 0) return -1;
    return Leggi(descrittore, byte, quanti);
}

std::int64_t Posto(int descrittore)
{
    return ::_lseeki64(descrittore, 0, SEEK_CUR);
}

void Chiudi(int descrittore)
{
    ::_close(descrittore);
}

int IngressoStandard()
{
    constexpr int ingresso = 0;
    ::_setmode(ingresso, _O_BINARY); // else the library would end the text at a Ctrl-Z
    return ingresso;
}

} // namespace lettura
