#include "Esecuzione.h"

#include "Aiuto.h"
#include "Ambiente.h"
#include "ApriConShell.h"
#include "Avanzamento.h"
#include "Calendario.h"
#include "Dati.h"
#include "ErroreComando.h"
#include "ErroreRuntime.h"
#include "ErroreSistema.h"
#include "FileDati.h"
#include "FileMazzi.h"
#include "FileNuovo.h"
#include "Numeri.h"
#include "Opzioni.h"
#include "Orologio.h"
#include "Percorsi.h"
#include "RigaErrore.h"
#include "Segnali.h"
#include "SpazioPdf.h"
#include "Stampe.h"
#include "SuperficieTesto.h"
#include "modCarte.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <memory>
#include <new>
#include <system_error>

namespace cli {

namespace {

constexpr int UscitaStandard = 1;

constexpr std::string_view MemoriaEsaurita = "memoria: esaurita";

void ScriviUscita(const std::string& testo)
{
    ScriviSuDescrittore(UscitaStandard, testo, "uscita standard");
}

// What a failure during the run means for the caller of the command.
Uscita UscitaPer(NumeroErrore numero)
{
    switch (numero) {
    case NumeroErrore::FileNonTrovato:
    case NumeroErrore::ErroreInputOutput:
    case NumeroErrore::DiscoPieno:
    case NumeroErrore::PermessoNegato:
    case NumeroErrore::AccessoAlFile:
    case NumeroErrore::PercorsoNonTrovato:
        return UscitaScrittura;
    case NumeroErrore::Overflow:
        return UscitaRifiuto; // more than a document can hold
    default:
        return UscitaInterna;
    }
}

[[noreturn]] void Interrompi(const std::string& resto)
{
    throw ErroreComando(UscitaInterrotta, "interrotto", resto);
}

std::string_view NomeReport(Forma forma)
{
    switch (forma) {
    case Forma::Txt:
        return Stampe::NomeTxt;
    case Forma::Html:
        return Stampe::NomeHtml;
    case Forma::Pdf:
        return Stampe::NomePdf;
    default:
        return "";
    }
}

// ---- Files given by the user ------------------------------------------------------------------

// True when the two names mean one file, whether it exists already or not.
bool StessoNome(const std::string& uno, const std::string& altro)
{
    if (StessoFile(uno, altro)) return true;
    std::error_code errore;
    const auto completo = [&errore](const std::string& nome) {
        // Absolute first: of a name that does not exist the rest is taken as it stands.
        return std::filesystem::weakly_canonical(
            std::filesystem::absolute(percorsi::Cammino(nome), errore), errore);
    };
    const bool uguali = completo(uno) == completo(altro);
    PretendiMemoria(errore); // without an answer a file could be lost
    return uguali && !errore;
}

// A file that is written twice, or read and replaced, would be lost.
void RifiutaFileDoppi(const Opzioni& opzioni, const std::string& percorsoReport)
{
    struct Ruolo
    {
        std::string nome;
        const std::string& file;
    };
    const Ruolo ruoli[] = {{"--salva-mazzi", opzioni.SalvaMazzi},
                           {"--colpi", opzioni.Colpi},
                           {"--mazzi", opzioni.Mazzi == "-" ? std::string() : opzioni.Mazzi},
                           {"il report", percorsoReport}};
    for (const auto& uno : ruoli) {
        for (const auto& altro : ruoli) {
            if (&uno >= &altro || uno.file.empty() || altro.file.empty()) continue;
            if (StessoNome(uno.file, altro.file)) {
                throw ErroreComando(UscitaUso, uno.file,
                                    "è lo stesso file per " + uno.nome + " e per " + altro.nome);
            }
        }
    }
}

// Before the first of these files is replaced: one that cannot be must not cost the others.
void PretendiScrivibili(const Opzioni& opzioni, const std::string& percorsoReport)
{
    if (!percorsoReport.empty()) PretendiCreabile(percorsoReport);
    for (const auto* file : {&opzioni.SalvaMazzi, &opzioni.Colpi}) {
        if (!file->empty()) PretendiFileDati(*file);
    }
}

// What the function gives; a shoe file that fails it is refused, whatever the reason.
template <typename Funzione>
auto OppureRifiuta(const Funzione& funzione)
{
    try {
        return funzione();
    } catch (const ErroreRuntime& errore) {
        // Want of memory is no fault of the file.
        if (errore.Numero() == NumeroErrore::MemoriaEsaurita) throw;
        throw ErroreComando(UscitaRifiuto, errore.File(), errore.Motivo());
    }
}

std::unique_ptr<FileMazzi> MazziDaFile(const Opzioni& opzioni)
{
    auto mazzi = std::make_unique<FileMazzi>(opzioni.Mazzi);
    if (!mazzi->Leggi(opzioni.Taglie, InterruzioneChiesta)) Interrompi("nessuna taglia giocata");
    if (opzioni.Taglie && mazzi->Quante() < *opzioni.Taglie) {
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida,
                            "contiene " + QuanteTaglie(static_cast<std::int64_t>(mazzi->Quante())) +
                                ", ne servono " +
                                TestoNumero(static_cast<std::int64_t>(*opzioni.Taglie)),
                            opzioni.Mazzi);
    }
    return mazzi;
}

// The run goes on: whoever repeats shoes on purpose may know what the figures then mean.
void AvvisaRipetizioni(FileMazzi& mazzi)
{
    const auto numero = [](std::size_t n) { return TestoNumero(static_cast<std::int64_t>(n)); };
    const auto ripetute =
        OppureRifiuta([&mazzi] { return mazzi.Ripetizioni(InterruzioneChiesta); });
    if (InterruzioneChiesta()) Interrompi("nessuna taglia giocata");
    if (!ripetute) return;
    const std::string quante = ripetute->Quante == 1
                                   ? "1 taglia ne ripete un'altra"
                                   : numero(ripetute->Quante) + " taglie ne ripetono altre";
    ScriviErrore({mazzi.Percorso(), ": avviso: ", quante, " (la ", numero(ripetute->Prima + 1),
                  " è uguale alla ", numero(ripetute->Come + 1),
                  "); errori e intervalli valgono per taglie indipendenti"});
}

void AvvisaCambiamento(const FileMazzi& mazzi)
{
    if (!mazzi.Cambiato()) return;
    ScriviErrore(
        {mazzi.Percorso(),
         ": avviso: è stato modificato durante la corsa; sono giocate le taglie di prima"});
}

// ---- The run ----------------------------------------------------------------------------------

// Everything that lives as long as the run.
struct Lavoro
{
    explicit Lavoro(const Opzioni& scelte)
        : opzioni(scelte)
    {
    }

    const Opzioni& opzioni;
    std::int64_t taglie = 1;
    std::int64_t fatte = 0;
    std::unique_ptr<FileMazzi> mazzi;
    std::unique_ptr<FileDati> fileMazzi;
    std::unique_ptr<FileDati> fileColpi;
    std::unique_ptr<Avanzamento> avanzamento;
    Stampe::Studio studio;
    SuperficieTesto schermo; // the statistics of the form "video"
    std::string daAprire;    // the finished report, when it is to be opened
    StileFinestra stile = StileFinestra::NormaleConFuoco;
};

void ImpostaTaglie(Lavoro& lavoro)
{
    if (!lavoro.opzioni.Mazzi.empty()) {
        lavoro.mazzi = OppureRifiuta([&lavoro] { return MazziDaFile(lavoro.opzioni); });
        lavoro.taglie = static_cast<std::int64_t>(lavoro.mazzi->Quante());
        return;
    }
    lavoro.taglie = static_cast<std::int64_t>(lavoro.opzioni.Taglie.value_or(1));
}

std::function<void(std::int64_t)> Sorgente(const Lavoro& lavoro)
{
    if (lavoro.mazzi) {
        return [&mazzi = *lavoro.mazzi](std::int64_t taglia) {
            const auto indice = static_cast<std::size_t>(taglia) - 1;
            modCarte::ImpostaMazzo(OppureRifiuta([&] { return mazzi.Mazzo(indice); }));
        };
    }
    if (lavoro.opzioni.Seme) {
        return [seme = *lavoro.opzioni.Seme](std::int64_t taglia) {
            modCarte::AvviaSeme(seme, static_cast<std::uint64_t>(taglia));
            modCarte::MescolaMazzo();
        };
    }
    return [](std::int64_t) { modCarte::MescolaMazzo(); };
}

void DopoTaglia(Lavoro& lavoro, std::int64_t fatte)
{
    lavoro.fatte = fatte;
    if (lavoro.fileMazzi) lavoro.fileMazzi->Aggiungi(RigaTaglia(modCarte::Mazzo));
    if (lavoro.fileColpi) {
        std::string righe;
        for (const auto& record : modCarte::Colpi) righe.append(record).push_back('\n');
        lavoro.fileColpi->Aggiungi(righe);
    }
    if (lavoro.avanzamento) lavoro.avanzamento->Mostra(fatte);
}

void ApriReport(const std::string& percorso, StileFinestra stile)
{
    // The report is finished all the same, and its path is told.
    if (!ApriConShell(percorso, stile)) {
        ScriviErrore({percorso, ": nessun programma ha potuto aprirlo"});
    }
}

void ImpostaAmbiente(Lavoro& lavoro, const std::string& cartella)
{
    const Opzioni& opzioni = lavoro.opzioni;
    Stampe::Ambiente ambiente = Stampe::AmbienteNeutro();
    ambiente.Cartella = cartella;
    ambiente.Cifre = opzioni.Numeri;
    ambiente.PreparaTaglia = Sorgente(lavoro);
    ambiente.Fermare = InterruzioneChiesta;
    ambiente.TagliaFatta = [&lavoro](std::int64_t fatte) { DopoTaglia(lavoro, fatte); };
    if (opzioni.Apri) {
        // Opened only when all the rest is written, too.
        ambiente.Apri = [&lavoro](const std::string& percorso, StileFinestra stile) {
            lavoro.daAprire = percorso;
            lavoro.stile = stile;
        };
    }
    ambiente.Avvisa = [percorso = cartella + std::string(NomeReport(opzioni.FormaReport))](
                          const Stampe::Messaggio&) {
        // The one thing that a report has to say: there is nobody here to close a window.
        throw ErroreComando(UscitaScrittura, percorso, "è in uso da un altro programma");
    };
    ambiente.CaratteriUnici = opzioni.CaratteriUnici;
    ambiente.Lavori = opzioni.Lavori;
    if (opzioni.Dati != FormaDati::Nessuna) ambiente.Raccolta = &lavoro.studio;
    Stampe::AmbienteInUso = std::move(ambiente);
}

std::optional<Stampe::TotaliReport> FaiReport(Lavoro& lavoro)
{
    const Opzioni& opzioni = lavoro.opzioni;
    const auto taglie = static_cast<double>(lavoro.taglie);
    const Stampe::EtichettaStato senzaEtichetta;
    switch (opzioni.FormaReport) {
    case Forma::Txt:
        return opzioni.Statistiche ? Stampe::StatisticheTxt(taglie, senzaEtichetta)
                                   : Stampe::StampaTxt(taglie);
    case Forma::Html:
        return opzioni.Statistiche ? Stampe::StatisticheHtml(taglie, senzaEtichetta)
                                   : Stampe::StampaHtml(taglie);
    case Forma::Pdf:
        return opzioni.Statistiche ? Stampe::StatistichePdf(taglie, senzaEtichetta)
                                   : Stampe::StampaPdf(taglie);
    case Forma::Video:
        return Stampe::StatisticheVideo(taglie, lavoro.schermo, senzaEtichetta);
    default:
        return Stampe::SoloTotali(taglie, senzaEtichetta);
    }
}

// Also before the files of the shoes and the coups are replaced.
void PretendiSpazio(const Lavoro& lavoro)
{
    const bool pdf = lavoro.opzioni.FormaReport == Forma::Pdf;
    if (pdf && lavoro.opzioni.Piena()) {
        Stampe::PretendiSpazioPdf(static_cast<double>(lavoro.taglie));
    }
}

bool MostraAvanzamento(const Opzioni& opzioni)
{
    if (opzioni.Quieto || opzioni.Avanzamento == Avviso::Mai) return false;
    return opzioni.Avanzamento == Avviso::Sempre || ErroriSuTerminale();
}

void ApriFile(Lavoro& lavoro)
{
    const Opzioni& opzioni = lavoro.opzioni;
    if (!opzioni.SalvaMazzi.empty()) {
        lavoro.fileMazzi = std::make_unique<FileDati>(opzioni.SalvaMazzi);
    }
    if (!opzioni.Colpi.empty()) lavoro.fileColpi = std::make_unique<FileDati>(opzioni.Colpi);
    if (MostraAvanzamento(opzioni)) {
        lavoro.avanzamento = std::make_unique<Avanzamento>(lavoro.taglie, ErroriSuTerminale());
    }
}

void ChiudiFile(Lavoro& lavoro)
{
    if (lavoro.avanzamento) lavoro.avanzamento->Finisci();
    if (lavoro.fileMazzi) lavoro.fileMazzi->Chiudi();
    if (lavoro.fileColpi) lavoro.fileColpi->Chiudi();
}

std::string DescriviInterruzione(const Lavoro& lavoro)
{
    return QuanteTaglie(lavoro.fatte) + (lavoro.fatte == 1 ? " fatta su " : " fatte su ") +
           TestoNumero(lavoro.taglie);
}

void Esegui(const Opzioni& opzioni)
{
    const double inizio = SecondiTrascorsi();
    Lavoro lavoro(opzioni);
    const bool conReport = !NomeReport(opzioni.FormaReport).empty();
    const std::string cartella = conReport ? CartellaCompleta(opzioni.Cartella) : std::string();
    const std::string percorso =
        conReport ? cartella + std::string(NomeReport(opzioni.FormaReport)) : std::string();
    RifiutaFileDoppi(opzioni, percorso);
    // A date that cannot be written is known before the first shoe, and refused as the request is.
    if (opzioni.FormaReport == Forma::Pdf) OppureRifiuta(CalendarioInUso.Adesso);
    ImpostaTaglie(lavoro);
    PretendiScrivibili(opzioni, percorso);
    ImpostaAmbiente(lavoro, cartella);
    PretendiSpazio(lavoro);
    if (lavoro.mazzi) AvvisaRipetizioni(*lavoro.mazzi);
    ApriFile(lavoro);

    const auto totali = FaiReport(lavoro);
    ChiudiFile(lavoro);
    if (!totali) Interrompi(DescriviInterruzione(lavoro));
    if (lavoro.mazzi) AvvisaCambiamento(*lavoro.mazzi);
    if (!lavoro.daAprire.empty()) ApriReport(lavoro.daAprire, lavoro.stile);

    if (opzioni.Dati != FormaDati::Nessuna) {
        // Not even the clock of durations can be relied on everywhere never to go back.
        const Corsa corsa{opzioni.Seme, std::max(0.0, SecondiTrascorsi() - inizio)};
        ScriviUscita(TestoDati(opzioni.Dati, *totali, lavoro.studio, corsa));
    } else if (opzioni.FormaReport == Forma::Video) {
        ScriviUscita(lavoro.schermo.Testo());
    } else if (conReport && !opzioni.Quieto) {
        ScriviUscita(percorso + "\n");
    }
}

void EseguiArgomenti(const std::vector<std::string>& argomenti)
{
    AscoltaInterruzioni();
    const Opzioni opzioni = LeggiOpzioni(argomenti);
    if (opzioni.Aiuto) ScriviUscita(TestoAiuto());
    else if (opzioni.Versione) ScriviUscita(TestoVersione());
    else Esegui(opzioni);
}

// Runs where std::terminate() is called. No exception in flight: there was no room for one.
[[noreturn]] void FinisciDiColpo() noexcept
{
    std::string_view motivo = MemoriaEsaurita;
    try {
        if (std::current_exception() != nullptr) throw;
    } catch (const std::bad_alloc&) {
        motivo = MemoriaEsaurita;
    } catch (...) {
        motivo = "guasto interno: fine improvvisa";
    }
    ScriviErrore({motivo});
    std::_Exit(UscitaInterna);
}

} // namespace

void PreparaFineImprovvisa() noexcept
{
    std::set_terminate(FinisciDiColpo);
}

int EseguiComando(std::span<const char* const> argomenti) noexcept
{
    int uscita = UscitaFatto;
    try {
        EseguiArgomenti({argomenti.begin(), argomenti.end()});
    } catch (const ErroreComando& errore) {
        ScriviErrore({errore.what()});
        uscita = errore.CodiceUscita();
    } catch (const ErroreRuntime& errore) {
        const bool memoria = errore.Numero() == NumeroErrore::MemoriaEsaurita;
        ScriviErrore({memoria ? MemoriaEsaurita : errore.what()});
        uscita = UscitaPer(errore.Numero());
    } catch (const std::bad_alloc&) {
        ScriviErrore({MemoriaEsaurita});
        uscita = UscitaInterna;
    } catch (const std::exception& errore) {
        ScriviErrore({"guasto interno: ", errore.what()});
        uscita = UscitaInterna;
    }
    Stampe::AmbienteInUso = {}; // it refers to the run that has just ended
    return uscita;
}

} // namespace cli
