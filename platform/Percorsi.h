// Folders: where reports go and how a folder's name is completed. What lies under a name tells
// FileSulDisco.h.
#pragma once

#include <filesystem>
#include <string>

// The temporary folder of the user, ending in the platform's separator. Windows: as GetTempPathA
// gives it. Elsewhere: TMPDIR when set, else the system's temporary folder. Where there is none,
// the folder the program was started from. A relative one is completed, as by CartellaCompleta.
// Error 76 naming the folder when it does not exist.
std::string PercorsoTemp();

// The absolute form of a folder given by the user, ending in the platform's separator; the
// folder's bytes are passed on unchanged. Error 76 naming it when it is no existing folder.
std::string CartellaCompleta(const std::string& cartella);

// The absolute form of a file's name, whether or not it exists; its bytes are passed on unchanged.
std::string PercorsoCompleto(const std::string& percorso);

// Appends the platform's separator unless the folder already ends in one.
std::string ConSeparatore(std::string cartella);

namespace percorsi {

// A name as all calls of the program take it, in the form of the C++ library, which on Windows
// would read its bytes otherwise: there names are UTF-8, elsewhere they are bytes.
std::filesystem::path Cammino(const std::string& nome);

// The system's own answers, one file per platform: empty where there is none.
std::string CartellaTempDelSistema();
std::string CartellaDelProgramma();
bool Separatore(char c);
inline constexpr int LunghezzaMassima = 260;
inline constexpr auto SeparatoreProprio =
    static_cast<char>(std::filesystem::path::preferred_separator);

} // namespace percorsi
