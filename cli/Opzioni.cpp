// What the arguments mean, their limits, and which of them contradict each other. How they are
// parsed: Argomenti.cpp.
#include "Opzioni.h"

#include "Argomenti.h"
#include "Cifre.h"
#include "ErroreComando.h"
#include "LimitiTaglie.h"
#include "Numeri.h"
#include "Percorsi.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string_view>
#include <thread>
#include <utility>

namespace cli {

namespace {

constexpr std::uint64_t FiliMassimi = 256;
constexpr const char* SoloPdf = "vale solo con -f pdf";

std::string FraVirgolette(const std::string& testo)
{
    return "\"" + testo + "\"";
}

std::string NonIntero(const std::string& testo)
{
    return FraVirgolette(testo) + " non è un numero intero";
}

void LeggiTaglie(Opzioni& opzioni, const std::string& testo)
{
    if (testo.empty() || !SoloCifre(testo)) {
        RifiutaUso(Stampe::NumeroDiTaglie, NonIntero(testo));
    }
    std::uint64_t taglie = 0;
    if (!LeggiInteroSenzaSegno(testo, taglie) || std::cmp_greater(taglie, Stampe::MassimoTaglie)) {
        throw ErroreComando(UscitaRifiuto, Stampe::NumeroDiTaglie, Stampe::TroppeTaglie(testo));
    }
    if (taglie < 1) RifiutaUso(Stampe::NumeroDiTaglie, Stampe::PocheTaglie);
    opzioni.Taglie = static_cast<std::int64_t>(taglie);
}

template <typename Valore>
Valore Scegli(const std::string& opzione, const std::string& testo,
              const std::map<std::string, Valore>& ammessi)
{
    const auto trovato = ammessi.find(testo);
    if (trovato != ammessi.end()) return trovato->second;
    std::string elenco;
    for (const auto& [nome, valore] : ammessi) {
        elenco += (elenco.empty() ? "" : ", ") + nome;
    }
    RifiutaUso(opzione, FraVirgolette(testo) + " non è tra " + elenco);
}

std::uint64_t LeggiIntero(const std::string& opzione, const std::string& testo,
                          std::uint64_t massimo)
{
    std::uint64_t valore = 0;
    if (!LeggiInteroSenzaSegno(testo, valore) || valore > massimo) {
        RifiutaUso(opzione, NonIntero(testo) + " da 0 a " + std::to_string(massimo));
    }
    return valore;
}

int TuttiIProcessori()
{
    return static_cast<int>(
        std::clamp<std::uint64_t>(std::thread::hardware_concurrency(), 1, FiliMassimi));
}

// Of an option that has its effect on the file of a report.
void PretendiReportInFile(const Opzioni& opzioni, const char* opzione, const std::string& niente)
{
    if (!Stampe::Forme.at(opzioni.FormaReport).File.empty()) return;
    RifiutaUso(opzione, "senza un report in un file non c'è nulla da " + niente);
}

// What "-o -" leaves no place for: a second use of standard output, and what needs a file.
void RifiutaConUscita(const Opzioni& opzioni, bool conCartella)
{
    if (opzioni.Dati != FormaDati::Nessuna || opzioni.FormaReport == Stampe::FormaVideo) {
        RifiutaUso(opzioni.Dati != FormaDati::Nessuna ? opzione::Dati : opzione::Forma,
                   "con -o - lo standard output è già del report");
    }
    if (opzioni.Apri) RifiutaUso(opzione::Apri, "con -o - non c'è un file da aprire");
    if (conCartella) RifiutaUso(opzione::Cartella, "con -o - il report non va in una cartella");
}

void RifiutaNome(const Opzioni& opzioni, bool conCartella)
{
    if (opzioni.SuUscita) RifiutaConUscita(opzioni, conCartella);
    if (opzioni.SuUscita || !opzioni.Report.empty()) {
        PretendiReportInFile(opzioni, opzione::Uscita, "scrivere");
    }
    if (conCartella && percorsi::Cammino(opzioni.Report).is_absolute()) {
        RifiutaUso(opzione::Cartella, "il nome dato con -o comprende già la cartella");
    }
}

void RifiutaContraddizioni(const Opzioni& opzioni, bool conCartella)
{
    RifiutaNome(opzioni, conCartella);
    if (opzioni.Apri) PretendiReportInFile(opzioni, opzione::Apri, "aprire");
    if (conCartella) PretendiReportInFile(opzioni, opzione::Cartella, "metterci");
    const bool pdf = opzioni.FormaReport == Stampe::FormaPdf;
    if (opzioni.CaratteriUnici && !pdf) RifiutaUso(opzione::CaratteriUnici, SoloPdf);
    if (opzioni.Compatto && !pdf) RifiutaUso(opzione::Compatto, SoloPdf);
    if (!opzioni.Mazzi.empty() && opzioni.Seme) {
        RifiutaUso(opzione::Seme, "con --mazzi le carte non si mescolano");
    }
    if (opzioni.FormaReport == Stampe::FormaVideo && opzioni.Dati != FormaDati::Nessuna) {
        RifiutaUso(opzione::Dati, "con -f video lo standard output è già delle statistiche");
    }
    const bool piuLavori = opzioni.Lavori != 1;
    if (piuLavori && opzioni.Piena()) {
        RifiutaUso(opzione::Lavori, "un report con tutti i colpi vuole un solo lavoro (oppure -s)");
    }
    if (piuLavori && !(opzioni.SalvaMazzi.empty() && opzioni.Colpi.empty())) {
        RifiutaUso(opzione::Lavori,
                   "con --salva-mazzi e --colpi vale un solo lavoro: contano le taglie in ordine");
    }
}

void LeggiInterruttori(Opzioni& opzioni, const Argomenti& argomenti)
{
    opzioni.Statistiche = argomenti.Statistiche;
    opzioni.Apri = argomenti.Apri;
    opzioni.CaratteriUnici = argomenti.CaratteriUnici;
    opzioni.Compatto = argomenti.Compatto;
    opzioni.Quieto = argomenti.Quieto;
    opzioni.Aiuto = argomenti.Aiuto;
    opzioni.Versione = argomenti.Versione;
}

void LeggiNomi(Opzioni& opzioni, const Argomenti& argomenti)
{
    const auto leggi = [](std::string& posto, const char* opzione,
                          const std::optional<std::string>& testo) {
        if (!testo) return;
        if (testo->empty()) RifiutaUso(opzione, "il nome è vuoto");
        posto = *testo;
    };
    leggi(opzioni.Cartella, opzione::Cartella, argomenti.Cartella);
    leggi(opzioni.Report, opzione::Uscita, argomenti.Report);
    opzioni.SuUscita = opzioni.Report == "-";
    if (opzioni.SuUscita) opzioni.Report.clear();
    leggi(opzioni.Mazzi, opzione::Mazzi, argomenti.Mazzi);
    leggi(opzioni.SalvaMazzi, opzione::SalvaMazzi, argomenti.SalvaMazzi);
    leggi(opzioni.Colpi, opzione::Colpi, argomenti.Colpi);
}

void LeggiNumeri(Opzioni& opzioni, const Argomenti& argomenti)
{
    if (argomenti.Lavori) {
        // 0 stays 0 for now: what it stands for depends on the machine, what is refused must not.
        opzioni.Lavori =
            static_cast<int>(LeggiIntero(opzione::Lavori, *argomenti.Lavori, FiliMassimi));
    }
    if (argomenti.Seme) {
        constexpr auto massimo = std::numeric_limits<std::uint64_t>::max();
        opzioni.Seme = LeggiIntero(opzione::Seme, *argomenti.Seme, massimo);
    }
}

// The form that the end of a file's name stands for.
std::optional<Stampe::Forma> FormaDelNome(const std::string& nome)
{
    std::string fine = percorsi::Cammino(nome).extension().string();
    std::transform(fine.begin(), fine.end(), fine.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    if (fine == ".txt") return Stampe::FormaTxt;
    if (fine == ".htm" || fine == ".html") return Stampe::FormaHtml;
    if (fine == ".pdf") return Stampe::FormaPdf;
    return std::nullopt;
}

void LeggiScelte(Opzioni& opzioni, const Argomenti& argomenti)
{
    if (argomenti.Dati) {
        opzioni.Dati = Scegli<FormaDati>(opzione::Dati, *argomenti.Dati,
                                         {{"json", FormaDati::Json}, {"csv", FormaDati::Csv}});
        // Data on standard output want no report beside them.
        opzioni.FormaReport = Stampe::FormaNessuna;
    }
    // Nobody wants a text of the name "report.pdf" without saying so.
    opzioni.FormaReport = FormaDelNome(opzioni.Report).value_or(opzioni.FormaReport);
    if (argomenti.Forma) {
        opzioni.FormaReport = Scegli<Stampe::Forma>(opzione::Forma, *argomenti.Forma,
                                                    {{"txt", Stampe::FormaTxt},
                                                     {"html", Stampe::FormaHtml},
                                                     {"pdf", Stampe::FormaPdf},
                                                     {"video", Stampe::FormaVideo},
                                                     {"nessuna", Stampe::FormaNessuna}});
    }
    if (argomenti.Avanzamento) {
        opzioni.Avanzamento = Scegli<Avviso>(
            opzione::Avanzamento, *argomenti.Avanzamento,
            {{"auto", Avviso::Auto}, {"sempre", Avviso::Sempre}, {"mai", Avviso::Mai}});
    }
    const std::string sistema = "sistema";
    const std::string numeri = argomenti.Numeri.value_or(sistema);
    opzioni.Numeri =
        numeri == sistema
            ? SeparatoriUtente()
            : Scegli<Separatori>(opzione::Numeri, numeri,
                                 {{"it", {",", "."}}, {"c", {".", ""}}, {sistema, {}}});
}

} // namespace

Opzioni LeggiOpzioni(const std::vector<std::string>& testi)
{
    const Argomenti argomenti = LeggiArgomenti(testi);
    Opzioni opzioni;
    LeggiInterruttori(opzioni, argomenti);
    if (opzioni.Aiuto || opzioni.Versione) return opzioni;
    if (argomenti.Taglie) LeggiTaglie(opzioni, *argomenti.Taglie);
    LeggiNomi(opzioni, argomenti);
    LeggiNumeri(opzioni, argomenti);
    LeggiScelte(opzioni, argomenti);
    RifiutaContraddizioni(opzioni, argomenti.Cartella.has_value());
    if (opzioni.Lavori == 0) opzioni.Lavori = TuttiIProcessori();
    return opzioni;
}

} // namespace cli
