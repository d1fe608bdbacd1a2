// The reports: simulations of N whole shoes written as text, HTML or PDF, or drawn on a picture.
//
// Start here, then CorsaTaglie.h (the run that all reports share), Stampe_Comune.h (what the
// layouts share), Stampe_Txt.cpp, Stampe_Html.cpp and Stampe_Pdf.cpp (one layout each),
// FormatiNumero.h (how numbers look).
#pragma once

#include "CorsaTaglie.h"
#include "Superficie.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace Stampe {

// The status label of a statistics-only run: receives each new caption, UTF-8. May be empty.
using EtichettaStato = std::function<void(std::string_view)>;

// The report operations. numeroTaglie: number of shoes, 1 to 2^53; the run makes it whole (halves
// to even), and it stands as it is where the report prints it or divides by it.
//
// Each simulates its shoes, writes its file into the report folder in place of an old one, opens
// it and returns the totals; nothing when the run was asked to stop. Before any file is touched:
// error 5 for a number below 1, error 6 for one above 2^53. A failed or stopped run leaves no
// file, except that the full text report keeps the shoes written so far. All failures of the file
// and a percentage of nothing (error 11) surface as ErroreRuntime.

// Every coup of every shoe and the general statistics, "taglie.txt".
std::optional<TotaliReport> StampaTxt(double numeroTaglie);

// The general statistics only, "taglie.txt". Writes the progress text and yields once per shoe.
std::optional<TotaliReport> StatisticheTxt(double numeroTaglie,
                                           const EtichettaStato& etichettaStato);

// Every coup of every shoe, and with more than one shoe the general statistics, "taglie.htm".
std::optional<TotaliReport> StampaHtml(double numeroTaglie);

// The general statistics only, "taglie.htm". Writes the progress text and yields once per shoe.
std::optional<TotaliReport> StatisticheHtml(double numeroTaglie,
                                            const EtichettaStato& etichettaStato);

// The same two as a page for each shoe and one of general statistics, "taglie.pdf". When another
// program holds the file the user is told and nothing is done: nothing is returned. Error 6 for
// more shoes than a full report can hold, before any file is touched where no cards could change it
// (SpazioPdf.h).
std::optional<TotaliReport> StampaPdf(double numeroTaglie);
std::optional<TotaliReport> StatistichePdf(double numeroTaglie,
                                           const EtichettaStato& etichettaStato);

// The general statistics only, drawn on the card table or whatever else stands in for it. Deletes
// an old "taglie.txt" first, as the text reports do, and writes no file; a run without a report
// folder has none to delete. Writes the progress text and yields once per shoe. A stopped or failed
// run leaves the picture as it was.
std::optional<TotaliReport> StatisticheVideo(double numeroTaglie, Superficie& superficie,
                                             const EtichettaStato& etichettaStato);

// The run without a report: shoes, progress and totals as above, no file.
std::optional<TotaliReport> SoloTotali(double numeroTaglie, const EtichettaStato& etichettaStato);

// The forms of a report: the rows of Forme below, numbered as the window offers them.
enum Forma : std::size_t
{
    FormaHtml,
    FormaPdf,
    FormaTxt,
    FormaVideo,
    FormaNessuna, // totals without a report
};

// Files of the reports, in the report folder.
inline constexpr std::string_view NomeTxt = "taglie.txt";
inline constexpr std::string_view NomeHtml = "taglie.htm";
inline constexpr std::string_view NomePdf = "taglie.pdf";

// What there is of a form: its file (empty: it writes none) and the operations above that make it.
struct DatiForma
{
    std::string_view File;

    // Every coup of every shoe; nullptr where the form has no such report.
    std::optional<TotaliReport> (*Stampa)(double numeroTaglie);

    // The general statistics; only FormaVideo draws on superficie.
    std::optional<TotaliReport> (*Statistiche)(double numeroTaglie, Superficie& superficie,
                                               const EtichettaStato& etichettaStato);
};

// By Forma.
extern const std::array<DatiForma, 5> Forme;

// Deletes the files of all forms, in the order of Forme, from the report folder.
// What cannot or must not be deleted (still open, somebody else's) is passed over.
void EliminaReport();

} // namespace Stampe
