// Owners and kinds of what stands in the way of a new file. FileNuovo_posix.cpp creates it then.
#include "FileVecchio.h"

#include "ErroreSistema.h"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// False when there is nothing; an error when what is there must stay.
bool DaTogliere(const std::string& percorso)
{
    struct stat voce = {};
    if (::lstat(percorso.c_str(), &voce) != 0) {
        if (errno == ENOENT) return false;
        throw ErroreSistema(errno, percorso);
    }
    if (S_ISDIR(voce.st_mode)) throw ErroreSistema(EISDIR, percorso);
    if (!S_ISREG(voce.st_mode) && !S_ISLNK(voce.st_mode)) throw ErroreSistema(ENXIO, percorso);
    // Root may remove anything, so the owner is asked for and not the permission.
    if (voce.st_uid != ::geteuid()) {
        throw ErroreRuntime(NumeroErrore::PermessoNegato, "appartiene a un altro utente", percorso);
    }
    return true;
}

} // namespace

void PretendiSostituibile(const std::string& percorso)
{
    DaTogliere(percorso);
}

void PretendiCreabile(const std::string& percorso)
{
    PretendiSostituibile(percorso);
    const auto nome = std::filesystem::path(percorso).parent_path();
    const std::string cartella = nome.empty() ? "." : nome.string();
    // Whether it may be gone through has shown by the look at the entry.
    if (::faccessat(AT_FDCWD, cartella.c_str(), W_OK, AT_EACCESS) != 0) {
        throw ErroreSistema(errno, percorso);
    }
}

void TogliFile(const std::string& percorso)
{
    if (!DaTogliere(percorso)) return;
    if (::unlink(percorso.c_str()) != 0 && errno != ENOENT) throw ErroreSistema(errno, percorso);
}
