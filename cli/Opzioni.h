// The arguments of the command "taglie", checked.
#pragma once

#include "Separatori.h"

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace cli {

enum class Forma
{
    Txt,
    Html,
    Pdf,
    Video,
    Nessuna,
};

enum class FormaDati
{
    Nessuna,
    Json,
    Csv,
};

enum class Avviso
{
    Auto,
    Sempre,
    Mai,
};

struct Opzioni
{
    std::optional<std::uint64_t> Taglie; // not given: 1, or all shoes of a shoe file
    Forma FormaReport = Forma::Txt;
    bool Statistiche = false;
    std::string Cartella = ".";
    bool Apri = false;
    bool CaratteriUnici = false;
    std::optional<std::uint64_t> Seme;
    std::string Mazzi;      // empty: shuffled shoes
    std::string SalvaMazzi; // empty: not wanted; likewise below
    std::string Colpi;
    FormaDati Dati = FormaDati::Nessuna;
    Separatori Numeri;
    int Lavori = 1; // never 0: all cores are counted already
    Avviso Avanzamento = Avviso::Auto;
    bool Quieto = false;
    bool Aiuto = false;
    bool Versione = false;

    // Whether the report lists every coup.
    bool Piena() const
    {
        return !Statistiche && (FormaReport == Forma::Txt || FormaReport == Forma::Html ||
                                FormaReport == Forma::Pdf);
    }
};

// Exit codes of the command.
enum Uscita : int
{
    UscitaFatto = 0,
    UscitaUso = 2,
    UscitaRifiuto = 3,
    UscitaScrittura = 4,
    UscitaInterna = 5,
    UscitaInterrotta = 130,
};

// Ends the command with one line "taglie: what: why" and an exit code.
class ErroreComando : public std::exception
{
public:
    ErroreComando(Uscita uscita, const std::string& cosa, const std::string& perche)
        : m_uscita(uscita)
        , m_messaggio(cosa + ": " + perche)
    {
    }
    Uscita CodiceUscita() const noexcept { return m_uscita; }
    const char* what() const noexcept override { return m_messaggio.c_str(); }

private:
    Uscita m_uscita;
    std::string m_messaggio;
};

// Reads the arguments (without the program's name). ErroreComando with UscitaUso for anything
// unknown, malformed or contradictory, with UscitaRifiuto for more than 2^53 shoes.
Opzioni LeggiOpzioni(const std::vector<std::string>& argomenti);

// The text of --help and of --version, UTF-8, ending in a line end.
std::string TestoAiuto();
std::string TestoVersione();

// The program's version alone, "1.0.0".
std::string Versione();

} // namespace cli
