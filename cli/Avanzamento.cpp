// What the progress line says and when it is written; the clock: platform/Orologio.h.
#include "Avanzamento.h"

#include "FormatiNumero.h"
#include "Numeri.h"
#include "Orologio.h"
#include "Terminale.h"

#include <cmath>
#include <cstdio>

namespace cli {

namespace {

constexpr double OgniTerminale = 0.1;
constexpr double OgniRiga = 1;

// Hours, minutes and seconds, the hours only where there are some.
std::string Durata(double secondi)
{
    constexpr std::int64_t sessanta = 60;
    const auto totale = static_cast<std::int64_t>(std::ceil(secondi));
    const std::int64_t minuti = totale / sessanta;
    const std::string coda = ":" + Stampe::DueCifre(totale % sessanta);
    if (minuti < sessanta) return TestoNumero(minuti) + coda;
    return TestoNumero(minuti / sessanta) + ":" + Stampe::DueCifre(minuti % sessanta) + coda;
}

} // namespace

std::string QuanteTaglie(std::int64_t taglie)
{
    return TestoNumero(taglie) + (taglie == 1 ? " taglia" : " taglie");
}

std::string TestoAvanzamento(std::int64_t fatte, std::int64_t taglie, double secondi,
                             std::optional<std::size_t> colonne)
{
    constexpr double cento = 100;
    constexpr double durataMassima = 1e9; // some thirty years: no use in telling more
    const auto quota = static_cast<double>(fatte) / static_cast<double>(taglie);
    const std::string percento = TestoNumero(static_cast<std::int64_t>(quota * cento)) + "%";
    const std::string conto =
        QuanteTaglie(fatte) + " su " + TestoNumero(taglie) + " (" + percento + ")";
    std::string passo;
    std::string resto;
    if (secondi > 0) {
        const double ritmo = static_cast<double>(fatte) / secondi;
        const double mancano = static_cast<double>(taglie - fatte) / ritmo;
        passo = ", " + TestoNumero(static_cast<std::int64_t>(ritmo)) + " al secondo";
        if (mancano < durataMassima) resto = ", mancano " + Durata(mancano);
    }
    std::string tutto = conto + passo + resto;
    if (!colonne) return tutto;
    for (const auto& testo : {tutto, conto + resto, conto, percento}) {
        if (testo.size() < *colonne) return testo;
    }
    return "";
}

Avanzamento::Avanzamento(std::int64_t taglie, bool terminale)
    : m_taglie(taglie)
    , m_terminale(terminale)
    , m_inizio(SecondiTrascorsi())
    , m_prossima(m_inizio + (terminale ? OgniTerminale : OgniRiga))
{
}

void Avanzamento::Mostra(std::int64_t fatte)
{
    const double adesso = SecondiTrascorsi();
    if (adesso < m_prossima) return;
    m_prossima = adesso + (m_terminale ? OgniTerminale : OgniRiga);
    const std::string testo = TestoAvanzamento(fatte, m_taglie, adesso - m_inizio, Colonne());
    // A progress line that cannot be written is no reason to end the run.
    std::fputs(m_terminale ? ("\r" + testo + "\x1b[K").c_str() : (testo + "\n").c_str(), stderr);
    std::fflush(stderr);
    m_scritto = true;
}

// Asked each time: a line that was broken by a narrower window could not be written over.
std::optional<std::size_t> Avanzamento::Colonne() const
{
    const int colonne = m_terminale ? ColonneErrori() : 0;
    if (colonne <= 0) return std::nullopt;
    return static_cast<std::size_t>(colonne);
}

void Avanzamento::Finisci()
{
    if (!m_scritto || !m_terminale) return;
    std::fputs("\r\x1b[K", stderr);
    std::fflush(stderr);
    m_scritto = false;
}

} // namespace cli
