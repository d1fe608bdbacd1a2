#include "FileNuovo.h"

#include "ErroreSistema.h"
#include "Percorsi.h"

#include <cerrno>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

namespace {

std::ptrdiff_t ScriviVero(int descrittore, const void* byte, std::size_t quanti)
{
    constexpr std::size_t massimo = 1u << 30;
    return ::_write(descrittore, byte, static_cast<unsigned>(quanti < massimo ? quanti : massimo));
}

int ChiudiVero(int descrittore)
{
    return ::_close(descrittore);
}

} // namespace

constinit ChiamateFile ChiamateInUso = {ScriviVero, ChiudiVero};

ChiamateFile ChiamateDelSistema()
{
    return {ScriviVero, ChiudiVero};
}

// Folders of other users are closed to this one here by the system's own rights, so that the
// owner need not be asked for.
void PretendiSostituibile(const std::string& percorso)
{
    const DWORD attributi = GetFileAttributesA(percorso.c_str());
    if (attributi == INVALID_FILE_ATTRIBUTES) return;
    if ((attributi & FILE_ATTRIBUTE_DIRECTORY) != 0) throw ErroreSistema(EISDIR, percorso);
    if ((attributi & FILE_ATTRIBUTE_DEVICE) != 0) throw ErroreSistema(ENXIO, percorso);
}

// The rights of a folder show only when a file is created in it.
void PretendiCreabile(const std::string& percorso)
{
    PretendiSostituibile(percorso);
}

void TogliFile(const std::string& percorso)
{
    PretendiSostituibile(percorso);
    if (::_unlink(percorso.c_str()) != 0 && errno != ENOENT) throw ErroreSistema(errno, percorso);
}

// The names of devices stand in no folder here, so that no link is known to lead to one.
void PretendiNonSpeciale(const std::string& /*percorso*/) {}

bool FileOrdinario(const std::string& percorso)
{
    const DWORD attributi = GetFileAttributesA(percorso.c_str());
    constexpr DWORD esclusi = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN |
                              FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_DEVICE;
    return attributi != INVALID_FILE_ATTRIBUTES && (attributi & esclusi) == 0;
}

bool StessoFile(const std::string& percorso, const std::string& altro)
{
    std::error_code errore;
    return std::filesystem::equivalent(percorsi::Cammino(percorso), percorsi::Cammino(altro),
                                       errore);
}

namespace {

struct Chiusura
{
    using pointer = HANDLE;
    void operator()(HANDLE maniglia) const { CloseHandle(maniglia); }
};
using Maniglia = std::unique_ptr<HANDLE, Chiusura>;

// The entry itself, a link rather than its target, for questions only: whoever opens a file so
// hinders nobody's use of it, not even an opening that shares nothing. Null when it cannot be had.
Maniglia ApriPerDomande(const std::string& percorso)
{
    constexpr DWORD tutti = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    constexpr DWORD comunqueSia = FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT;
    const HANDLE maniglia = CreateFileA(percorso.c_str(), FILE_READ_ATTRIBUTES, tutti, nullptr,
                                        OPEN_EXISTING, comunqueSia, nullptr);
    return Maniglia(maniglia == INVALID_HANDLE_VALUE ? nullptr : maniglia);
}

HANDLE ManigliaDi(int descrittore)
{
    return reinterpret_cast<HANDLE>(::_get_osfhandle(descrittore));
}

std::uint64_t Indice(const BY_HANDLE_FILE_INFORMATION& voce)
{
    return (std::uint64_t{voce.nFileIndexHigh} << 32) | voce.nFileIndexLow;
}

bool StessaVoce(HANDLE maniglia, std::uint64_t dispositivo, std::uint64_t indice)
{
    BY_HANDLE_FILE_INFORMATION voce = {};
    constexpr DWORD esclusi =
        FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE;
    return GetFileInformationByHandle(maniglia, &voce) != 0 &&
           (voce.dwFileAttributes & esclusi) == 0 && voce.dwVolumeSerialNumber == dispositivo &&
           Indice(voce) == indice;
}

} // namespace

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
        throw ErroreRuntime(NumeroErrore::AccessoAlFile, "un altro programma lo ha sostituito",
                            m_percorso);
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

Impronta::Impronta(std::string percorso)
    : m_percorso(std::move(percorso))
{
    Ancora();
    BY_HANDLE_FILE_INFORMATION voce = {};
    if (m_ancora != SenzaAncora &&
        GetFileInformationByHandle(reinterpret_cast<HANDLE>(m_ancora), &voce) != 0) {
        m_dispositivo = voce.dwVolumeSerialNumber;
        m_indice = Indice(voce);
    }
}

Impronta::Impronta(std::string percorso, int descrittore)
    : m_percorso(std::move(percorso))
{
    BY_HANDLE_FILE_INFORMATION voce = {};
    if (GetFileInformationByHandle(ManigliaDi(descrittore), &voce) == 0) {
        throw ErroreSistema(EIO, m_percorso);
    }
    m_dispositivo = voce.dwVolumeSerialNumber;
    m_indice = Indice(voce);
    Ancora();
}

Impronta::~Impronta()
{
    if (m_ancora != SenzaAncora) CloseHandle(reinterpret_cast<HANDLE>(m_ancora));
}

// Some file systems give the number of a removed file to the next one: while the file is closed,
// only a handle of ours makes the number mean this file.
void Impronta::Ancora() noexcept
{
    Maniglia maniglia = ApriPerDomande(m_percorso);
    if (maniglia) m_ancora = reinterpret_cast<std::intptr_t>(maniglia.release());
}

bool Impronta::Vale() const noexcept
{
    const Maniglia voce = ApriPerDomande(m_percorso);
    return voce && StessaVoce(voce.get(), m_dispositivo, m_indice);
}

bool Impronta::Riconosce(int descrittore) const noexcept
{
    return StessaVoce(ManigliaDi(descrittore), m_dispositivo, m_indice);
}

void Impronta::Togli() const noexcept
{
    if (Vale()) ::_unlink(m_percorso.c_str());
}
