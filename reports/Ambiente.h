// What a report run needs from its surroundings. The window, the command line or a test sets it;
// a report never knows which of them runs it.
#pragma once

#include "ApriConShell.h"
#include "Separatori.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace Stampe {

class Studio;

enum class Icona
{
    Informazione,
    Esclamazione,
};

// A message box with an OK button. Texts are UTF-8.
struct Messaggio
{
    std::string Titolo;
    std::string Testo;
    Icona Figura;
};

// How a report comes into its place.
enum class ViaReport
{
    NelPosto,       // written there, in place of the old one
    Intero,         // put there when it is whole, and only the full text written there
    UscitaStandard, // written to standard output: there is no file
};

struct Ambiente
{
    // Report folder, ending in the platform's separator.
    std::string Cartella;

    // The report's name with its folder, or what errors call it where it has no file; empty: the
    // form's own name in the report folder.
    std::string Report;

    ViaReport Via = ViaReport::NelPosto;

    // Marks in the numbers of the reports.
    Separatori SeparatoriNumeri;

    // Puts shoe number taglia (from 1) into the calling thread's modCarte::Mazzo, ready to be
    // dealt. May be called from several threads at once.
    std::function<void(std::int64_t taglia)> PreparaTaglia;

    // Asked after every shoe; true ends the run early. May be called from several threads at once.
    std::function<bool()> Fermare;

    // Called on the calling thread after a shoe is done and written, with the number of shoes
    // done so far. With one thread modCarte still holds that shoe. May be empty.
    std::function<void(std::int64_t fatte)> TagliaFatta;

    // Yields once to the event loop. May be empty.
    std::function<void()> Cedi;

    // Shows a message and waits for its button.
    std::function<void(const Messaggio&)> Avvisa;

    // Opens a finished report.
    std::function<void(const std::string& percorso, StileFinestra stile)> Apri;

    // Threads of a statistics-only run, at least 1. Full reports use one whatever this says.
    int Fili = 1;

    // A PDF report names each font once instead of at every change: a third smaller, else the same.
    bool CaratteriUnici = false;

    // A PDF report is written conforming and compressed, in Italian: a tenth of the size, and with
    // room for as many shoes as a document has pages. CaratteriUnici then means nothing.
    bool Compatto = false;

    // How much Compatto compresses, from 1, quick, to 9, small: the manual of the writer says what
    // each level costs.
    int LivelloCompatto = 6;

    // Collects the figures for estimates of error, when set; not owned.
    Studio* Raccolta = nullptr;
};

// The surroundings in use: set once at start, replaced whole by tests.
extern Ambiente AmbienteInUso;

// Name of a report, or of any other file that goes into the report folder, with that folder.
std::string PercorsoReport(std::string_view nome);

// Name of the report of the form whose own name nome is, as AmbienteInUso.Report has it.
std::string PercorsoForma(std::string_view nome);

// A shuffled shoe a turn, never stopped, shows and opens nothing: what the window and the command
// line start from.
Ambiente AmbienteNeutro();

} // namespace Stampe
