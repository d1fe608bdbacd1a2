// What the tests of the picture readers share: prova_BmpFile.cpp, prova_GifFile.cpp,
// prova_JpegFile.cpp.
#pragma once

#include "ErroreRuntime.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace aiuti {

// Why a reader refuses these bytes, or "letta"; the error names the file in every case.
template <typename Lettore>
std::string Motivo(Lettore leggi, const std::string& byte)
{
    try {
        leggi(byte, "figura");
    } catch (const ErroreRuntime& errore) {
        EXPECT_EQ(errore.Numero(), NumeroErrore::ErroreInputOutput);
        EXPECT_EQ(errore.File(), "figura");
        return errore.Motivo();
    }
    return "letta";
}

// The bytes with others in place of those from posto on.
inline std::string Cambia(std::string byte, std::size_t posto, const std::string& con)
{
    return byte.replace(posto, con.size(), con);
}

// A number in so many bytes, the lowest first.
inline std::string Piccoli(std::uint64_t numero, int byte)
{
    std::string testo;
    for (; byte > 0; --byte, numero >>= 8) testo.push_back(static_cast<char>(numero));
    return testo;
}

} // namespace aiuti
