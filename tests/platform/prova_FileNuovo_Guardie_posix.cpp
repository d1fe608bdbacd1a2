// The guards of each opening, one by one: what somebody plants at the last moment stays.

#include "prova_FileNuovo.h"

#include "Aperture.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <sys/stat.h>

using namespace filenuovo;
using aiuti::Byte;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

TEST(FileNuovo, CioCheSiMetteAlSuoPostoAllUltimoMomentoResta)
{
    const CartellaDiProva cartella;
    const auto nome = cartella.File("f");
    Scrivi(cartella.File("altrui"), "prezioso");
    const std::vector<std::function<void()>> gesti = {
        [&] { Scrivi(nome, "prezioso"); },
        [&] { fs::create_symlink("altrui", nome); },
        [&] { fs::create_hard_link(cartella.File("altrui"), nome); },
        [&] { fs::create_symlink("assente", nome); },
        [&] { ASSERT_EQ(::mkfifo(nome.c_str(), 0600), 0); },
        [&] { fs::create_directory(nome); },
    };
    for (std::size_t i = 0; i < gesti.size(); ++i) {
        const aiuti::PrimaDellApertura gara(gesti[i]);
        const auto errore = ErroreCreando(nome.string());
        ASSERT_TRUE(aiuti::PrimaDellApertura::Avvenuto());
        ASSERT_TRUE(errore) << i;
        EXPECT_EQ(errore->Numero(), NumeroErrore::AccessoAlFile) << i;
        EXPECT_EQ(errore->Motivo(), "nel frattempo lo ha creato un altro programma") << i;
        EXPECT_NE(Tipo(nome), fs::file_type::not_found) << i;
        if (i < 3) {
            EXPECT_EQ(Byte(nome), "prezioso") << i;
        }
        fs::remove(nome);
    }
    EXPECT_EQ(Byte(cartella.File("altrui")), "prezioso");
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"altrui"}));
}
