// The arguments of the command as they were typed. What they mean and which of them go together:
// Opzioni.h.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace cli {

// Names of options that the user is told of.
namespace opzione {
inline constexpr const char* Forma = "--forma";
inline constexpr const char* Cartella = "--cartella";
inline constexpr const char* Uscita = "--uscita";
inline constexpr const char* Apri = "--apri";
inline constexpr const char* CaratteriUnici = "--caratteri-unici";
inline constexpr const char* Compatto = "--compatto";
inline constexpr const char* Seme = "--seme";
inline constexpr const char* Mazzi = "--mazzi";
inline constexpr const char* SalvaMazzi = "--salva-mazzi";
inline constexpr const char* Colpi = "--colpi";
inline constexpr const char* Dati = "--dati";
inline constexpr const char* Numeri = "--numeri";
inline constexpr const char* Lavori = "--lavori";
inline constexpr const char* Avanzamento = "--avanzamento";
} // namespace opzione

// Nothing where an option was not given; of one given twice the last value counts.
struct Argomenti
{
    std::optional<std::string> Taglie, Forma, Cartella, Report, Seme, Mazzi, SalvaMazzi, Colpi,
        Dati, Numeri, Lavori, Avanzamento;
    bool Statistiche = false;
    bool Apri = false;
    bool CaratteriUnici = false;
    bool Compatto = false;
    bool Quieto = false;
    bool Aiuto = false;
    bool Versione = false;
};

// Reads the arguments (without the program's name). ErroreComando with UscitaUso for an unknown
// option, a missing or needless value, and more than one number of shoes.
Argomenti LeggiArgomenti(const std::vector<std::string>& argomenti);

} // namespace cli
