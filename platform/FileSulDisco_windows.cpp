// What the system's attributes tell of names. The promises are in FileSulDisco.h.
#include "FileSulDisco.h"

#include "Percorsi.h"

#include <filesystem>
#include <system_error>

#include <windows.h>

bool VoceTrovata(const std::string& percorso)
{
    WIN32_FIND_DATAA voce;
    const HANDLE ricerca = FindFirstFileA(percorso.c_str(), &voce);
    if (ricerca == INVALID_HANDLE_VALUE) return false;
    FindClose(ricerca);
    return true;
}

bool FileOrdinario(const std::string& percorso)
{
    const DWORD attributi = GetFileAttributesA(percorso.c_str());
    constexpr DWORD esclusi = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN |
                              FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_DEVICE;
    return attributi != INVALID_FILE_ATTRIBUTES && (attributi & esclusi) == 0;
}

bool StessoFile(const std::string& percorso, const std::string& altro)
{
    std::error_code errore;
    return std::filesystem::equivalent(percorsi::Cammino(percorso), percorsi::Cammino(altro),
                                       errore);
}

// The names of devices stand in no folder here, so that no link is known to lead to one.
void PretendiNonSpeciale(const std::string& /*percorso*/) {}
