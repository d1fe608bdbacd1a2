#include "FileNuovo.h"

#include "ErroreSistema.h"

#include <cerrno>
#include <filesystem>
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
    return std::filesystem::equivalent(percorso, altro, errore);
}

FileNuovo::FileNuovo(std::string percorso)
    : m_percorso(std::move(percorso))
{
    std::string nome = m_percorso; // all memory is taken before there is a file
    TogliFile(m_percorso);
    m_descrittore = ::_sopen(m_percorso.c_str(),
                             _O_WRONLY | _O_APPEND | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                             _SH_DENYWR, _S_IREAD | _S_IWRITE);
    if (m_descrittore < 0) throw ErroreSistema(errno, m_percorso);
    m_impronta.emplace(std::move(nome), m_descrittore);
}

void FileNuovo::Riapri()
{
    m_descrittore = ::_sopen(m_percorso.c_str(), _O_WRONLY | _O_APPEND | _O_BINARY | _O_NOINHERIT,
                             _SH_DENYWR, _S_IREAD | _S_IWRITE);
    if (m_descrittore < 0) throw ErroreSistema(errno, m_percorso);
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
}

Impronta::Impronta(std::string percorso, int)
    : m_percorso(std::move(percorso))
{
}

Impronta::~Impronta() = default;

void Impronta::Ancora() noexcept {}

bool Impronta::Vale() const noexcept
{
    return true;
}

bool Impronta::Riconosce(int) const noexcept
{
    return true;
}

void Impronta::Togli() const noexcept
{
    ::_unlink(m_percorso.c_str());
}
