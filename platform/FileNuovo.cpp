#include "FileNuovo.h"

#include "ErroreSistema.h"
#include "Percorsi.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

void TogliCollegamento(const std::string& percorso)
{
    std::error_code errore;
    const bool collegamento = std::filesystem::is_symlink(percorsi::Cammino(percorso), errore);
    PretendiMemoria(errore);
    if (collegamento) TogliFile(percorso);
}

void ScriviSuDescrittore(int descrittore, std::string_view byte, const std::string& nome)
{
    while (!byte.empty()) {
        const auto scritti = ChiamateInUso.Scrivi(descrittore, byte.data(), byte.size());
        if (scritti > 0) {
            byte.remove_prefix(static_cast<std::size_t>(scritti));
        } else if (scritti == 0) {
            throw ErroreSistema(EIO, nome); // no progress and no reason: never loop on it
        } else if (errno != EINTR) {
            throw ErroreSistema(errno, nome);
        }
    }
}

FileNuovo::~FileNuovo()
{
    // Nobody can be told here: who wants to know whether the file is whole calls Chiudi().
    if (m_descrittore >= 0) ChiamateInUso.Chiudi(m_descrittore);
    if (!m_conserva) m_impronta->Togli();
}

void FileNuovo::ScriviTutto(std::string_view byte)
{
    if (m_descrittore < 0) throw ErroreSistema(EBADF, m_percorso);
    ScriviSuDescrittore(m_descrittore, byte, m_percorso);
}

void FileNuovo::Scrivi(std::string_view byte)
{
    try {
        ScriviTutto(byte);
    } catch (...) {
        Accorcia(m_lunghezza);
        throw;
    }
    m_lunghezza += byte.size();
}

void FileNuovo::Chiudi()
{
    if (m_descrittore < 0) return;
    const int descrittore = m_descrittore;
    m_descrittore = -1;
    // An interrupted close has closed the descriptor all the same: it must not be repeated.
    if (ChiamateInUso.Chiudi(descrittore) != 0 && errno != EINTR) {
        throw ErroreSistema(errno, m_percorso);
    }
}

namespace {

// What became of a file that no longer stands under its name.
std::string Sorte(const std::string& percorso)
{
    std::error_code errore;
    const auto cammino = percorsi::Cammino(percorso);
    const auto voce = std::filesystem::symlink_status(cammino, errore);
    if (std::filesystem::exists(voce)) return "un altro programma lo ha sostituito";
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
