#include "Percorsi.h"

#include "ErroreRuntime.h"

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
    if (!std::filesystem::is_directory(cartella, errore)) {
        throw ErroreRuntime(NumeroErrore::PercorsoNonTrovato, "la cartella non esiste", cartella);
    }
}

} // namespace

std::string PercorsoTemp()
{
    std::string cartella = percorsi::CartellaTempDelSistema();
    if (cartella.empty()) cartella = percorsi::CartellaDelProgramma();
    PretendiCartella(cartella);
    return ConSeparatore(std::move(cartella));
}

std::string CartellaCompleta(const std::string& cartella)
{
    PretendiCartella(cartella);
    std::error_code errore;
    const auto assoluta = std::filesystem::absolute(cartella, errore).lexically_normal();
    if (errore) {
        throw ErroreRuntime(NumeroErrore::PercorsoNonTrovato, "la cartella corrente non esiste",
                            cartella);
    }
    return ConSeparatore(assoluta.string());
}
