// What the tests of reading files share.
#pragma once

#include "LetturaFile.h"

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "Scritture.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lettura {

using Testi = std::vector<std::string>;

inline bool Mai()
{
    return false;
}

// All lines of a file as numbers and texts, to the end or until fermare says to stop.
inline bool LeggiRighe(const std::string& percorso, std::size_t massimo,
                       const std::function<void(std::size_t, std::string_view)>& riga,
                       const std::function<bool()>& fermare)
{
    return FileRighe(percorso, massimo)
        .Leggi([&riga](std::size_t numero, std::uint64_t,
                       std::string_view testo) { riga(numero, testo); },
               fermare);
}

// The lines of a file; fails the test when their numbers are not 1, 2, 3 and so on.
inline Testi Righe(const std::string& percorso, std::size_t massimo = 1000)
{
    Testi righe;
    const bool finito = LeggiRighe(
        percorso, massimo,
        [&righe](std::size_t numero, std::string_view riga) {
            righe.emplace_back(riga);
            EXPECT_EQ(numero, righe.size());
        },
        Mai);
    EXPECT_TRUE(finito);
    return righe;
}

inline std::optional<ErroreRuntime> ErroreLeggendo(const std::string& percorso)
{
    return aiuti::ErroreDi([&] {
        LeggiRighe(
            percorso, 1000, [](std::size_t, std::string_view) {}, Mai);
    });
}

// The number of the error that reading a whole file ends with; 0 for none.
inline int NumeroLeggendo(const std::string& percorso, std::size_t massimo)
{
    const auto errore = aiuti::ErroreDi([&] { LeggiFile(percorso, massimo); });
    return errore ? static_cast<int>(errore->Numero()) : 0;
}

} // namespace lettura
