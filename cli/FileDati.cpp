// Keeps whole shoes back until enough of them are worth a write; how the file itself is made:
// platform/FileNuovo.h.
#include "FileDati.h"

#include "ErroreRuntime.h"
#include "FileVecchio.h"
#include "Percorsi.h"

#include <filesystem>
#include <system_error>

namespace cli {

void PretendiFileDati(const std::string& percorso)
{
    // A name that the user gave may well be a link on purpose (a device's name is one): replacing
    // it would take away something that is in use elsewhere.
    std::error_code errore;
    if (std::filesystem::is_symlink(percorsi::Cammino(percorso), errore)) {
        throw ErroreRuntime(NumeroErrore::AccessoAlFile,
                            "è un collegamento, serve il nome di un file ordinario", percorso);
    }
    PretendiCreabile(percorso);
}

FileDati::FileDati(const std::string& percorso)
    : m_file((PretendiFileDati(percorso), percorso))
{
    m_file.Conserva();
}

FileDati::~FileDati()
{
    try {
        Scarica();
    } catch (const std::exception&) {
        // Another failure (or the want of memory) is on its way to the user already, or Chiudi()
        // has reported this one.
    }
}

void FileDati::Aggiungi(const std::string& righe)
{
    constexpr std::size_t pieno = 64 * 1024;
    m_attesa += righe;
    if (m_attesa.size() >= pieno) Scarica();
}

void FileDati::Chiudi()
{
    Scarica();
    m_file.Chiudi();
}

// Forgotten before it is written: what failed once must not be written again at the end.
void FileDati::Scarica()
{
    if (m_attesa.empty()) return;
    const std::string righe = std::move(m_attesa);
    m_attesa.clear();
    m_file.Scrivi(righe);
}

} // namespace cli
