// Files of the program's own: what may be replaced, and what must stay.

#include "prova_FileNuovo.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace filenuovo;
using aiuti::Byte;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

// ---- What may be replaced --------------------------------------------------------------------

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

TEST(FileNuovo, LAltroNomeDelFileVecchioTieneIlContenuto)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    fs::create_hard_link(cartella.File("f"), cartella.File("altro"));
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("altro")), "vecchio");
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
}

TEST(TogliFile, UnFileProprioScompare)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    TogliFile(cartella.Nome() + "f");
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(FileNuovo, SostituisceUnFileProprio)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "un testo vecchio e molto piu lungo");
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"f"}));
}

// ---- What must stay --------------------------------------------------------------------------

TEST(FileNuovo, UnaCartellaResta)
{
    const CartellaDiProva cartella;
    fs::create_directory(cartella.File("f"));
    Resta(cartella.File("f"), NumeroErrore::AccessoAlFile, "è una cartella");
}

// ---- Questions about files -------------------------------------------------------------------

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
