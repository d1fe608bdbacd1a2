// What the parser of the command line is told, and its complaints in our own words. A new option is
// declared here, given its meaning in Opzioni.cpp and described in Aiuto.cpp.
#include "Argomenti.h"

#include "ErroreComando.h"

#include <CLI/CLI.hpp>

#include <array>
#include <string_view>
#include <utility>

namespace cli {

namespace {

struct ConValore
{
    const char* Breve; // empty: only the long name
    const char* Nome;
    std::optional<std::string> Argomenti::*Posto;
};

constexpr std::array<ConValore, 12> ConValori = {{
    {"", "N", &Argomenti::Taglie},
    {"-f", opzione::Forma, &Argomenti::Forma},
    {"-c", opzione::Cartella, &Argomenti::Cartella},
    {"-o", opzione::Uscita, &Argomenti::Report},
    {"", opzione::Seme, &Argomenti::Seme},
    {"", opzione::Mazzi, &Argomenti::Mazzi},
    {"", opzione::SalvaMazzi, &Argomenti::SalvaMazzi},
    {"", opzione::Colpi, &Argomenti::Colpi},
    {"", opzione::Dati, &Argomenti::Dati},
    {"", opzione::Numeri, &Argomenti::Numeri},
    {"-j", opzione::Lavori, &Argomenti::Lavori},
    {"", opzione::Avanzamento, &Argomenti::Avanzamento},
}};

struct Interruttore
{
    const char* Breve;
    const char* Nome;
    bool Argomenti::*Posto;
};

constexpr std::array<Interruttore, 7> Interruttori = {{
    {"-s", "--statistiche", &Argomenti::Statistiche},
    {"-a", opzione::Apri, &Argomenti::Apri},
    {"", opzione::CaratteriUnici, &Argomenti::CaratteriUnici},
    {"", opzione::Compatto, &Argomenti::Compatto},
    {"-q", "--quieto", &Argomenti::Quieto},
    {"-h", "--help", &Argomenti::Aiuto},
    {"-V", "--version", &Argomenti::Versione},
}};

// What the parser writes into. Whether a value was given is asked of the option itself: the
// parser's search by name ends the program when memory runs out in it.
struct Valore
{
    std::string Testo;
    CLI::Option* Opzione = nullptr;
};
using Valori = std::array<Valore, ConValori.size()>;

std::string Nomi(const std::string& breve, const std::string& nome)
{
    return breve.empty() ? nome : breve + "," + nome;
}

// The help text is our own.
void Dichiara(CLI::App& lettore, Valori& valori, Argomenti& argomenti)
{
    lettore.set_help_flag("");
    lettore.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    lettore.option_defaults()->disable_flag_override();
    for (std::size_t i = 0; i < valori.size(); ++i) {
        valori[i].Opzione =
            lettore.add_option(Nomi(ConValori[i].Breve, ConValori[i].Nome), valori[i].Testo);
    }
    valori[0].Opzione->multi_option_policy(CLI::MultiOptionPolicy::Throw); // one number of shoes
    for (const auto& uno : Interruttori) {
        lettore.add_flag(Nomi(uno.Breve, uno.Nome), argomenti.*uno.Posto);
    }
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

[[noreturn]] void RifiutaValore(const std::string& interruttore)
{
    RifiutaUso(interruttore, "non vuole un valore");
}

// A missing value comes as "--name: ..." from the parser.
[[noreturn]] void TraduciErrore(const CLI::App& lettore, const CLI::ParseError& errore,
                                const std::vector<std::string>& argomenti)
{
    const auto inattesi = lettore.remaining();
    if (!inattesi.empty()) {
        const std::string& primo = inattesi.front();
        const std::string interruttore = InterruttoreConValore(argomenti, primo);
        if (!interruttore.empty()) RifiutaValore(interruttore);
        const bool opzione = primo.size() > 1 && primo.front() == '-';
        RifiutaUso(primo, opzione ? "opzione sconosciuta" : "argomento di troppo");
    }
    const std::string testo = errore.what();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&errore) != nullptr) {
        const auto fine = testo.find(':');
        // A value given to a switch is told by the switch's bare name, without a colon.
        if (fine == std::string::npos) RifiutaValore("--" + testo.substr(0, testo.find(' ')));
        RifiutaUso(testo.substr(0, fine), "manca il valore");
    }
    RifiutaUso("argomenti", testo);
}

} // namespace

Argomenti LeggiArgomenti(const std::vector<std::string>& argomenti)
{
    Argomenti letti;
    Valori valori;
    CLI::App lettore;
    Dichiara(lettore, valori, letti);
    try {
        // The parser takes them from the back and empties the list.
        lettore.parse(std::vector<std::string>(argomenti.rbegin(), argomenti.rend()));
    } catch (const CLI::ParseError& errore) {
        TraduciErrore(lettore, errore, argomenti);
    }
    for (std::size_t i = 0; i < valori.size(); ++i) {
        if (valori[i].Opzione->count() > 0) letti.*ConValori[i].Posto = std::move(valori[i].Testo);
    }
    return letti;
}

} // namespace cli
