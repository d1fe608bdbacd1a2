// Which files count as files, where attributes tell hidden ones.

#include "Aiuti.h"
#include "modCarte.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <windows.h>

using namespace modCarte;

TEST(FileEsiste, SoloFileOrdinari)
{
    const aiuti::CartellaDiProva cartella;
    const std::string nome = cartella.Nome() + "c'è.txt";
    std::ofstream(nome) << "x";
    std::filesystem::create_directory(cartella.File("cartella"));
    EXPECT_EQ(FileEsiste(nome), Vero);
    EXPECT_EQ(FileEsiste(cartella.Nome() + "cartella"), Falso);
    EXPECT_EQ(FileEsiste(cartella.Nome() + "manca"), Falso);
    EXPECT_EQ(FileEsiste(""), Falso);
    ASSERT_NE(SetFileAttributesA(nome.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
    EXPECT_EQ(FileEsiste(nome), Falso);
}
