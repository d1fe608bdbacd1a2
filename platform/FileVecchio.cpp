// Removal of links only; the rest asks the system: FileVecchio_posix.cpp, FileVecchio_windows.cpp.
#include "FileVecchio.h"

#include "ErroreSistema.h"
#include "Percorsi.h"

#include <filesystem>
#include <system_error>

void TogliCollegamento(const std::string& percorso)
{
    std::error_code errore;
    const bool collegamento = std::filesystem::is_symlink(percorsi::Cammino(percorso), errore);
    PretendiMemoria(errore);
    if (collegamento) TogliFile(percorso);
}
