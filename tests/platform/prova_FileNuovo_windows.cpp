// Files of the program's own, with what only this system knows: attributes, and openings that do
// not share.

#include "prova_FileNuovo.h"

#include "FileConteso.h"
#include "LettoreDiFile.h"

#include <filesystem>
#include <string>
#include <vector>

#include <windows.h>

using namespace filenuovo;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

namespace fs = std::filesystem;

namespace {

void Attributi(const fs::path& percorso, DWORD attributi)
{
    EXPECT_NE(SetFileAttributesW(percorso.c_str(), attributi), 0) << percorso;
}

} // namespace

TEST(FileNuovo, UnFileInSolaLetturaResta)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    Attributi(cartella.File("f"), FILE_ATTRIBUTE_READONLY);
    Resta(cartella.File("f"), NumeroErrore::PermessoNegato, "permesso negato");
    EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
    Attributi(cartella.File("f"), FILE_ATTRIBUTE_NORMAL);
}

TEST(FileNuovo, UnFileTenutoDaAltriResta)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    {
        const aiuti::LettoreDiFile tenuto(cartella.File("f"));
        Resta(cartella.File("f"), NumeroErrore::PermessoNegato, "permesso negato");
    }
    EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
}

TEST(FileNuovo, UnPercorsoCheNonPortaANullaEUnErrore)
{
    const CartellaDiProva cartella;
    const auto errore = ErroreCreando(cartella.Nome() + "assente/f");
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "file o cartella inesistente");
    EXPECT_TRUE(ErroreCreando(cartella.Nome() + std::string(300, 'x')));
    EXPECT_TRUE(ErroreCreando(cartella.Nome() + "a?b"));
    EXPECT_TRUE(ErroreCreando(""));
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(FileNuovo, MentreEApertoNessunoLoToglieOLoScrive)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("uno");
    EXPECT_EQ(Byte(cartella.File("f")), "uno"); // but it may be read
    std::error_code errore;
    EXPECT_FALSE(fs::remove(cartella.File("f"), errore));
    EXPECT_TRUE(errore);
    std::ofstream altro(cartella.File("f"), std::ios::app);
    EXPECT_FALSE(altro.is_open());
}

TEST(FileNuovo, DaChiusoNonLoTieneNessuno)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    EXPECT_TRUE(FileOccupato(cartella.Nome() + "f"));
    file.Chiudi();
    EXPECT_FALSE(FileOccupato(cartella.Nome() + "f"));
}

TEST(FileNuovo, RiaprireRifiutaCioCheNonEPiuIlSuoFile)
{
    const CartellaDiProva cartella;
    const fs::path f = cartella.File("f");
    const fs::path suo = cartella.File("suo");
    FileNuovo file(f.string());
    file.Scrivi("uno");
    file.Chiudi();
    fs::rename(f, suo);
    const auto motivo = [&file] {
        const auto errore = ErroreDi([&file] { file.Riapri(); });
        return errore ? errore->Motivo() : "";
    };
    EXPECT_EQ(motivo(), "file o cartella inesistente");

    Scrivi(f, "altrui");
    EXPECT_EQ(motivo(), "un altro programma lo ha sostituito");
    EXPECT_FALSE(FileOccupato(f.string())); // nothing is left open
    EXPECT_EQ(Byte(f), "altrui");
    fs::remove(f);

    fs::create_directory(f);
    EXPECT_EQ(motivo(), "è una cartella");
    fs::remove(f);

    fs::rename(suo, f); // its own again
    EXPECT_EQ(motivo(), "");
    file.Scrivi(" due");
    EXPECT_EQ(Byte(f), "uno due");
}

TEST(FileNuovo, AllaFineCioCheLoHaSostituitoResta)
{
    const CartellaDiProva cartella;
    const fs::path f = cartella.File("f");
    {
        FileNuovo file(f.string());
        file.Chiudi();
        fs::rename(f, cartella.File("suo"));
        Scrivi(f, "altrui");
    }
    EXPECT_EQ(Byte(f), "altrui");
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"f", "suo"}));
}
