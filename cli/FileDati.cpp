#include "FileDati.h"

#include "ErroreRuntime.h"

namespace cli {

FileDati::FileDati(const std::string& percorso)
    : m_file(percorso)
{
    m_file.Conserva();
}

FileDati::~FileDati()
{
    try {
        Scarica();
    } catch (const ErroreRuntime&) {
        // Another failure is on its way to the user already, or Chiudi() has reported this one.
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
