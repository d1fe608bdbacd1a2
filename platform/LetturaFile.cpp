#include "LetturaFile.h"

#include "ErroreSistema.h"
#include "Numeri.h"
#include "Percorsi.h"

#include <cerrno>
#include <filesystem>
#include <memory>
#include <system_error>
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
std::ptrdiff_t Leggi(int descrittore, char* byte, std::size_t quanti)
{
    return ::_read(descrittore, byte, static_cast<unsigned>(quanti));
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
std::ptrdiff_t Leggi(int descrittore, char* byte, std::size_t quanti)
{
    return ::read(descrittore, byte, quanti);
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

class Ingresso
{
public:
    explicit Ingresso(const std::string& percorso)
        : m_standard(percorso == "-")
        , m_descrittore(m_standard ? IngressoStandard() : Apri(percorso.c_str()))
    {
        if (m_descrittore < 0) throw ErroreSistema(errno, percorso);
    }
    ~Ingresso()
    {
        if (!m_standard) Chiudi(m_descrittore);
    }
    Ingresso(const Ingresso&) = delete;
    Ingresso& operator=(const Ingresso&) = delete;

    int Descrittore() const { return m_descrittore; }

private:
    bool m_standard;
    int m_descrittore;
};

// Cuts the bytes read into lines.
class Righe
{
public:
    Righe(const std::string& percorso, std::size_t massimo,
          const std::function<void(std::size_t, std::string_view)>& riga,
          const std::function<bool()>& fermare)
        : m_percorso(percorso)
        , m_massimo(massimo)
        , m_riga(riga)
        , m_fermare(fermare)
    {
    }

    // False when the reading was asked to stop.
    bool Aggiungi(std::string_view byte)
    {
        for (auto fine = byte.find('\n'); fine != std::string_view::npos; fine = byte.find('\n')) {
            Accoda(byte.substr(0, fine));
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
        m_riga(++m_numero, m_testo);
        m_testo.clear();
        return true;
    }

    static std::string Numero(std::size_t numero)
    {
        return TestoNumero(static_cast<std::int64_t>(numero));
    }

    const std::string& m_percorso;
    std::size_t m_massimo;
    const std::function<void(std::size_t, std::string_view)>& m_riga;
    const std::function<bool()>& m_fermare;
    std::string m_testo;
    std::size_t m_numero = 0;
};

} // namespace

bool LeggiRighe(const std::string& percorso, std::size_t massimo,
                const std::function<void(std::size_t, std::string_view)>& riga,
                const std::function<bool()>& fermare)
{
    const Ingresso ingresso(percorso);
    Righe righe(percorso, massimo, riga, fermare);
    std::vector<char> blocco(64 * 1024);
    while (Attendi(ingresso.Descrittore(), fermare)) {
        const auto letti = Leggi(ingresso.Descrittore(), blocco.data(), blocco.size());
        if (letti == 0) return !fermare() && righe.Finisci();
        if (letti < 0) {
            if (errno != EINTR && errno != EAGAIN) throw ErroreSistema(errno, percorso);
        } else if (!righe.Aggiungi({blocco.data(), static_cast<std::size_t>(letti)})) {
            return false;
        }
    }
    return false;
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
