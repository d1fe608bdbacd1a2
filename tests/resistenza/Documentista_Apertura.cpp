// The switches of a document at random, what it tells about itself, and where it goes.

#include "Documentista.h"

#include "ErroreRuntime.h"
#include "Parole.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace resistenza {

namespace {

constexpr std::string_view Proprie[] = {"Title",   "Subject",  "Author",
                                        "Creator", "Producer", "Keywords"};

// In a property "#" asks for the properties after it: what they say together is nobody's promise.
std::string SenzaCancelli(std::string testo)
{
    std::replace(testo.begin(), testo.end(), '#', '.');
    return testo;
}

// Whether a call is refused with error 5, as one that must not be made.
template <typename Lavoro>
bool Rifiutata(Lavoro lavoro)
{
    try {
        lavoro();
        return false;
    } catch (const ErroreRuntime& errore) {
        if (errore.Numero() == NumeroErrore::ChiamataNonValida) return true;
        throw;
    }
}

} // namespace

std::string ByteDi(const std::filesystem::path& percorso)
{
    std::ifstream file(percorso, std::ios::binary);
    std::string byte{std::istreambuf_iterator<char>(file), {}};
    if (byte.empty()) throw std::runtime_error(percorso.string() + ": non si legge");
    return byte;
}

// ---- Switches ----------------------------------------------------------------------------------

void Documentista::Orologio()
{
    clsPDFCreator::DateTime quando = {m_caso.Intero(0, 9999), m_caso.Intero(1, 12),
                                      m_caso.Intero(1, 28),   m_caso.Intero(0, 23),
                                      m_caso.Intero(0, 59),   m_caso.Intero(0, 60)};
    constexpr int quasiUnGiorno = 1439; // minutes
    if (Nuova(2)) quando.Offset = m_caso.Intero(-quasiUnGiorno, quasiUnGiorno);
    CHIAMA(SetClock, {[quando] { return quando; }, [] { return 7; }});
}

void Documentista::Interruttori()
{
    static const std::vector<std::string> lingue = {"it", "en-GB", "sr-Latn-RS", "x-klingon"};
    CHIAMA(Conforming, m_maniera == Maniera::Conforme);
    Comprimi(m_caso.Una(4) ? 0 : m_caso.Intero(1, 9));
    if (m_caso.Una(2)) CHIAMA(SetLanguage, m_caso.Fra(lingue));
}

// A library without zlib refuses every level but 0: its documents stay as they are.
void Documentista::Comprimi(int livello)
{
    if (Rifiutata([&] { CHIAMA(Compress, livello); }) && livello == 0) {
        throw std::runtime_error("non comprimere è stato rifiutato");
    }
}

// ---- Texts outside the pages -------------------------------------------------------------------

// Only a conforming document keeps any text, and readers must give it back.
std::string Documentista::FuoriPagina(std::string_view genere, int parole)
{
    std::string testo = m_maniera == Maniera::Conforme && m_caso.Una(2) ? TestoDiFuori(m_caso)
                                                                        : Frase(m_caso, parole);
    Ricorda(genere, testo);
    return testo;
}

void Documentista::Ricorda(std::string_view genere, std::string_view testo)
{
    constexpr std::string_view cifre = "0123456789ABCDEF";
    std::string riga = std::string(genere) + " ";
    for (const char c : testo) {
        const auto codice = static_cast<unsigned char>(c);
        riga += {cifre[codice / 16], cifre[codice % 16]};
    }
    if (m_maniera == Maniera::Conforme) m_fuori.push_back(riga);
}

void Documentista::Proprieta()
{
    std::vector<std::string> testi;
    for (const std::string_view nome : Proprie) {
        if (m_caso.Una(3)) testi.emplace_back();
        else if (m_maniera == Maniera::Conforme) testi.push_back(FuoriPagina(nome, 5));
        else testi.push_back(SenzaCancelli(Frase(m_caso, 5)));
    }
    CHIAMA(SetDocProperty, testi[0], testi[1], testi[2], testi[3], testi[4], testi[5]);
}

// ---- Where it goes -----------------------------------------------------------------------------

void Documentista::Apri(const std::filesystem::path& percorso)
{
    if (!m_caso.Una(4)) Proprieta();
    if (Nuova(2)) ApriAltrove(percorso);
    else ApriFile(percorso);
}

void Documentista::ApriFile(const std::filesystem::path& percorso)
{
    if (!m_caso.Una(10)) {
        CHIAMA(BeginDoc, percorso.string());
        return;
    }
    // A name of the writer's own, in the current folder; the open file takes the new name along.
    std::filesystem::current_path(percorso.parent_path());
    std::filesystem::rename(CHIAMA(BeginDoc, std::string()), percorso);
}

void Documentista::ApriAltrove(const std::filesystem::path& percorso)
{
    m_altrove.open(percorso, std::ios::binary);
    if (m_caso.Una(2)) {
        CHIAMA(BeginDocTo, m_altrove);
        return;
    }
    CHIAMA(BeginDocTo, [this](std::string_view pezzo) {
        m_altrove.write(pezzo.data(), static_cast<std::streamsize>(pezzo.size()));
    });
}

// What went to a function or a stream is no file that could be opened.
void Documentista::ApriColProgramma()
{
    const bool rifiutato = Rifiutata([this] { CHIAMA(OpenDoc); });
    if (rifiutato != m_altrove.is_open()) throw std::runtime_error("OpenDoc risponde male");
}

} // namespace resistenza
