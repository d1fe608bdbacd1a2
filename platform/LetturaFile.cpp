#include "LetturaFile.h"

#include "ErroreSistema.h"
#include "Numeri.h"
#include "Percorsi.h"

#include <cerrno>
#include <filesystem>
#include <memory>
#include <mutex>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#ifdef _WIN32
#include <io.h>
#else
#include "SegnaliDiFine_posix.h"

#include <sys/select.h>
#include <unistd.h>
#endif

namespace {

#ifdef _WIN32
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
std::array<std::int64_t, 3> StatoDi(int descrittore)
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
#else
// Does not wait for the writer of a FIFO: Attendi does.
int Apri(const char* percorso)
{
    return ::open(percorso, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

// Waits until there is something to read; false when asked to stop. The signals that ask so come
// through during the wait alone, so that none falls between the question and the wait.
bool Attendi(int descrittore, const std::function<bool()>& fermare)
{
    const sigset_t richieste = SegnaliDiFine();
    sigset_t prima;
    ::pthread_sigmask(SIG_BLOCK, &richieste, &prima);
    const bool avanti = !fermare();
    if (avanti && descrittore < FD_SETSIZE) {
        fd_set attesi;
        FD_ZERO(&attesi);
        FD_SET(descrittore, &attesi);
        ::pselect(descrittore + 1, &attesi, nullptr, nullptr, nullptr, &prima);
    }
    ::pthread_sigmask(SIG_SETMASK, &prima, nullptr);
    return avanti && !fermare();
}
bool Regolare(int descrittore)
{
    struct stat voce = {};
    return ::fstat(descrittore, &voce) == 0 && S_ISREG(voce.st_mode);
}
std::array<std::int64_t, 3> StatoDi(int descrittore)
{
    struct stat voce = {};
    if (::fstat(descrittore, &voce) != 0) return {};
#ifdef __APPLE__
    const auto& scritto = voce.st_mtimespec;
#else
    const auto& scritto = voce.st_mtim;
#endif
    return {voce.st_size, scritto.tv_sec, scritto.tv_nsec};
}
std::ptrdiff_t Leggi(int descrittore, char* byte, std::size_t quanti)
{
    return ::read(descrittore, byte, quanti);
}
std::ptrdiff_t LeggiDa(int descrittore, std::uint64_t inizio, char* byte, std::size_t quanti)
{
    return ::pread(descrittore, byte, quanti, static_cast<off_t>(inizio));
}
std::int64_t Posto(int descrittore)
{
    return ::lseek(descrittore, 0, SEEK_CUR);
}
void Chiudi(int descrittore)
{
    ::close(descrittore);
}
int IngressoStandard()
{
    return STDIN_FILENO;
}
#endif

// Cuts the bytes read into lines.
class Righe
{
public:
    Righe(const std::string& percorso, std::size_t massimo, std::uint64_t inizio,
          const FileRighe::PerRiga& riga, const std::function<bool()>& fermare)
        : m_percorso(percorso)
        , m_massimo(massimo)
        , m_inizio(inizio)
        , m_fine(inizio)
        , m_riga(riga)
        , m_fermare(fermare)
    {
    }

    // False when the reading was asked to stop.
    bool Aggiungi(std::string_view byte)
    {
        for (auto fine = byte.find('\n'); fine != std::string_view::npos; fine = byte.find('\n')) {
            Accoda(byte.substr(0, fine));
            ++m_fine;
            if (!Consegna()) return false;
            byte.remove_prefix(fine + 1);
        }
        Accoda(byte);
        return true;
    }

    bool Finisci() { return m_testo.empty() || Consegna(); }

private:
    void Accoda(std::string_view byte)
    {
        // One more than allowed: it may be the CR of the line end.
        if (m_testo.size() + byte.size() > m_massimo + 1) TroppoLunga();
        m_testo.append(byte);
        m_fine += byte.size();
    }

    [[noreturn]] void TroppoLunga() const
    {
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida,
                            "riga " + Numero(m_numero + 1) + ": troppo lunga", m_percorso);
    }

    bool Consegna()
    {
        if (m_fermare()) return false;
        if (!m_testo.empty() && m_testo.back() == '\r') m_testo.pop_back();
        if (m_testo.size() > m_massimo) TroppoLunga();
        m_riga(++m_numero, m_inizio, m_testo);
        m_testo.clear();
        m_inizio = m_fine;
        return true;
    }

    static std::string Numero(std::size_t numero)
    {
        return TestoNumero(static_cast<std::int64_t>(numero));
    }

    const std::string& m_percorso;
    std::size_t m_massimo;
    std::uint64_t m_inizio; // of the line in m_testo
    std::uint64_t m_fine;   // of all that was read
    const FileRighe::PerRiga& m_riga;
    const std::function<bool()>& m_fermare;
    std::string m_testo;
    std::size_t m_numero = 0;
};

} // namespace

FileRighe::FileRighe(std::string percorso, std::size_t massimo)
    : m_percorso(std::move(percorso))
    , m_massimo(massimo)
    , m_descrittore(m_percorso == "-" ? IngressoStandard() : Apri(m_percorso.c_str()))
    , m_regolare(m_descrittore >= 0 && Regolare(m_descrittore))
    , m_stato{}
{
    if (m_descrittore < 0) throw ErroreSistema(errno, m_percorso);
    m_stato = StatoDi(m_descrittore);
}

FileRighe::~FileRighe()
{
    if (m_percorso != "-") Chiudi(m_descrittore);
}

bool FileRighe::Cambiato() const
{
    return m_regolare && StatoDi(m_descrittore) != m_stato;
}

bool FileRighe::Leggi(const PerRiga& riga, const std::function<bool()>& fermare)
{
    // Standard input may have been read already, by whoever gave it to the program.
    const std::int64_t inizio = m_regolare ? Posto(m_descrittore) : 0;
    Righe righe(m_percorso, m_massimo, static_cast<std::uint64_t>(inizio), riga, fermare);
    std::vector<char> blocco(64 * 1024);
    while (Attendi(m_descrittore, fermare)) {
        const auto letti = ::Leggi(m_descrittore, blocco.data(), blocco.size());
        if (letti == 0) return !fermare() && righe.Finisci();
        if (letti < 0) {
            if (errno != EINTR && errno != EAGAIN) throw ErroreSistema(errno, m_percorso);
        } else if (!righe.Aggiungi({blocco.data(), static_cast<std::size_t>(letti)})) {
            return false;
        }
    }
    return false;
}

std::string FileRighe::RigaA(std::uint64_t inizio) const
{
    constexpr std::size_t blocco = 2048; // more than most lines are long
    std::string testo;
    for (std::size_t presi = 0; presi <= m_massimo;) {
        testo.resize(presi + blocco);
        const auto letti = LeggiDa(m_descrittore, inizio + presi, testo.data() + presi, blocco);
        if (letti < 0 && errno == EINTR) continue;
        if (letti < 0) throw ErroreSistema(errno, m_percorso);
        testo.resize(presi + static_cast<std::size_t>(letti));
        const auto fine = testo.find('\n', presi);
        presi = testo.size();
        if (fine != std::string::npos) testo.resize(fine);
        if (letti == 0 || fine != std::string::npos) break;
    }
    if (!testo.empty() && testo.back() == '\r') testo.pop_back();
    return testo;
}

std::string LeggiFile(const std::string& percorso, std::size_t massimo)
{
    const int descrittore = Apri(percorso.c_str());
    if (descrittore < 0) throw ErroreSistema(errno, percorso);
    const std::unique_ptr<const int, void (*)(const int*)> chiusura(
        &descrittore, [](const int* aperto) { Chiudi(*aperto); });
    if (!Regolare(descrittore)) {
        throw ErroreRuntime(NumeroErrore::AccessoAlFile, "non è un file", percorso);
    }
    std::string byte;
    std::vector<char> blocco(64 * 1024);
    for (;;) {
        const auto letti = Leggi(descrittore, blocco.data(), blocco.size());
        if (letti == 0) return byte;
        if (letti < 0 && errno == EINTR) continue;
        if (letti < 0) throw ErroreSistema(errno, percorso);
        if (byte.size() + static_cast<std::size_t>(letti) > massimo) {
            throw ErroreRuntime(NumeroErrore::Overflow, "è troppo grande", percorso);
        }
        byte.append(blocco.data(), static_cast<std::size_t>(letti));
    }
}
