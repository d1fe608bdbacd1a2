#include "FileNuovo.h"

#include "ErroreSistema.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/magic.h>
#include <sys/vfs.h>
#endif

namespace {

std::ptrdiff_t ScriviVero(int descrittore, const void* byte, std::size_t quanti)
{
    return ::write(descrittore, byte, quanti);
}

int ChiudiVero(int descrittore)
{
    return ::close(descrittore);
}

bool StessaVoce(const struct stat& voce, std::uint64_t dispositivo, std::uint64_t indice)
{
    return static_cast<std::uint64_t>(voce.st_dev) == dispositivo &&
           static_cast<std::uint64_t>(voce.st_ino) == indice;
}

} // namespace

constinit ChiamateFile ChiamateInUso = {ScriviVero, ChiudiVero};

ChiamateFile ChiamateDelSistema()
{
    return {ScriviVero, ChiudiVero};
}

namespace {

// False when there is nothing; an error when what is there must stay.
bool DaTogliere(const std::string& percorso)
{
    struct stat voce = {};
    if (::lstat(percorso.c_str(), &voce) != 0) {
        if (errno == ENOENT) return false;
        throw ErroreSistema(errno, percorso);
    }
    if (S_ISDIR(voce.st_mode)) throw ErroreSistema(EISDIR, percorso);
    if (!S_ISREG(voce.st_mode) && !S_ISLNK(voce.st_mode)) throw ErroreSistema(ENXIO, percorso);
    // Root may remove anything, so the owner is asked for and not the permission.
    if (voce.st_uid != ::geteuid()) {
        throw ErroreRuntime(NumeroErrore::PermessoNegato, "appartiene a un altro utente", percorso);
    }
    return true;
}

} // namespace

void PretendiSostituibile(const std::string& percorso)
{
    DaTogliere(percorso);
}

void PretendiCreabile(const std::string& percorso)
{
    PretendiSostituibile(percorso);
    const auto nome = std::filesystem::path(percorso).parent_path();
    const std::string cartella = nome.empty() ? "." : nome.string();
    // Whether it may be gone through has shown by the look at the entry.
    if (::faccessat(AT_FDCWD, cartella.c_str(), W_OK, AT_EACCESS) != 0) {
        throw ErroreSistema(errno, percorso);
    }
}

void TogliFile(const std::string& percorso)
{
    if (!DaTogliere(percorso)) return;
    if (::unlink(percorso.c_str()) != 0 && errno != ENOENT) throw ErroreSistema(errno, percorso);
}

namespace {

// What stat(2) finds behind the name: also the nameless things of the kernel that have no kind.
bool ConduceAUnoSpeciale(const std::string& percorso)
{
    struct stat voce = {};
    return ::stat(percorso.c_str(), &voce) == 0 && !S_ISREG(voce.st_mode) && !S_ISDIR(voce.st_mode);
}

// Whether the name, or one it leads to, is the kernel's name of something open: what is behind
// /dev/stdout may be a plain file, and the link is the whole system's all the same.
bool ConduceAUnoAperto([[maybe_unused]] std::filesystem::path nome)
{
#ifdef PROC_SUPER_MAGIC
    constexpr int massimo = 40; // links that the kernel itself follows in a row
    for (int passo = 0; passo < massimo; ++passo) {
        const auto cartella = nome.parent_path();
        struct statfs disco = {};
        if (::statfs(cartella.empty() ? "." : cartella.c_str(), &disco) != 0) return false;
        if (disco.f_type == PROC_SUPER_MAGIC) return true;
        std::error_code errore;
        const auto bersaglio = std::filesystem::read_symlink(nome, errore);
        PretendiMemoria(errore);
        if (errore) return false;
        nome = cartella / bersaglio;
    }
#endif
    return false;
}

} // namespace

void PretendiNonSpeciale(const std::string& percorso)
{
    struct stat voce = {};
    if (::lstat(percorso.c_str(), &voce) != 0 || !S_ISLNK(voce.st_mode)) return;
    if (!ConduceAUnoSpeciale(percorso) && !ConduceAUnoAperto(percorso)) return;
    throw ErroreRuntime(NumeroErrore::AccessoAlFile,
                        "è un collegamento a qualcosa che non è un file ordinario", percorso);
}

bool FileOrdinario(const std::string& percorso)
{
    const auto nome = std::filesystem::path(percorso).filename().string();
    if (nome.empty() || nome.front() == '.') return false;
    struct stat voce = {};
    return ::stat(percorso.c_str(), &voce) == 0 && S_ISREG(voce.st_mode);
}

bool StessoFile(const std::string& percorso, const std::string& altro)
{
    struct stat a = {};
    struct stat b = {};
    return ::stat(percorso.c_str(), &a) == 0 && ::stat(altro.c_str(), &b) == 0 &&
           a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

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

void FileNuovo::Riapri()
{
    // Without O_NONBLOCK a FIFO planted between two shoes would hold the program for ever.
    const int descrittore =
        ::open(m_percorso.c_str(), O_WRONLY | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descrittore < 0) throw ErroreSistema(errno, m_percorso);
    if (!m_impronta->Riconosce(descrittore)) {
        ::close(descrittore);
        throw ErroreRuntime(NumeroErrore::AccessoAlFile, "un altro programma lo ha sostituito",
                            m_percorso);
    }
    m_descrittore = descrittore;
}

void FileNuovo::Accorcia(std::uint64_t lunghezza) noexcept
{
    if (m_descrittore < 0) return;
    // The write's own error is the one to report; a disk that refuses this too is that error.
    [[maybe_unused]] const int esito = ::ftruncate(m_descrittore, static_cast<off_t>(lunghezza));
}
