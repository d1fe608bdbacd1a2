// The loop around write(2); the calls themselves are in ScritturaFile_posix.cpp and
// ScritturaFile_windows.cpp.
#include "ScritturaFile.h"

#include "ErroreSistema.h"

#include <cerrno>

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
