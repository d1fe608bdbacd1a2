// Files under a temporary name beside the old one, which the system moves over it. While such a
// file is open nobody else can remove it, so that one which can be removed was left behind.
#include "FileIntero.h"

#include "ErroreSistema.h"
#include "FileVecchio.h"
#include "Percorsi.h"
#include "ScritturaFile.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

namespace {

// The folder as it was given, with what parts it from a name behind it.
std::string Cartella(const std::string& percorso)
{
    const std::size_t nome = percorso.find_last_of("\\/:");
    return percorso.substr(0, nome == std::string::npos ? 0 : nome + 1);
}

// A link, a folder and what is hidden or the system's own are no files of ours.
void TogliSeAbbandonato(const std::string& nome)
{
    const DWORD attributi = GetFileAttributesA(nome.c_str());
    constexpr DWORD altrui = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT |
                             FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_SYSTEM |
                             FILE_ATTRIBUTE_READONLY;
    if (attributi != INVALID_FILE_ATTRIBUTES && (attributi & altrui) == 0) {
        DeleteFileA(nome.c_str());
    }
}

int CodiceDi(DWORD errore)
{
    switch (errore) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return ENOENT;
    case ERROR_DISK_FULL:
        return ENOSPC;
    default:
        return EACCES; // held by another program, read-only, or a folder
    }
}

} // namespace

struct FileIntero::Stato
{
    explicit Stato(const std::string& percorso);
    ~Stato();
    Stato(const Stato&) = delete;
    Stato& operator=(const Stato&) = delete;
    Stato(Stato&&) = delete;
    Stato& operator=(Stato&&) = delete;

    std::string Provvisorio; // the name that the file has for now; empty: it is in its place
    int File = -1;
};

FileIntero::Stato::Stato(const std::string& percorso)
{
    const std::string cartella = Cartella(percorso);
    if (cartella.size() == percorso.size()) throw ErroreSistema(EISDIR, percorso);
    TogliIncompiuti(percorso);
    for (int numero = 0; numero < MassimoIncompiuti; ++numero) {
        Provvisorio = cartella + NomeIncompiuto(numero);
        File =
            ::_sopen(Provvisorio.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                     _SH_DENYWR, _S_IREAD | _S_IWRITE);
        if (File >= 0) return;
        if (errno != EEXIST) throw ErroreSistema(errno, percorso);
    }
    Provvisorio.clear();
    throw NomiFiniti(percorso);
}

FileIntero::Stato::~Stato()
{
    if (File >= 0) ::_close(File);
    if (!Provvisorio.empty()) DeleteFileA(Provvisorio.c_str());
}

FileIntero::FileIntero(std::string percorso)
    : m_percorso(std::move(percorso))
{
    PretendiSostituibile(m_percorso);
    m = std::make_unique<Stato>(m_percorso);
}

FileIntero::~FileIntero() = default;

void FileIntero::Scrivi(std::string_view pezzo)
{
    ScriviSuDescrittore(m->File, pezzo, m_percorso);
}

void FileIntero::MettiAPosto()
{
    if (ChiamateInUso.Chiudi(std::exchange(m->File, -1)) != 0) {
        throw ErroreSistema(errno, m_percorso);
    }
    PretendiSostituibile(m_percorso);
    if (MoveFileExA(m->Provvisorio.c_str(), m_percorso.c_str(), MOVEFILE_REPLACE_EXISTING) == 0) {
        throw ErroreSistema(CodiceDi(GetLastError()), m_percorso);
    }
    m->Provvisorio.clear();
}

void TogliIncompiuti(const std::string& percorso)
{
    const std::string cartella = Cartella(percorso);
    for (int numero = 0; numero < MassimoIncompiuti; ++numero) {
        TogliSeAbbandonato(cartella + NomeIncompiuto(numero));
    }
}

void FingiSenzaAnonimi(bool /*adesso*/) noexcept {} // there are none here
