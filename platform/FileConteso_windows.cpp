// Asks by an opening that shares nothing. The promise is in FileConteso.h.
#include "FileConteso.h"

#include <windows.h>

bool FileOccupato(const std::string& percorso)
{
    constexpr DWORD nessunaCondivisione = 0;
    const HANDLE file = CreateFileA(percorso.c_str(), GENERIC_READ, nessunaCondivisione, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return true;
    CloseHandle(file);
    return false;
}
