// What the tests of files that appear whole share.
#pragma once

#include "FileIntero.h"

#include "prova_FileNuovo.h"

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace fileintero {

using filenuovo::Scrivi;
using filenuovo::Tipo;

using Nomi = std::vector<std::string>;

// With files that have no name, and as where there are none.
inline constexpr std::initializer_list<bool> Modi = {true, false};

class Modo
{
public:
    explicit Modo(bool anonimo) { FingiSenzaAnonimi(!anonimo); }
    ~Modo() { FingiSenzaAnonimi(false); }
    Modo(const Modo&) = delete;
    Modo& operator=(const Modo&) = delete;
};

// Puts a file of these pieces in place.
inline void Sostituisci(const std::filesystem::path& percorso,
                        std::initializer_list<std::string_view> pezzi)
{
    FileIntero file(percorso.string());
    for (const auto pezzo : pezzi) file.Scrivi(pezzo);
    file.MettiAPosto();
}

} // namespace fileintero
