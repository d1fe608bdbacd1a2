// The check for a report, where a name can be a link that leads nowhere.

#include "FileInUso.h"

#include "Aiuti.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace FileInUso;
using aiuti::AmbienteDiProva;

TEST(FileTrovato, VeroAnchePerUnCollegamentoPenzolante)
{
    const AmbienteDiProva prova;
    std::filesystem::create_symlink("nulla", prova.Cartella.File("penzolante"));
    EXPECT_EQ(FileTrovato(prova.Cartella.Nome() + "penzolante"), -1);
}

TEST(FileAperto, UnCollegamentoPenzolanteETenuto)
{
    const AmbienteDiProva prova;
    std::filesystem::create_symlink("nulla", prova.Cartella.File("taglie.txt"));
    EXPECT_EQ(FileAperto(prova.Cartella.Nome() + "taglie.txt"), -1); // there, but not to be had
}
