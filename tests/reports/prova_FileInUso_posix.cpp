// The check for a report, where a name can be a link that leads nowhere.

#include "AmbienteDiProva.h"
#include "FileInUso.h"

#include "LettoreDiFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

using namespace FileInUso;
using aiuti::AmbienteDiProva;

TEST(FileTrovato, VeroAnchePerUnCollegamentoPenzolante)
{
    const AmbienteDiProva prova;
    std::filesystem::create_symlink("nulla", prova.Cartella.File("penzolante"));
    EXPECT_EQ(FileTrovato(prova.Cartella.Nome() + "penzolante"), -1);
}

TEST(FileAperto, UnCollegamentoELiberoOvunqueConduca)
{
    const AmbienteDiProva prova;
    const std::string report = prova.Cartella.Nome() + "taglie.txt";
    std::ofstream(prova.Cartella.File("altro")) << "testo";
    const aiuti::LettoreDiFile tenuto(prova.Cartella.Nome() + "altro");
    for (const char* bersaglio : {"altro", "nulla", "taglie.txt", "/dev/null", "."}) {
        std::filesystem::create_symlink(bersaglio, report);
        EXPECT_EQ(FileAperto(report), 0) << bersaglio;
        std::filesystem::remove(report);
    }
}
