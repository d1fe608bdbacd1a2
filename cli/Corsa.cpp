// Sets the surroundings that the reports ask for, lets the wanted report play the shoes, and keeps
// the files beside it in step. Next: reports/Stampe.h.
#include "Corsa.h"

#include "Ambiente.h"
#include "ApriConShell.h"
#include "Argomenti.h"
#include "Avanzamento.h"
#include "Calendario.h"
#include "Dati.h"
#include "ErroreComando.h"
#include "ErroreSistema.h"
#include "FileDati.h"
#include "FileIntero.h"
#include "FileRichiesti.h"
#include "Numeri.h"
#include "Orologio.h"
#include "Percorsi.h"
#include "RigaErrore.h"
#include "Segnali.h"
#include "SorgenteTaglie.h"
#include "SpazioPdf.h"
#include "Stampe.h"
#include "SuperficieTesto.h"
#include "Terminale.h"
#include "UscitaStandard.h"
#include "modCarte.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace cli {

namespace {

// Where the report goes; both empty for a run without one in a file.
struct Posto
{
    std::string Cartella;
    std::string Percorso;
};

// Of the name given with -o, in the folder given with -c if there is one.
Posto PostoCol(const std::string& cartella, const std::string& nome)
{
    const auto corto = percorsi::Cammino(nome); // errors name it as it was typed
    const auto dato = cartella == "." ? corto : percorsi::Cammino(cartella) / corto;
    const std::string file = dato.filename().string();
    if (file.empty() || file == "." || file == "..") RifiutaUso(nome, "è una cartella");
    if (NomeRiservato(file)) RifiutaUso(nome, "è un nome che il programma usa per sé");
    const auto sopra = dato.parent_path();
    std::string completa = CartellaCompleta(sopra.empty() ? "." : sopra.string());
    std::string percorso = completa + file;
    return {std::move(completa), std::move(percorso)};
}

Posto PostoReport(const Opzioni& opzioni)
{
    const std::string_view nome = Stampe::Forme.at(opzioni.FormaReport).File;
    if (nome.empty() || opzioni.SuUscita) return {};
    if (!opzioni.Report.empty()) return PostoCol(opzioni.Cartella, opzioni.Report);
    std::string cartella = CartellaCompleta(opzioni.Cartella);
    std::string percorso = std::string(cartella).append(nome);
    return {std::move(cartella), std::move(percorso)};
}

bool MostraAvanzamento(const Opzioni& opzioni)
{
    if (opzioni.Quieto || opzioni.Avanzamento == Avviso::Mai) return false;
    return opzioni.Avanzamento == Avviso::Sempre || ErroriSuTerminale();
}

void ApriReport(const std::string& percorso, StileFinestra stile)
{
    // The report is finished all the same, and its path is told.
    if (!ApriConShell(percorso, stile)) {
        ScriviErrore({percorso, ": nessun programma ha potuto aprirlo"});
    }
}

// What the build of this program lacks is known before the first shoe.
void PretendiCompatto()
{
    try {
        Stampe::PretendiCompatto();
    } catch (const ErroreRuntime& errore) {
        if (errore.Numero() == NumeroErrore::MemoriaEsaurita) throw;
        throw ErroreComando(UscitaRifiuto, opzione::Compatto, errore.Motivo());
    }
}

// Everything that lives as long as the run.
class Corsa
{
public:
    Corsa(const Opzioni& opzioni, Posto posto)
        : m_opzioni(opzioni)
        , m_posto(std::move(posto))
        , m_sorgente(opzioni)
    {
    }

    // The surroundings refer to this run, which ends here.
    ~Corsa() { Stampe::AmbienteInUso = {}; }
    Corsa(const Corsa&) = delete;
    Corsa& operator=(const Corsa&) = delete;
    Corsa(Corsa&&) = delete;
    Corsa& operator=(Corsa&&) = delete;

    std::string Esegui();

private:
    void ImpostaAmbiente();
    void PretendiSpazio() const;
    void ApriFile();
    void DopoTaglia(std::int64_t fatte);
    std::optional<Stampe::TotaliReport> FaiReport();
    void ChiudiDati();
    double Taglie() const { return static_cast<double>(m_sorgente.Quante()); } // exact below 2^53
    std::string DescriviInterruzione() const;
    std::string Risultati(const Stampe::TotaliReport& totali) const;

    double m_inizio = SecondiTrascorsi();
    const Opzioni& m_opzioni;
    Posto m_posto;
    SorgenteTaglie m_sorgente;
    std::int64_t m_fatte = 0;
    std::unique_ptr<FileDati> m_fileMazzi;
    std::unique_ptr<FileDati> m_fileColpi;
    std::unique_ptr<Avanzamento> m_avanzamento;
    Stampe::Studio m_studio;
    SuperficieTesto m_schermo; // the statistics of the form "video"
    std::string m_daAprire;    // the finished report, when it is to be opened
    StileFinestra m_stile = StileFinestra::NormaleConFuoco;
};

void Corsa::ImpostaAmbiente()
{
    Stampe::Ambiente ambiente = Stampe::AmbienteNeutro();
    ambiente.Cartella = m_posto.Cartella;
    ambiente.Report = m_opzioni.SuUscita ? NomeUscita : m_posto.Percorso;
    ambiente.Via =
        m_opzioni.SuUscita ? Stampe::ViaReport::UscitaStandard : Stampe::ViaReport::Intero;
    ambiente.SeparatoriNumeri = m_opzioni.Numeri;
    ambiente.PreparaTaglia = m_sorgente.Preparazione();
    ambiente.Fermare = InterruzioneChiesta;
    ambiente.TagliaFatta = [this](std::int64_t fatte) { DopoTaglia(fatte); };
    if (m_opzioni.Apri) {
        // Opened only when all the rest is written, too.
        ambiente.Apri = [this](const std::string& percorso, StileFinestra stile) {
            m_daAprire = percorso;
            m_stile = stile;
        };
    }
    ambiente.Avvisa = [this](const Stampe::Messaggio&) {
        // The one thing that a report has to say: there is nobody here to close a window.
        throw ErroreComando(UscitaScrittura, m_posto.Percorso, "è in uso da un altro programma");
    };
    ambiente.CaratteriUnici = m_opzioni.CaratteriUnici;
    ambiente.Compatto = m_opzioni.Compatto;
    ambiente.Fili = m_opzioni.Lavori;
    if (m_opzioni.Dati != FormaDati::Nessuna) ambiente.Raccolta = &m_studio;
    Stampe::AmbienteInUso = std::move(ambiente);
}

// Also before the files of the shoes and the coups are replaced.
void Corsa::PretendiSpazio() const
{
    if (m_opzioni.FormaReport == Stampe::FormaPdf && m_opzioni.Piena()) {
        Stampe::PretendiSpazioPdf(Stampe::NumeroTaglie(Taglie()));
    }
}

void Corsa::ApriFile()
{
    if (!m_opzioni.SalvaMazzi.empty()) {
        m_fileMazzi = std::make_unique<FileDati>(m_opzioni.SalvaMazzi);
    }
    if (!m_opzioni.Colpi.empty()) m_fileColpi = std::make_unique<FileDati>(m_opzioni.Colpi);
    if (MostraAvanzamento(m_opzioni)) {
        m_avanzamento = std::make_unique<Avanzamento>(m_sorgente.Quante(), ErroriSuTerminale());
    }
}

void Corsa::DopoTaglia(std::int64_t fatte)
{
    m_fatte = fatte;
    if (m_fileMazzi) m_fileMazzi->Aggiungi(RigaTaglia(modCarte::Mazzo));
    if (m_fileColpi) {
        std::string righe;
        for (const auto& record : modCarte::Colpi) righe.append(record).push_back('\n');
        m_fileColpi->Aggiungi(righe);
    }
    // What they lack is known before the report takes the place of the old one.
    if (fatte == m_sorgente.Quante()) ChiudiDati();
    if (m_avanzamento) m_avanzamento->Mostra(fatte);
}

std::optional<Stampe::TotaliReport> Corsa::FaiReport()
{
    const auto& forma = Stampe::Forme.at(m_opzioni.FormaReport);
    const double taglie = Taglie();
    try {
        return m_opzioni.Piena() ? forma.Stampa(taglie) : forma.Statistiche(taglie, m_schermo, {});
    } catch (const ErroreRuntime& errore) {
        if (m_opzioni.SuUscita && errore.File() == NomeUscita && DiChiNonLegge(errore)) {
            throw NessunoLegge();
        }
        throw;
    }
}

void Corsa::ChiudiDati()
{
    if (m_fileMazzi) m_fileMazzi->Chiudi();
    if (m_fileColpi) m_fileColpi->Chiudi();
}

std::string Corsa::DescriviInterruzione() const
{
    return QuanteTaglie(m_fatte) + (m_fatte == 1 ? " fatta su " : " fatte su ") +
           TestoNumero(m_sorgente.Quante());
}

std::string Corsa::Risultati(const Stampe::TotaliReport& totali) const
{
    if (m_opzioni.Dati != FormaDati::Nessuna) {
        // Not even the clock of durations can be relied on everywhere never to go back.
        const double secondi = std::max(0.0, SecondiTrascorsi() - m_inizio);
        return TestoDati(m_opzioni.Dati, totali, m_studio, {m_opzioni.Seme, secondi});
    }
    if (m_opzioni.FormaReport == Stampe::FormaVideo) return m_schermo.Testo();
    if (m_posto.Percorso.empty() || m_opzioni.Quieto) return "";
    return m_posto.Percorso + "\n";
}

std::string Corsa::Esegui()
{
    PretendiScrivibili(m_opzioni, m_posto.Percorso);
    ImpostaAmbiente();
    PretendiSpazio();
    m_sorgente.AvvisaRipetizioni();
    ApriFile();

    const auto totali = FaiReport();
    if (m_avanzamento) m_avanzamento->Finisci();
    ChiudiDati();
    if (!totali) Interrompi(DescriviInterruzione());
    m_sorgente.AvvisaCambiamento();
    if (!m_daAprire.empty()) ApriReport(m_daAprire, m_stile);
    return Risultati(*totali);
}

} // namespace

std::string EseguiCorsa(const Opzioni& opzioni)
{
    Posto posto = PostoReport(opzioni);
    RifiutaFileDoppi(opzioni, posto.Percorso);
    if (opzioni.SuUscita && opzioni.FormaReport == Stampe::FormaPdf && UscitaSuTerminale()) {
        RifiutaUso(opzione::Uscita,
                   "un PDF va in un file o in un altro programma, non sul terminale");
    }
    if (opzioni.Compatto) PretendiCompatto();
    // A date that cannot be written is known before the first shoe, and refused as the request is.
    if (opzioni.FormaReport == Stampe::FormaPdf) OppureRifiuta(CalendarioInUso.Adesso);
    return Corsa(opzioni, std::move(posto)).Esegui();
}

} // namespace cli
