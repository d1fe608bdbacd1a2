// The same where files have attributes and names no case.

#include "FileSulDisco.h"

#include "prova_FileNuovo.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <windows.h>

using namespace filenuovo;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

namespace {

void Attributi(const fs::path& percorso, DWORD attributi)
{
    EXPECT_NE(SetFileAttributesW(percorso.c_str(), attributi), 0) << percorso;
}

} // namespace

TEST(FileOrdinario, FileNascostiEDiSistemaNo)
{
    const CartellaDiProva cartella;
    for (const char* nome : {"visto", "nascosto", "sistema"}) Scrivi(cartella.File(nome), "");
    Attributi(cartella.File("nascosto"), FILE_ATTRIBUTE_HIDDEN);
    Attributi(cartella.File("sistema"), FILE_ATTRIBUTE_SYSTEM);
    EXPECT_TRUE(FileOrdinario(cartella.Nome() + "visto"));
    EXPECT_FALSE(FileOrdinario(cartella.Nome() + "nascosto"));
    EXPECT_FALSE(FileOrdinario(cartella.Nome() + "sistema"));
}

TEST(VoceTrovata, QualunqueVoceDellaCartella)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    std::ofstream(cartella.File("nascosto")) << "x";
    Attributi(cartella.File("nascosto"), FILE_ATTRIBUTE_HIDDEN);
    fs::create_directory(cartella.File("cartella"));
    for (const char* nome : {"file", "nascosto", "cartella", "File"}) {
        EXPECT_TRUE(VoceTrovata(cartella.Nome() + nome)) << nome;
    }
}

TEST(VoceTrovata, CioCheMancaNo)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    for (const char* nome : {"nulla", "nulla/file", "file/x"}) {
        EXPECT_FALSE(VoceTrovata(cartella.Nome() + nome)) << nome;
    }
    EXPECT_FALSE(VoceTrovata(""));
    EXPECT_FALSE(VoceTrovata(cartella.Nome() + std::string(300, 'x')));
}
