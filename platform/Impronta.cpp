// What the user is told about a file that is no longer there; how files are told apart is in
// Impronta_posix.cpp and Impronta_windows.cpp.
#include "Impronta.h"

#include "ErroreSistema.h"
#include "Percorsi.h"

#include <filesystem>
#include <system_error>

namespace {

constexpr const char* AltroAlSuoPosto = "un altro programma lo ha sostituito";

// What became of a file that no longer stands under its name.
std::string Sorte(const std::string& percorso)
{
    std::error_code errore;
    const auto cammino = percorsi::Cammino(percorso);
    const auto voce = std::filesystem::symlink_status(cammino, errore);
    if (std::filesystem::exists(voce)) return AltroAlSuoPosto;
    PretendiMemoria(errore);
    if (!std::filesystem::status_known(voce)) return MotivoSistema(errore.value());
    const auto cartella = std::filesystem::status(cammino.parent_path(), errore);
    PretendiMemoria(errore);
    const bool sparita = cammino.has_parent_path() && !std::filesystem::exists(cartella);
    return sparita ? "la sua cartella non c'è più" : "un altro programma lo ha tolto";
}

} // namespace

void Impronta::Pretendi() const
{
    if (!Vale()) throw ErroreRuntime(NumeroErrore::AccessoAlFile, Sorte(m_percorso), m_percorso);
}

ErroreRuntime Impronta::Sostituito() const
{
    return ErroreRuntime(NumeroErrore::AccessoAlFile, AltroAlSuoPosto, m_percorso);
}
