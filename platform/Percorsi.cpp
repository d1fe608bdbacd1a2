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
    const auto voce = std::filesystem::status(cartella, errore);
    if (std::filesystem::is_directory(voce)) return;
    PretendiMemoria(errore);
    throw ErroreRuntime(
        NumeroErrore::PercorsoNonTrovato,
        std::filesystem::exists(voce) ? "non è una cartella" : "la cartella non esiste", cartella);
}

} // namespace

std::string PercorsoTemp()
{
    std::string cartella = percorsi::CartellaTempDelSistema();
    if (cartella.empty()) cartella = percorsi::CartellaDelProgramma();
    // Without a "/" before it a name could be taken for an option by the program that opens a
    // report.
    if (!std::filesystem::path(cartella).is_absolute()) return CartellaCompleta(cartella);
    PretendiCartella(cartella);
    return ConSeparatore(std::move(cartella));
}

std::string CartellaCompleta(const std::string& cartella)
{
    PretendiCartella(cartella);
    std::error_code errore;
    const std::filesystem::path data(cartella);
    // ".." after a link leads to the parent of the link's target, which only the system knows.
    const bool risale = std::find(data.begin(), data.end(), "..") != data.end();
    const auto assoluta = risale ? std::filesystem::canonical(data, errore)
                                 : std::filesystem::absolute(data, errore).lexically_normal();
    PretendiMemoria(errore);
    if (errore) {
        throw ErroreRuntime(NumeroErrore::PercorsoNonTrovato, "la cartella corrente non esiste",
                            cartella);
    }
    return ConSeparatore(assoluta.string());
}

std::string PercorsoCompleto(const std::string& percorso)
{
    std::error_code errore;
    const auto assoluto = std::filesystem::absolute(percorso, errore);
    PretendiMemoria(errore);
    if (errore) {
        throw ErroreRuntime(NumeroErrore::PercorsoNonTrovato, "la cartella corrente non esiste",
                            percorso);
    }
    return assoluto.string();
}
