// The raw data files where somebody has planted a link.

#include "Aiuti.h"
#include "ErroreRuntime.h"
#include "FileDati.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using cli::FileDati;

TEST(FileDati, UnCollegamentoERifiutatoERimane)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("altro")) << "altro";
    std::filesystem::create_symlink(cartella.File("altro"), cartella.File("freccia"));
    std::filesystem::create_symlink("/dev/null", cartella.File("nulla"));
    for (const auto* nome : {"freccia", "nulla"}) {
        try {
            FileDati dati(cartella.File(nome).string());
            FAIL() << "no error";
        } catch (const ErroreRuntime& errore) {
            EXPECT_EQ(errore.Motivo(), "è un collegamento, serve il nome di un file ordinario");
            EXPECT_EQ(errore.File(), cartella.File(nome).string());
        }
        EXPECT_TRUE(std::filesystem::is_symlink(cartella.File(nome)));
    }
    EXPECT_EQ(Byte(cartella.File("altro")), "altro");
}
