// What stands where a file of the program's own shall go: what may be removed, and what must stay.

#include "prova_FileNuovo.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace filenuovo;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

TEST(PretendiSostituibile, NonToccaNulla)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    fs::create_directory(cartella.File("cartella"));
    EXPECT_NO_THROW(PretendiSostituibile(cartella.File("file").string()));
    EXPECT_NO_THROW(PretendiSostituibile(cartella.File("assente").string()));
    EXPECT_THROW(PretendiSostituibile(cartella.File("cartella").string()), ErroreRuntime);
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"cartella", "file"}));
}

TEST(TogliFile, NullaDaTogliereNonEUnErrore)
{
    const CartellaDiProva cartella;
    EXPECT_FALSE(ErroreTogliendo(cartella.Nome() + "assente"));
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(TogliFile, UnFileProprioScompare)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    TogliFile(cartella.Nome() + "f");
    EXPECT_TRUE(cartella.Contenuto().empty());
}
