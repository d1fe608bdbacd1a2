// Files without a name (open(2), O_TMPFILE), which get one only when they are whole; where there
// are none, files under a hidden name. A lock on the file, which the system takes off however a
// program ends, tells the file of a living run from one that was left behind.
#include "FileIntero.h"

#include "ErroreSistema.h"
#include "FileVecchio.h"
#include "Impronta.h"
#include "ScritturaFile.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

#ifdef O_PATH
constexpr int PerNomi = O_PATH; // needs no right to read the folder
#else
constexpr int PerNomi = O_RDONLY;
#endif

constexpr mode_t Permessi = 0666; // less the user's umask

bool senzaAnonimi = false;

// Where the kernel names what this process has open: a link made of that name is a name of the
// file.
std::string NomeAperto(int file)
{
    return "/proc/self/fd/" + std::to_string(file);
}

// Whether the name in the folder stands for the very file that is open.
bool Nomina(int cartella, const std::string& nome, int file, int opzioni = AT_SYMLINK_NOFOLLOW)
{
    struct stat voce = {};
    struct stat aperto = {};
    return ::fstatat(cartella, nome.c_str(), &voce, opzioni) == 0 && ::fstat(file, &aperto) == 0 &&
           voce.st_dev == aperto.st_dev && voce.st_ino == aperto.st_ino;
}

enum class Blocco
{
    Preso,
    DiAltri,
    Ignoto, // the disk knows no locks
};

Blocco Blocca(int file)
{
    if (::flock(file, LOCK_EX | LOCK_NB) == 0) return Blocco::Preso;
    return errno == EWOULDBLOCK ? Blocco::DiAltri : Blocco::Ignoto;
}

// What a killed run can have left: a second name would be somebody else's, and removing it his
// loss.
bool PuoEsserNostro(int cartella, const std::string& nome)
{
    struct stat voce = {};
    return ::fstatat(cartella, nome.c_str(), &voce, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISREG(voce.st_mode) && voce.st_uid == ::geteuid() && voce.st_nlink == 1;
}

void TogliSeAbbandonato(int cartella, const std::string& nome)
{
    if (!PuoEsserNostro(cartella, nome)) return;
    // For writing, since some disks give a lock only so. Never waits, whatever has come there
    // since.
    const int file =
        ::openat(cartella, nome.c_str(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0) return;
    // Asked again under the lock: what a living run had there may be in its place by now, and the
    // name that of another living run.
    if (Blocca(file) == Blocco::Preso && Nomina(cartella, nome, file) &&
        PuoEsserNostro(cartella, nome)) {
        ::unlinkat(cartella, nome.c_str(), 0);
    }
    ::close(file);
}

void TogliAbbandonati(int cartella)
{
    for (int numero = 0; numero < MassimoIncompiuti; ++numero) {
        TogliSeAbbandonato(cartella, NomeIncompiuto(numero));
    }
}

// The folder that percorso names something in; negative when it cannot be had.
int ApriCartella(const std::string& percorso)
{
    const auto cartella = std::filesystem::path(percorso).parent_path();
    return ::open(cartella.empty() ? "." : cartella.c_str(), PerNomi | O_DIRECTORY | O_CLOEXEC);
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

    void Apri(const std::string& percorso);
    bool ApriSenzaNome();
    void ApriNascosto(const std::string& percorso);
    void PretendiArrivato(const std::string& percorso) const;
    void Collega(const std::string& percorso, const Impronta& impronta);
    void Rinomina(const std::string& percorso, const Impronta& impronta);

    std::string Nome;     // in the folder
    std::string Nascosto; // the name that the file has for now; empty: none
    int Cartella = -1;    // the very folder, wherever it is moved to
    int File = -1;
};

FileIntero::Stato::Stato(const std::string& percorso)
    : Nome(std::filesystem::path(percorso).filename().string())
{
    if (Nome.empty()) throw ErroreSistema(EISDIR, percorso);
    Cartella = ApriCartella(percorso);
    if (Cartella < 0) throw ErroreSistema(errno, percorso);
}

FileIntero::Stato::~Stato()
{
    if (!Nascosto.empty() && Nomina(Cartella, Nascosto, File)) {
        ::unlinkat(Cartella, Nascosto.c_str(), 0);
    }
    if (File >= 0) ::close(File);
    if (Cartella >= 0) ::close(Cartella);
}

void FileIntero::Stato::Apri(const std::string& percorso)
{
    TogliAbbandonati(Cartella);
    if (!ApriSenzaNome()) ApriNascosto(percorso);
}

// False where there are no such files, or where one could get no name.
bool FileIntero::Stato::ApriSenzaNome()
{
#ifdef O_TMPFILE
    if (senzaAnonimi) return false;
    File = ::openat(Cartella, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, Permessi);
    if (File < 0) return false;
    if (Nomina(AT_FDCWD, NomeAperto(File), File, 0)) {
        Blocca(File); // before it has a name that another run could find
        return true;
    }
    ::close(std::exchange(File, -1));
#endif
    return false;
}

void FileIntero::Stato::ApriNascosto(const std::string& percorso)
{
    for (int numero = 0; numero < MassimoIncompiuti; ++numero) {
        std::string nome = NomeIncompiuto(numero);
        // An exclusive creation follows no link by itself.
        File = ::openat(Cartella, nome.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, Permessi);
        if (File < 0 && errno == EEXIST) continue;
        if (File < 0) throw ErroreSistema(errno, percorso);
        // Another run that begins can have taken the file for an abandoned one before the lock.
        const bool perso = Blocca(File) == Blocco::DiAltri || !Nomina(Cartella, nome, File);
        if (!perso) {
            Nascosto = std::move(nome);
            return;
        }
        ::close(std::exchange(File, -1));
    }
    throw NomiFiniti(percorso);
}

// Some disks tell only at a close that they had no room: that of a copy leaves the file open.
void FileIntero::Stato::PretendiArrivato(const std::string& percorso) const
{
    const int copia = ::fcntl(File, F_DUPFD_CLOEXEC, 0);
    if (copia < 0) throw ErroreSistema(errno, percorso);
    if (ChiamateInUso.Chiudi(copia) != 0 && errno != EINTR) throw ErroreSistema(errno, percorso);
}

// A link never replaces a name, so that the file first gets one of its own.
void FileIntero::Stato::Collega(const std::string& percorso, const Impronta& impronta)
{
    const std::string aperto = NomeAperto(File);
    for (int numero = 0; numero < MassimoIncompiuti; ++numero) {
        std::string nome = NomeIncompiuto(numero);
        if (::linkat(AT_FDCWD, aperto.c_str(), Cartella, nome.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            Nascosto = std::move(nome);
            return;
        }
        const int motivo = errno;
        if (motivo == ENOENT) impronta.Pretendi(); // tells whether the folder is gone
        if (motivo != EEXIST) throw ErroreSistema(motivo, percorso);
    }
    throw NomiFiniti(percorso);
}

void FileIntero::Stato::Rinomina(const std::string& percorso, const Impronta& impronta)
{
    // What somebody else has put under the hidden name must not become the report.
    if (!Nomina(Cartella, Nascosto, File)) {
        impronta.Pretendi(); // tells whether the folder is gone
        throw impronta.Sostituito();
    }
    if (::renameat(Cartella, Nascosto.c_str(), Cartella, Nome.c_str()) != 0) {
        const int motivo = errno;
        throw ErroreSistema(motivo, percorso);
    }
    Nascosto.clear();
}

FileIntero::FileIntero(std::string percorso)
    : m_percorso(std::move(percorso))
{
    PretendiSostituibile(m_percorso);
    m = std::make_unique<Stato>(m_percorso);
    m->Apri(m_percorso);
}

FileIntero::~FileIntero() = default;

void FileIntero::Scrivi(std::string_view byte)
{
    ScriviSuDescrittore(m->File, byte, m_percorso);
}

void FileIntero::MettiAPosto()
{
    const Impronta impronta(m_percorso, m->File); // all memory is taken before there is a name
    m->PretendiArrivato(m_percorso);
    PretendiSostituibile(m_percorso);
    if (m->Nascosto.empty()) m->Collega(m_percorso, impronta);
    m->Rinomina(m_percorso, impronta);
    impronta.Pretendi(); // the folder may have been moved away, and the name be another one's
    ::close(std::exchange(m->File, -1)); // whoever asks from now on finds it free
}

void TogliIncompiuti(const std::string& percorso)
{
    const int cartella = ApriCartella(percorso);
    if (cartella < 0) return;
    TogliAbbandonati(cartella);
    ::close(cartella);
}

void FingiSenzaAnonimi(bool adesso) noexcept
{
    senzaAnonimi = adesso;
}
