// Checks and completes names of folders; which folders the system knows is in Percorsi_posix.cpp
// and Percorsi_windows.cpp.
#include "Percorsi.h"

#include "ErroreSistema.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

std::string ConSeparatore(std::string cartella)
{
    if (cartella.empty() || !percorsi::Separatore(cartella.back())) {
        cartella.push_back(percorsi::SeparatoreProprio);
    }
    return cartella;
}

namespace {

void PretendiCartella(const std::string& cartella)
{
    std::error_code errore;
    const auto voce = std::filesystem::status(percorsi::Cammino(cartella), errore);
    if (std::filesystem::is_directory(voce)) return;
    PretendiMemoria(errore);
    throw ErroreRuntime(
        NumeroErrore::PercorsoNonTrovato,
        std::filesystem::exists(voce) ? "non è una cartella" : "la cartella non esiste", cartella);
}

// A name is completed with the current folder: without that one it cannot be.
void PretendiCorrente(const std::error_code& errore, const std::string& nome)
{
    if (!errore) return;
    PretendiMemoria(errore);
    throw ErroreRuntime(NumeroErrore::PercorsoNonTrovato, "la cartella corrente non esiste", nome);
}

} // namespace

std::string PercorsoTemp()
{
    std::string cartella = percorsi::CartellaTempDelSistema();
    if (cartella.empty()) cartella = percorsi::CartellaDelProgramma();
    // Without a "/" before it a name could be taken for an option by the program that opens a
    // report.
    if (!percorsi::Cammino(cartella).is_absolute()) return CartellaCompleta(cartella);
    PretendiCartella(cartella);
    return ConSeparatore(std::move(cartella));
}

std::string CartellaCompleta(const std::string& cartella)
{
    PretendiCartella(cartella);
    std::error_code errore;
    const std::filesystem::path data = percorsi::Cammino(cartella);
    // ".." after a link leads to the parent of the link's target, which only the system knows.
    const bool risale = std::find(data.begin(), data.end(), "..") != data.end();
    const auto assoluta = risale ? std::filesystem::canonical(data, errore)
                                 : std::filesystem::absolute(data, errore).lexically_normal();
    PretendiCorrente(errore, cartella);
    return ConSeparatore(assoluta.string());
}

std::string PercorsoCompleto(const std::string& percorso)
{
    std::error_code errore;
    const auto assoluto = std::filesystem::absolute(percorsi::Cammino(percorso), errore);
    PretendiCorrente(errore, percorso);
    return assoluto.string();
}
