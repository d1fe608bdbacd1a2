// Kinds of what stands in the way of a new file. FileNuovo_windows.cpp creates it then.
#include "FileVecchio.h"

#include "ErroreSistema.h"

#include <cerrno>

#include <io.h>
#include <windows.h>

// Folders of other users are closed to this one here by the system's own rights, so that the
// owner need not be asked for.
void PretendiSostituibile(const std::string& percorso)
{
    const DWORD attributi = GetFileAttributesA(percorso.c_str());
    if (attributi == INVALID_FILE_ATTRIBUTES) return;
    if ((attributi & FILE_ATTRIBUTE_DIRECTORY) != 0) throw ErroreSistema(EISDIR, percorso);
    if ((attributi & FILE_ATTRIBUTE_DEVICE) != 0) throw ErroreSistema(ENXIO, percorso);
}

// The rights of a folder show only when a file is created in it.
void PretendiCreabile(const std::string& percorso)
{
    PretendiSostituibile(percorso);
}

void TogliFile(const std::string& percorso)
{
    PretendiSostituibile(percorso);
    if (::_unlink(percorso.c_str()) != 0 && errno != ENOENT) throw ErroreSistema(errno, percorso);
}
