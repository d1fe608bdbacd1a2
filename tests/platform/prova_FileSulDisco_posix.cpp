// The same where names can be links and FIFOs.

#include "FileSulDisco.h"

#include "prova_FileNuovo.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <sys/stat.h>

using namespace filenuovo;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

TEST(FileOrdinario, SoloFileVisibiliCollegamentiCompresi)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "");
    Scrivi(cartella.File(".nascosto"), "");
    fs::create_symlink("f", cartella.File("legame"));
    fs::create_symlink("f", cartella.File(".legame"));
    fs::create_symlink("nulla", cartella.File("penzolante"));
    fs::create_directory_symlink(".", cartella.File("qui"));
    ASSERT_EQ(::mkfifo(cartella.File("fifo").c_str(), 0600), 0);
    EXPECT_TRUE(FileOrdinario(cartella.Nome() + "legame"));
    for (const char* nome : {".nascosto", ".legame", "penzolante", "qui", "fifo"}) {
        EXPECT_FALSE(FileOrdinario(cartella.Nome() + nome)) << nome;
    }
    EXPECT_FALSE(FileOrdinario("/dev/null"));
}

TEST(StessoFile, AncheDietroUnCollegamento)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("a"), "x");
    fs::create_symlink("a", cartella.File("legame"));
    EXPECT_TRUE(StessoFile(cartella.Nome() + "legame", cartella.Nome() + "a"));
}

TEST(VoceTrovata, QualunqueVoceDellaCartella)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    fs::create_directory(cartella.File("cartella"));
    fs::create_symlink("file", cartella.File("collegamento"));
    fs::create_symlink("nulla", cartella.File("penzolante"));
    fs::create_symlink("anello", cartella.File("anello"));
    ASSERT_EQ(::mkfifo(cartella.File("fifo").c_str(), 0600), 0);
    for (const char* nome :
         {"file", "cartella", "collegamento", "penzolante", "anello", "fifo", ""}) {
        EXPECT_TRUE(VoceTrovata(cartella.Nome() + nome)) << nome;
    }
}

TEST(VoceTrovata, CioCheMancaNo)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    for (const char* nome : {"nulla", "File", "nulla/file", "file/x"}) {
        EXPECT_FALSE(VoceTrovata(cartella.Nome() + nome)) << nome;
    }
    EXPECT_FALSE(VoceTrovata(""));
    EXPECT_FALSE(VoceTrovata(cartella.Nome() + std::string(300, 'x')));
}
