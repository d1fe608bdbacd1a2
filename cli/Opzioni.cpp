#include "Opzioni.h"

#include "ErroreComando.h"
#include "Numeri.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <thread>

namespace cli {

namespace {

// A value as it was typed. Asked of the option itself: the parser's search by name ends the program
// when memory runs out in it.
struct Valore
{
    bool Dato() const { return Opzione->count() > 0; }

    std::string Testo;
    CLI::Option* Opzione = nullptr;
};

// The checks below speak Italian and know exact limits, so that the parser is told of texts only.
struct Grezze
{
    Valore Taglie, Forma, Cartella, Seme, Mazzi, SalvaMazzi, Colpi, Dati, Numeri, Lavori,
        Avanzamento;
};

[[noreturn]] void Rifiuta(const std::string& cosa, const std::string& perche)
{
    throw ErroreComando(UscitaUso, cosa, perche);
}

// The short switches before a value that none of them wants: "-s" of "-s=1". The parser is left
// with "-=1" only.
std::string InterruttoreConValore(const std::vector<std::string>& argomenti,
                                  std::string_view avanzato)
{
    if (!avanzato.starts_with("-=")) return {};
    const auto valore = avanzato.substr(1);
    for (const std::string_view argomento : argomenti) {
        const bool breve = argomento.starts_with("-") && !argomento.starts_with("--");
        if (breve && argomento != avanzato && argomento.ends_with(valore)) {
            return std::string(argomento.substr(0, argomento.size() - valore.size()));
        }
    }
    return {};
}

// A missing value comes as "--name: ..." from the parser.
[[noreturn]] void TraduciErrore(const CLI::App& lettore, const CLI::ParseError& errore,
                                const std::vector<std::string>& argomenti)
{
    const auto inattesi = lettore.remaining();
    if (!inattesi.empty()) {
        const std::string& primo = inattesi.front();
        const std::string interruttore = InterruttoreConValore(argomenti, primo);
        if (!interruttore.empty()) Rifiuta(interruttore, "non vuole un valore");
        const bool opzione = primo.size() > 1 && primo.front() == '-';
        Rifiuta(primo, opzione ? "opzione sconosciuta" : "argomento di troppo");
    }
    const std::string testo = errore.what();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&errore) != nullptr) {
        const auto fine = testo.find(':');
        // A value given to a switch is told by the switch's bare name, without a colon.
        if (fine == std::string::npos) {
            Rifiuta("--" + testo.substr(0, testo.find(' ')), "non vuole un valore");
        }
        Rifiuta(testo.substr(0, fine), "manca il valore");
    }
    Rifiuta("argomenti", testo);
}

void LeggiTaglie(Opzioni& opzioni, const std::string& testo)
{
    constexpr std::uint64_t massimo = std::uint64_t{1} << 53;
    const auto cifra = [](char c) { return c >= '0' && c <= '9'; };
    if (testo.empty() || !std::all_of(testo.begin(), testo.end(), cifra)) {
        Rifiuta("numero di taglie", "\"" + testo + "\" non è un numero intero");
    }
    std::uint64_t taglie = 0;
    if (!LeggiInteroSenzaSegno(testo, taglie) || taglie > massimo) {
        throw ErroreComando(UscitaRifiuto, "numero di taglie",
                            testo + " supera il massimo, 9007199254740992");
    }
    if (taglie < 1) Rifiuta("numero di taglie", "deve essere almeno 1");
    opzioni.Taglie = taglie;
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
    Rifiuta(opzione, "\"" + testo + "\" non è tra " + elenco);
}

// 0 stays 0: what it stands for depends on the machine, what is refused must not.
int LeggiLavori(const std::string& testo)
{
    constexpr std::uint64_t massimo = 256;
    std::uint64_t lavori = 0;
    if (!LeggiInteroSenzaSegno(testo, lavori) || lavori > massimo) {
        Rifiuta("--lavori", "\"" + testo + "\" non è un numero intero da 0 a 256");
    }
    return static_cast<int>(lavori);
}

int TuttiIProcessori()
{
    constexpr unsigned massimo = 256;
    return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, massimo));
}

std::string LeggiNome(const std::string& opzione, const std::string& testo)
{
    if (testo.empty()) Rifiuta(opzione, "il nome è vuoto");
    return testo;
}

void RifiutaContraddizioni(const Opzioni& opzioni, bool conCartella)
{
    const bool inFile = !Stampe::Forme.at(opzioni.FormaReport).File.empty();
    if (opzioni.Apri && !inFile)
        Rifiuta("--apri", "senza un report in un file non c'è nulla da aprire");
    if (conCartella && !inFile)
        Rifiuta("--cartella", "senza un report in un file non c'è nulla da metterci");
    if (opzioni.CaratteriUnici && opzioni.FormaReport != Stampe::FormaPdf) {
        Rifiuta("--caratteri-unici", "vale solo con -f pdf");
    }
    if (!opzioni.Mazzi.empty() && opzioni.Seme) {
        Rifiuta("--seme", "con --mazzi le carte non si mescolano");
    }
    if (opzioni.FormaReport == Stampe::FormaVideo && opzioni.Dati != FormaDati::Nessuna) {
        Rifiuta("--dati", "con -f video lo standard output è già delle statistiche");
    }
    const bool piuLavori = opzioni.Lavori != 1;
    if (piuLavori && opzioni.Piena()) {
        Rifiuta("--lavori", "un report con tutti i colpi vuole un solo lavoro (oppure -s)");
    }
    if (piuLavori && !(opzioni.SalvaMazzi.empty() && opzioni.Colpi.empty())) {
        Rifiuta("--lavori",
                "con --salva-mazzi e --colpi vale un solo lavoro: contano le taglie in ordine");
    }
}

// What the parser is told; the help text is our own.
void Dichiara(CLI::App& lettore, Grezze& grezze, Opzioni& opzioni)
{
    lettore.set_help_flag("");
    lettore.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    lettore.option_defaults()->disable_flag_override();
    grezze.Taglie.Opzione = lettore.add_option("N", grezze.Taglie.Testo);
    grezze.Taglie.Opzione->multi_option_policy(CLI::MultiOptionPolicy::Throw);
    grezze.Forma.Opzione = lettore.add_option("-f,--forma", grezze.Forma.Testo);
    lettore.add_flag("-s,--statistiche", opzioni.Statistiche);
    grezze.Cartella.Opzione = lettore.add_option("-c,--cartella", grezze.Cartella.Testo);
    lettore.add_flag("-a,--apri", opzioni.Apri);
    lettore.add_flag("--caratteri-unici", opzioni.CaratteriUnici);
    grezze.Seme.Opzione = lettore.add_option("--seme", grezze.Seme.Testo);
    grezze.Mazzi.Opzione = lettore.add_option("--mazzi", grezze.Mazzi.Testo);
    grezze.SalvaMazzi.Opzione = lettore.add_option("--salva-mazzi", grezze.SalvaMazzi.Testo);
    grezze.Colpi.Opzione = lettore.add_option("--colpi", grezze.Colpi.Testo);
    grezze.Dati.Opzione = lettore.add_option("--dati", grezze.Dati.Testo);
    grezze.Numeri.Opzione = lettore.add_option("--numeri", grezze.Numeri.Testo);
    grezze.Lavori.Opzione = lettore.add_option("-j,--lavori", grezze.Lavori.Testo);
    grezze.Avanzamento.Opzione = lettore.add_option("--avanzamento", grezze.Avanzamento.Testo);
    lettore.add_flag("-q,--quieto", opzioni.Quieto);
    lettore.add_flag("-h,--help", opzioni.Aiuto);
    lettore.add_flag("-V,--version", opzioni.Versione);
}

void LeggiScelte(Opzioni& opzioni, const Grezze& grezze)
{
    if (grezze.Dati.Dato()) {
        opzioni.Dati = Scegli<FormaDati>("--dati", grezze.Dati.Testo,
                                         {{"json", FormaDati::Json}, {"csv", FormaDati::Csv}});
        opzioni.FormaReport =
            Stampe::FormaNessuna; // data on standard output want no report beside them
    }
    if (grezze.Forma.Dato()) {
        opzioni.FormaReport = Scegli<Stampe::Forma>("--forma", grezze.Forma.Testo,
                                                    {{"txt", Stampe::FormaTxt},
                                                     {"html", Stampe::FormaHtml},
                                                     {"pdf", Stampe::FormaPdf},
                                                     {"video", Stampe::FormaVideo},
                                                     {"nessuna", Stampe::FormaNessuna}});
    }
    if (grezze.Avanzamento.Dato()) {
        opzioni.Avanzamento = Scegli<Avviso>(
            "--avanzamento", grezze.Avanzamento.Testo,
            {{"auto", Avviso::Auto}, {"sempre", Avviso::Sempre}, {"mai", Avviso::Mai}});
    }
    const std::string numeri = grezze.Numeri.Dato() ? grezze.Numeri.Testo : "sistema";
    if (numeri == "sistema") opzioni.Numeri = SeparatoriUtente();
    else
        opzioni.Numeri = Scegli<Separatori>(
            "--numeri", numeri, {{"it", {",", "."}}, {"c", {".", ""}}, {"sistema", {}}});
}

void LeggiValori(Opzioni& opzioni, const Grezze& grezze)
{
    if (grezze.Taglie.Dato()) LeggiTaglie(opzioni, grezze.Taglie.Testo);
    if (grezze.Cartella.Dato()) opzioni.Cartella = LeggiNome("--cartella", grezze.Cartella.Testo);
    if (grezze.Mazzi.Dato()) opzioni.Mazzi = LeggiNome("--mazzi", grezze.Mazzi.Testo);
    if (grezze.SalvaMazzi.Dato()) {
        opzioni.SalvaMazzi = LeggiNome("--salva-mazzi", grezze.SalvaMazzi.Testo);
    }
    if (grezze.Colpi.Dato()) opzioni.Colpi = LeggiNome("--colpi", grezze.Colpi.Testo);
    if (grezze.Lavori.Dato()) opzioni.Lavori = LeggiLavori(grezze.Lavori.Testo);
    if (grezze.Seme.Dato()) {
        std::uint64_t seme = 0;
        if (!LeggiInteroSenzaSegno(grezze.Seme.Testo, seme)) {
            Rifiuta("--seme", "\"" + grezze.Seme.Testo +
                                  "\" non è un numero intero da 0 a 18446744073709551615");
        }
        opzioni.Seme = seme;
    }
}

} // namespace

Opzioni LeggiOpzioni(const std::vector<std::string>& argomenti)
{
    Opzioni opzioni;
    Grezze grezze;
    CLI::App lettore;
    Dichiara(lettore, grezze, opzioni);
    try {
        // The parser takes them from the back and empties the list.
        lettore.parse(std::vector<std::string>(argomenti.rbegin(), argomenti.rend()));
    } catch (const CLI::ParseError& errore) {
        TraduciErrore(lettore, errore, argomenti);
    }
    if (opzioni.Aiuto || opzioni.Versione) return opzioni;
    LeggiValori(opzioni, grezze);
    LeggiScelte(opzioni, grezze);
    RifiutaContraddizioni(opzioni, grezze.Cartella.Dato());
    if (opzioni.Lavori == 0) opzioni.Lavori = TuttiIProcessori();
    return opzioni;
}

} // namespace cli
