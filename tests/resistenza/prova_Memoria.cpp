// The measures of the long runs see what they are there to see.

#include "Caso.h"
#include "Memoria.h"
#include "Parole.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <vector>

using resistenza::Caso;
using resistenza::Memoria;

#if !defined(__SANITIZE_ADDRESS__)
TEST(Memoria, VedeUnaCorsaCheNeTieneSempreDiPiu)
{
    constexpr std::size_t quattroMebibyte = 4 << 20;
    std::vector<std::vector<char>> tenuta;
    Memoria memoria(10);
    for (int i = 1; i <= 10; ++i) {
        if (i > 1) tenuta.emplace_back(quattroMebibyte, 'x');
        memoria.Guarda(i);
    }
    EXPECT_THROW(memoria.Racconta("prova"), std::runtime_error);
}
#endif

TEST(Memoria, AccettaUnaCorsaCheLaRestituisce)
{
    Memoria memoria(10);
    for (int i = 1; i <= 10; ++i) {
        const std::vector<char> presa(4 << 20, 'x');
        memoria.Guarda(i);
    }
    EXPECT_NO_THROW(memoria.Racconta("prova"));
}

TEST(Memoria, UnFileRimastoSiVede)
{
    std::string modello = testing::TempDir() + "resistenza.XXXXXX";
    const std::filesystem::path cartella = ::mkdtemp(modello.data());
    EXPECT_NO_THROW(resistenza::PretendiVuota(cartella));
    std::ofstream(cartella / "taglie.txt") << "x";
    EXPECT_THROW(resistenza::PretendiVuota(cartella), std::runtime_error);
    std::filesystem::remove_all(cartella);
}

TEST(Caso, LoStessoSemeDaLeStesseScelte)
{
    Caso uno(7);
    Caso altro(7);
    Caso diverso(8);
    EXPECT_EQ(uno.Bit(), altro.Bit());
    EXPECT_NE(uno.Bit(), diverso.Bit());
    for (int i = 0; i < 1000; ++i) {
        const int intero = uno.Intero(-2, 3);
        EXPECT_TRUE(intero >= -2 && intero <= 3);
        const double reale = uno.Reale(0.5, 0.75);
        EXPECT_TRUE(reale >= 0.5 && reale <= 0.75);
    }
}

TEST(Parole, FuoriDaWindows1252SiVedeUnPuntoInterrogativo)
{
    EXPECT_EQ(resistenza::ComeSiVede("città – Мир €"), "città – ??? €");
}
