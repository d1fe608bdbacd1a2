// What the command was asked for, checked. Next: Argomenti.h (how it was typed), Corsa.h (the run).
#pragma once

#include "Separatori.h"
#include "Stampe.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace cli {

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
    std::optional<std::int64_t> Taglie; // not given: 1, or all shoes of a shoe file
    Stampe::Forma FormaReport = Stampe::FormaTxt;
    bool Statistiche = false;
    std::string Cartella = ".";
    std::string Report;    // its name as given; empty: the form's own
    bool SuUscita = false; // the report goes to standard output; Report is empty then
    bool Apri = false;
    bool CaratteriUnici = false;
    bool Compatto = false;
    std::optional<std::uint64_t> Seme;
    std::string Mazzi;      // empty: shuffled shoes
    std::string SalvaMazzi; // empty: not wanted; likewise below
    std::string Colpi;
    FormaDati Dati = FormaDati::Nessuna;
    Separatori Numeri;
    int Lavori = 1; // threads; never 0: all cores are counted already
    Avviso Avanzamento = Avviso::Auto;
    bool Quieto = false;
    bool Aiuto = false;
    bool Versione = false;

    // Whether the report lists every coup.
    bool Piena() const { return !Statistiche && Stampe::Forme.at(FormaReport).Stampa != nullptr; }
};

// Reads the arguments (without the program's name). ErroreComando with UscitaUso for anything
// unknown, malformed or contradictory, with UscitaRifiuto for more than 2^53 shoes.
Opzioni LeggiOpzioni(const std::vector<std::string>& testi);

} // namespace cli
