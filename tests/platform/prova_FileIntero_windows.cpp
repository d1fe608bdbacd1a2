// Files that appear whole, with what only this system knows: attributes, and openings that do not
// share.

#include "prova_FileIntero.h"

#include "LettoreDiFile.h"

#include <filesystem>
#include <string>

#include <windows.h>

using namespace fileintero;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

namespace fs = std::filesystem;

namespace {

void Attributi(const fs::path& percorso, DWORD attributi)
{
    EXPECT_NE(SetFileAttributesW(percorso.c_str(), attributi), 0) << percorso;
}

// The old file stays, and nothing else.
void Resta(const CartellaDiProva& cartella)
{
    const auto errore = ErroreDi([&] { Sostituisci(cartella.File("f"), {"nuovo"}); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Numero(), NumeroErrore::PermessoNegato);
    EXPECT_EQ(errore->File(), cartella.File("f").string());
    EXPECT_EQ(cartella.Contenuto(), (Nomi{"f"}));
}

} // namespace

TEST(FileIntero, UnFileInSolaLetturaResta)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    Attributi(cartella.File("f"), FILE_ATTRIBUTE_READONLY);
    Resta(cartella);
    Attributi(cartella.File("f"), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
}

TEST(FileIntero, UnFileTenutoDaAltriResta)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    {
        const aiuti::LettoreDiFile tenuto(cartella.File("f"));
        Resta(cartella);
    }
    Sostituisci(cartella.File("f"), {"nuovo"});
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
}

TEST(FileIntero, UnIncompiutoInSolaLetturaONascostoDalSistemaResta)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File(NomeIncompiuto(0)), "altrui");
    Attributi(cartella.File(NomeIncompiuto(0)), FILE_ATTRIBUTE_READONLY);
    Scrivi(cartella.File(NomeIncompiuto(1)), "altrui");
    Attributi(cartella.File(NomeIncompiuto(1)), FILE_ATTRIBUTE_SYSTEM);
    Sostituisci(cartella.File("f"), {"nuovo"});
    EXPECT_EQ(cartella.Contenuto(), (Nomi{NomeIncompiuto(0), NomeIncompiuto(1), "f"}));
    for (const int numero : {0, 1}) {
        Attributi(cartella.File(NomeIncompiuto(numero)), FILE_ATTRIBUTE_NORMAL);
    }
}
