// What the tests of the program's own files share.
#pragma once

#include "FileNuovo.h"

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "FileVecchio.h"
#include "Scritture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace filenuovo {

inline void Scrivi(const std::filesystem::path& percorso, const std::string& testo)
{
    std::ofstream file(percorso, std::ios::binary);
    file << testo;
    EXPECT_TRUE(file.flush()) << percorso;
}

// What stands under a name, without following it.
inline std::filesystem::file_type Tipo(const std::filesystem::path& percorso)
{
    return std::filesystem::symlink_status(percorso).type();
}

inline std::optional<ErroreRuntime> ErroreCreando(const std::string& percorso)
{
    return aiuti::ErroreDi([&] { const FileNuovo file(percorso); });
}

inline std::optional<ErroreRuntime> ErroreTogliendo(const std::string& percorso)
{
    return aiuti::ErroreDi([&] { TogliFile(percorso); });
}

// Neither removal nor creation touches what stands there; both say why.
inline void Resta(const std::filesystem::path& percorso, NumeroErrore numero,
                  const std::string& motivo)
{
    const auto prima = Tipo(percorso);
    for (const auto& errore :
         {ErroreCreando(percorso.string()), ErroreTogliendo(percorso.string())}) {
        ASSERT_TRUE(errore) << percorso;
        EXPECT_EQ(errore->Numero(), numero) << percorso;
        EXPECT_EQ(errore->Motivo(), motivo) << percorso;
        EXPECT_EQ(errore->File(), percorso.string());
    }
    EXPECT_EQ(Tipo(percorso), prima) << percorso;
}

// Replaces and keeps a file of one short text.
inline void Sostituisci(const std::filesystem::path& percorso)
{
    FileNuovo file(percorso.string());
    file.Scrivi("nuovo");
    file.Chiudi();
    file.Conserva();
}

} // namespace filenuovo
