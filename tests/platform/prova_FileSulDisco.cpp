// Questions about what lies on the disk.

#include "FileSulDisco.h"

#include "prova_FileNuovo.h"

#include <filesystem>
#include <string>

using namespace filenuovo;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

TEST(FileOrdinario, UnFileSiUnaCartellaNo)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "");
    fs::create_directory(cartella.File("cartella"));
    for (const char* nome : {"f", "cartella/../f"}) {
        EXPECT_TRUE(FileOrdinario(cartella.Nome() + nome)) << nome;
    }
    for (const char* nome : {"cartella", "assente", "f/x", ".", ""}) {
        EXPECT_FALSE(FileOrdinario(cartella.Nome() + nome)) << nome;
    }
    EXPECT_FALSE(FileOrdinario(""));
}

TEST(StessoFile, DueNomiDiUnFile)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("a"), "x");
    Scrivi(cartella.File("b"), "x");
    fs::create_hard_link(cartella.File("a"), cartella.File("duro"));
    const std::string a = cartella.Nome() + "a";
    EXPECT_TRUE(StessoFile(a, a));
    EXPECT_TRUE(StessoFile(a, cartella.Nome() + "./a"));
    EXPECT_TRUE(StessoFile(a, cartella.Nome() + "duro"));
    EXPECT_FALSE(StessoFile(a, cartella.Nome() + "b"));
    EXPECT_FALSE(StessoFile(a, cartella.Nome() + "assente"));
    EXPECT_FALSE(StessoFile(cartella.Nome() + "assente", cartella.Nome() + "assente"));
}
