// Names are UTF-8 here, and the system is asked for its folders. Percorsi.cpp checks them.
#include "Percorsi.h"

#include <array>
#include <filesystem>

#include <windows.h>

namespace percorsi {

std::filesystem::path Cammino(const std::string& nome)
{
    return std::u8string(nome.begin(), nome.end());
}

std::string CartellaTempDelSistema()
{
    std::array<char, LunghezzaMassima> nome{};
    const DWORD lunghezza = GetTempPathA(static_cast<DWORD>(nome.size()), nome.data());
    if (lunghezza == 0 || lunghezza >= nome.size()) return {};
    return {nome.data(), lunghezza};
}

std::string CartellaDelProgramma()
{
    std::array<char, LunghezzaMassima> nome{};
    const DWORD lunghezza =
        GetModuleFileNameA(nullptr, nome.data(), static_cast<DWORD>(nome.size()));
    if (lunghezza == 0 || lunghezza >= nome.size()) return ".";
    return Cammino(std::string(nome.data(), lunghezza)).parent_path().string();
}

bool Separatore(char c)
{
    return c == '\\' || c == '/';
}

} // namespace percorsi
