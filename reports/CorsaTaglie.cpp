// Plays the shoes on one thread or shares them among several, and adds up. Every report calls it:
// see Stampe_Txt.cpp for the simplest.
#include "CorsaTaglie.h"

#include "Ambiente.h"
#include "ErroreRuntime.h"
#include "LimitiTaglie.h"
#include "Studio.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <exception>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace Stampe {

CifreTaglia DerivaCifre()
{
    const auto& colpi = modCarte::Colpi;
    if (colpi.empty()) throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo);
    const modCarte::RecordColpo ultimo(colpi.back());
    const auto k = static_cast<std::int64_t>(colpi.size()) - 1;

    // A shoe that runs out late in the Rosso row passes for one that ended with a complete coup, on
    // purpose: its last record then counts as a coup and is shown as one.
    const bool breve = ultimo.Breve();
    const std::int64_t carteBreve = breve ? ultimo.NumeroCarte() : 0;
    // Posizione is 313 at the end of a shoe, so that this counts one card more than were dealt. On
    // purpose: shares of the cards, in every report and in the data, are shares of this number.
    const auto usate =
        static_cast<std::int64_t>(modCarte::Posizione) - modCarte::NumeroCarteAnnullate;

    const std::int64_t completi = breve ? k - 1 : k;
    return {breve, completi - 1, completi, completi, usate - carteBreve};
}

void TotaliReport::Aggiungi(const modCarte::StatisticheTaglia& statistiche)
{
    modCarte::AggiungiConti(*this, statistiche);
}

void TotaliReport::Aggiungi(const CifreTaglia& cifre)
{
    Colpi += cifre.ColpiTotali;
    CarteUsate += cifre.CarteUsate;
}

void TotaliReport::Aggiungi(const TotaliReport& altri)
{
    Colpi += altri.Colpi;
    CarteUsate += altri.CarteUsate;
    modCarte::AggiungiConti<std::int64_t, std::int64_t>(*this, altri);
}

namespace {

std::int64_t Intere(double chieste)
{
    if (!(chieste >= 1)) {
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida, PocheTaglie, NumeroDiTaglie);
    }
    if (chieste > static_cast<double>(MassimoTaglie)) {
        throw ErroreRuntime(NumeroErrore::Overflow, TroppeTaglie(), NumeroDiTaglie);
    }
    return static_cast<std::int64_t>(std::nearbyint(chieste));
}

} // namespace

NumeroTaglie::NumeroTaglie(double chieste)
    : m_chieste(chieste)
    , m_daFare(Intere(chieste))
{
}

std::int64_t NumeroTaglie::Mostrate() const
{
    return std::llround(m_chieste);
}

namespace {

// Totals of one thread and, when the run collects them, its study figures.
struct Conti
{
    TotaliReport totali;
    Studio studio;
};

CifreTaglia GiocaUna(std::int64_t taglia, Conti& conti)
{
    AmbienteInUso.PreparaTaglia(taglia);
    modCarte::GiocaTaglia();
    const CifreTaglia cifre = DerivaCifre();
    conti.totali.Aggiungi(modCarte::Statistiche);
    conti.totali.Aggiungi(cifre);
    if (AmbienteInUso.Raccolta != nullptr) conti.studio.AggiungiTaglia();
    return cifre;
}

TotaliReport Chiudi(const Conti& conti)
{
    if (AmbienteInUso.Raccolta != nullptr) AmbienteInUso.Raccolta->Aggiungi(conti.studio);
    return conti.totali;
}

void Segnala(std::int64_t fatte)
{
    if (AmbienteInUso.TagliaFatta) AmbienteInUso.TagliaFatta(fatte);
}

// Shares the shoes among threads in small blocks, first come first served.
class Spartizione
{
public:
    explicit Spartizione(std::int64_t taglie)
        : m_taglie(taglie)
    {
    }

    // Plays shoes until there are none left, the run is stopped or a thread has failed;
    // dopoOgnuna gets the number of shoes done by all threads.
    template <typename DopoOgnuna>
    void Gioca(Conti& conti, const DopoOgnuna& dopoOgnuna)
    {
        constexpr std::int64_t blocco = 32;
        try {
            while (!m_finito) {
                const std::int64_t prima = m_prossima.fetch_add(blocco) + 1;
                if (prima > m_taglie) return;
                const std::int64_t ultima = std::min(prima + blocco - 1, m_taglie);
                for (std::int64_t taglia = prima; taglia <= ultima && !m_finito; ++taglia) {
                    GiocaUna(taglia, conti);
                    dopoOgnuna(m_fatte.fetch_add(1) + 1);
                    if (AmbienteInUso.Fermare()) Ferma();
                }
            }
        } catch (...) {
            Fallisci(std::current_exception());
        }
    }

    // Ends the run with this failure unless there is one already.
    void Fallisci(const std::exception_ptr& errore)
    {
        const std::lock_guard guardia(m_chiave);
        if (!m_errore) m_errore = errore;
        m_finito = true;
    }

    // Rethrows the first failure; false when the run was stopped.
    bool Compiuta() const
    {
        if (m_errore) std::rethrow_exception(m_errore);
        return !m_fermata;
    }

private:
    void Ferma()
    {
        m_fermata = true;
        m_finito = true;
    }

    std::int64_t m_taglie;
    std::atomic<std::int64_t> m_prossima = 0;
    std::atomic<std::int64_t> m_fatte = 0;
    std::atomic<bool> m_finito = false;
    std::atomic<bool> m_fermata = false;
    std::mutex m_chiave;
    std::exception_ptr m_errore;
};

std::optional<TotaliReport> InParallelo(std::int64_t taglie, int quantiFili,
                                        const std::function<void(std::int64_t)>& perTaglia)
{
    Spartizione spartizione(taglie);
    std::vector<Conti> conti(static_cast<std::size_t>(quantiFili));
    {
        std::vector<std::jthread> altriFili;
        altriFili.reserve(conti.size());
        try {
            for (std::size_t i = 1; i < conti.size(); ++i) {
                altriFili.emplace_back([&spartizione, &conto = conti[i]] {
                    const modCarte::FineFilo fine;
                    // Totals in a place of their own while counting: neighbours would share a
                    // line of the processor's cache.
                    Conti propri;
                    spartizione.Gioca(propri, [](std::int64_t) {});
                    conto = propri;
                });
            }
        } catch (const std::system_error&) {
            // The system gives no more threads: those there are do all the work.
        } catch (...) {
            // The threads there are must not play on before this error can surface.
            spartizione.Fallisci(std::current_exception());
        }
        spartizione.Gioca(conti[0], [&perTaglia](std::int64_t fatte) {
            perTaglia(fatte);
            Segnala(fatte);
        });
    } // the threads are joined here
    if (!spartizione.Compiuta()) return std::nullopt;

    Conti tutti;
    for (const auto& conto : conti) {
        tutti.totali.Aggiungi(conto.totali);
        tutti.studio.Aggiungi(conto.studio);
    }
    return Chiudi(tutti);
}

} // namespace

std::optional<TotaliReport>
EseguiPiene(const NumeroTaglie& chieste,
            const std::function<void(std::int64_t taglia, const CifreTaglia&)>& perTaglia,
            const std::function<void(std::int64_t taglia)>& primaDi)
{
    Conti conti;
    for (std::int64_t taglia = 1; taglia <= chieste.DaFare(); ++taglia) {
        if (primaDi) primaDi(taglia);
        const CifreTaglia cifre = GiocaUna(taglia, conti);
        perTaglia(taglia, cifre);
        Segnala(taglia);
        if (AmbienteInUso.Fermare()) return std::nullopt;
    }
    return Chiudi(conti);
}

std::optional<TotaliReport>
EseguiStatistiche(const NumeroTaglie& chieste,
                  const std::function<void(std::int64_t fatte)>& perTaglia)
{
    const auto utili = std::min<std::int64_t>(AmbienteInUso.Fili, chieste.DaFare());
    if (utili > 1) return InParallelo(chieste.DaFare(), static_cast<int>(utili), perTaglia);
    return EseguiPiene(
        chieste, [&perTaglia](std::int64_t taglia, const CifreTaglia&) { perTaglia(taglia); });
}

} // namespace Stampe
