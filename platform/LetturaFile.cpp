// Cuts what is read into lines; the system's part is in LetturaSistema_posix.cpp and
// LetturaSistema_windows.cpp.
#include "LetturaFile.h"

#include "ErroreSistema.h"
#include "LetturaSistema.h"
#include "Numeri.h"

#include <cerrno>
#include <memory>
#include <utility>
#include <vector>

namespace {

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
    , m_descrittore(m_percorso == "-" ? lettura::IngressoStandard()
                                      : lettura::Apri(m_percorso.c_str()))
    , m_regolare(m_descrittore >= 0 && lettura::Regolare(m_descrittore))
    , m_stato{}
{
    if (m_descrittore < 0) throw ErroreSistema(errno, m_percorso);
    m_stato = lettura::StatoDi(m_descrittore);
}

FileRighe::~FileRighe()
{
    if (m_percorso != "-") lettura::Chiudi(m_descrittore);
}

bool FileRighe::Cambiato() const
{
    return m_regolare && lettura::StatoDi(m_descrittore) != m_stato;
}

bool FileRighe::Leggi(const PerRiga& riga, const std::function<bool()>& fermare)
{
    // Standard input may have been read already, by whoever gave it to the program.
    const std::int64_t inizio = m_regolare ? lettura::Posto(m_descrittore) : 0;
    Righe righe(m_percorso, m_massimo, static_cast<std::uint64_t>(inizio), riga, fermare);
    std::vector<char> blocco(64 * 1024);
    while (lettura::Attendi(m_descrittore, fermare)) {
        const auto letti = lettura::Leggi(m_descrittore, blocco.data(), blocco.size());
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
        const auto letti =
            lettura::LeggiDa(m_descrittore, inizio + presi, testo.data() + presi, blocco);
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
    const int descrittore = lettura::Apri(percorso.c_str());
    if (descrittore < 0) throw ErroreSistema(errno, percorso);
    const std::unique_ptr<const int, void (*)(const int*)> chiusura(
        &descrittore, [](const int* aperto) { lettura::Chiudi(*aperto); });
    if (!lettura::Regolare(descrittore)) {
        throw ErroreRuntime(NumeroErrore::AccessoAlFile, "non è un file", percorso);
    }
    std::string byte;
    std::vector<char> blocco(64 * 1024);
    for (;;) {
        const auto letti = lettura::Leggi(descrittore, blocco.data(), blocco.size());
        if (letti == 0) return byte;
        if (letti < 0 && errno == EINTR) continue;
        if (letti < 0) throw ErroreSistema(errno, percorso);
        if (byte.size() + static_cast<std::size_t>(letti) > massimo) {
            throw ErroreRuntime(NumeroErrore::Overflow, std::string(TroppoGrande), percorso);
        }
        byte.append(blocco.data(), static_cast<std::size_t>(letti));
    }
}
