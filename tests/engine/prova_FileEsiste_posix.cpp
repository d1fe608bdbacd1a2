// Which files count as files, where names can be links and devices.

#include "Aiuti.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace modCarte;

TEST(FileEsiste, SoloFileOrdinari)
{
    const aiuti::CartellaDiProva cartella;
    std::ofstream(cartella.File("c'è.txt")) << "x";
    std::ofstream(cartella.File(".nascosto")) << "x";
    std::filesystem::create_directory(cartella.File("cartella"));
    std::filesystem::create_symlink(cartella.File("c'è.txt"), cartella.File("link"));
    std::filesystem::create_symlink(cartella.File("nulla"), cartella.File("rotto"));
    EXPECT_EQ(FileEsiste(cartella.File("c'è.txt")), Vero);
    EXPECT_EQ(FileEsiste(cartella.File("link")), Vero);
    EXPECT_EQ(FileEsiste(cartella.File(".nascosto")), Falso);
    EXPECT_EQ(FileEsiste(cartella.File("cartella")), Falso);
    EXPECT_EQ(FileEsiste(cartella.File("rotto")), Falso);
    EXPECT_EQ(FileEsiste(cartella.File("manca")), Falso);
    EXPECT_EQ(FileEsiste(""), Falso);
    EXPECT_EQ(FileEsiste("/dev/null"), Falso);
}
