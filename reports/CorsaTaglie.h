// The one run over N shoes that all reports share, and the figures it derives from each shoe. The
// shoes are played by engine/modCarte.h.
#pragma once

#include "modCarte.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

namespace Stampe {

// What a report derives from the shoe just played. The asymmetries are kept on purpose: in the
// usual case the full text report leaves out the last complete coup, and every report adds one
// coup more to the totals than the text report shows.
struct CifreTaglia
{
    bool UltimoBreve;         // the last record's two totals add up to 61 or less
    std::int64_t ColpiTesto;  // coups shown by the full text report
    std::int64_t ColpiPagina; // coups shown by the full HTML and PDF reports
    std::int64_t ColpiTotali; // coups added to the totals
    std::int64_t CarteUsate;  // 308 when the shoe ran out exactly between two coups
};

// The figures of the shoe in modCarte. Error 13 when the last record's totals are no numbers,
// error 9 when there is no shoe.
CifreTaglia DerivaCifre();

// The running totals of one report run.
struct TotaliReport : modCarte::ContiEsiti<std::int64_t>
{
    std::int64_t Colpi = 0;
    std::int64_t CarteUsate = 0;

    void Aggiungi(const modCarte::StatisticheTaglia& statistiche);
    void Aggiungi(const CifreTaglia& cifre);
    void Aggiungi(const TotaliReport& altri);

    bool operator==(const TotaliReport&) const = default;
};

// How many shoes a run was asked for. Every operation makes this of the number it is given before
// it touches anything: here it is checked, and here alone it becomes whole.
class NumeroTaglie
{
public:
    // Error 5 below 1 (or no number), error 6 above 2^53.
    explicit NumeroTaglie(double chieste);

    // As asked for: what reports divide by, and what the progress shows.
    double Chieste() const { return m_chieste; }

    // The shoes that are played: halves to even.
    std::int64_t DaFare() const { return m_daFare; }

    // The number that reports print: halves up. So it can differ from DaFare.
    std::int64_t Mostrate() const;

    // Whether a report is one of several shoes, as it is for 1.2 although one is played.
    bool PiuDiUna() const { return m_chieste > 1; }

private:
    double m_chieste;
    std::int64_t m_daFare;
};

// Runs the shoes of a full report, from 1 on: before each one primaDi, if there is one; after it
// perTaglia, with modCarte still holding the shoe, then the question whether to stop. Nothing is
// returned when stopped.
std::optional<TotaliReport>
EseguiPiene(const NumeroTaglie& chieste,
            const std::function<void(std::int64_t taglia, const CifreTaglia&)>& perTaglia,
            const std::function<void(std::int64_t taglia)>& primaDi = {});

// The same for a statistics-only run, which may use several threads (Ambiente::Fili), each with
// a shoe and totals of its own: perTaglia is called on the calling thread with the number of shoes
// done so far, once for each shoe that this thread played itself. A failure in any thread ends the
// others and surfaces here.
std::optional<TotaliReport>
EseguiStatistiche(const NumeroTaglie& chieste,
                  const std::function<void(std::int64_t fatte)>& perTaglia);

} // namespace Stampe
