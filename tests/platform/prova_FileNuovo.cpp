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

TEST(FileNuovo, LAltroNomeDelFileVecchioTieneIlContenuto)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    fs::create_hard_link(cartella.File("f"), cartella.File("altro"));
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("altro")), "vecchio");
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
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
