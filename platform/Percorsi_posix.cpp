// Names are bytes here, and the temporary folder is in the environment. Percorsi.cpp checks it.
#include "Percorsi.h"

#include "ErroreSistema.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace percorsi {

std::filesystem::path Cammino(const std::string& nome)
{
    return nome;
}

std::string CartellaTempDelSistema()
{
    const char* scelta = std::getenv("TMPDIR");
    if (scelta != nullptr && *scelta != '\0') return scelta;
    std::error_code errore;
    return std::filesystem::is_directory("/tmp", errore) ? "/tmp" : "";
}

std::string CartellaDelProgramma()
{
    std::error_code errore;
    const auto programma = std::filesystem::read_symlink("/proc/self/exe", errore);
    PretendiMemoria(errore);
    return errore ? "." : programma.parent_path().string();
}

bool Separatore(char c)
{
    return c == '/';
}

} // namespace percorsi
