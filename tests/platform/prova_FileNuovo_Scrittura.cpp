// Writing into files of the program's own: whole blocks, closing, opening again, and the end.

#include "prova_FileNuovo.h"

#include <cerrno>
#include <string>

using namespace filenuovo;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;

// ---- Writing ---------------------------------------------------------------------------------

TEST(FileNuovo, ScriveIBlocchiUnoDopoLAltro)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    EXPECT_EQ(file.Percorso(), cartella.Nome() + "f");
    file.Scrivi("uno");
    file.Scrivi("");
    file.Scrivi(std::string("\0\xFF\r\n", 4));
    EXPECT_EQ(Byte(cartella.File("f")), std::string("uno\0\xFF\r\n", 7));
}

TEST(FileNuovo, UnBloccoETuttoONiente)
{
    // Ten bytes in pieces of three: four writes, of which each one fails in its turn.
    for (int quale = 1; quale <= 4; ++quale) {
        for (const int codice : {ENOSPC, EIO, 0}) {
            const CartellaDiProva cartella;
            aiuti::ScrittureGuaste scritture;
            FileNuovo file(cartella.Nome() + "f");
            file.Scrivi("intero");
            scritture.Spezza(3);
            scritture.Guasta(1 + quale, codice);
            const auto errore = ErroreDi([&] { file.Scrivi("0123456789"); });
            ASSERT_TRUE(errore) << quale;
            EXPECT_EQ(errore->File(), cartella.Nome() + "f");
            EXPECT_EQ(scritture.Scritture(), 1 + quale); // no second try
            EXPECT_EQ(Byte(cartella.File("f")), "intero") << quale;
        }
    }
}

TEST(FileNuovo, DopoUnBloccoFallitoIlSuccessivoSegueSubito)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("intero");
    scritture.Spezza(3);
    scritture.Guasta(3, ENOSPC);
    EXPECT_TRUE(ErroreDi([&] { file.Scrivi("0123456789"); }));
    file.Scrivi(" poi");
    EXPECT_EQ(Byte(cartella.File("f")), "intero poi");
}

TEST(FileNuovo, AncheDopoUnaRiaperturaUnBloccoETuttoONiente)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("intero");
    file.Chiudi();
    file.Riapri();
    scritture.Spezza(3);
    scritture.Guasta(3, ENOSPC, aiuti::Durata::DaAllora);
    EXPECT_TRUE(ErroreDi([&] { file.Scrivi("0123456789"); }));
    EXPECT_EQ(scritture.Byte(), 9U);
    EXPECT_EQ(Byte(cartella.File("f")), "intero");
}

TEST(FileNuovo, ScrittureCorteEInterrotteVannoAvanti)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    scritture.Spezza(3);
    scritture.Interrompi();
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("0123456789");
    EXPECT_EQ(scritture.Scritture(), 8); // four pieces, each interrupted once
    EXPECT_EQ(Byte(cartella.File("f")), "0123456789");
}

TEST(FileNuovo, DaChiusoNonSiScrive)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    file.Chiudi();
    const auto errore = ErroreDi([&] { file.Scrivi("x"); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "il file non è aperto");
}

// ---- Closing and opening again ---------------------------------------------------------------

TEST(FileNuovo, UnaChiusuraFallitaSiDice)
{
    for (const int codice : {EIO, ENOSPC}) {
        const CartellaDiProva cartella;
        aiuti::ScrittureGuaste scritture;
        scritture.GuastaChiusura(1, codice);
        FileNuovo file(cartella.Nome() + "f");
        file.Scrivi("x");
        const auto errore = ErroreDi([&] { file.Chiudi(); });
        ASSERT_TRUE(errore);
        EXPECT_EQ(errore->File(), cartella.Nome() + "f");
        EXPECT_FALSE(ErroreDi([&] { file.Chiudi(); })); // it is closed now
        EXPECT_EQ(scritture.Chiusure(), 1);
    }
}

TEST(FileNuovo, UnaChiusuraInterrottaECompiutaENonSiRipete)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    scritture.GuastaChiusura(1, EINTR);
    FileNuovo file(cartella.Nome() + "f");
    EXPECT_FALSE(ErroreDi([&] { file.Chiudi(); }));
    EXPECT_EQ(scritture.Chiusure(), 1);
}

TEST(FileNuovo, RiapertoAggiungeInFondo)
{
    const CartellaDiProva cartella;
    FileNuovo file(cartella.Nome() + "f");
    file.Scrivi("uno");
    file.Chiudi();
    for (const char* testo : {" due", " tre"}) {
        file.Riapri();
        file.Scrivi(testo);
        file.Chiudi();
    }
    EXPECT_EQ(Byte(cartella.File("f")), "uno due tre");
}

// ---- The end ---------------------------------------------------------------------------------

TEST(FileNuovo, AllaFineSiToglieSeNonSiConserva)
{
    const CartellaDiProva cartella;
    {
        FileNuovo aperto(cartella.Nome() + "aperto");
        aperto.Scrivi("x");
        FileNuovo chiuso(cartella.Nome() + "chiuso");
        chiuso.Chiudi();
        FileNuovo conservato(cartella.Nome() + "conservato");
        conservato.Scrivi("x");
        conservato.Conserva();
        EXPECT_EQ(cartella.Contenuto().size(), 3U);
    }
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"conservato"}));
    EXPECT_EQ(Byte(cartella.File("conservato")), "x");
}

TEST(FileNuovo, AllaFineUnaChiusuraFallitaNonCambiaNulla)
{
    const CartellaDiProva cartella;
    aiuti::ScrittureGuaste scritture;
    scritture.GuastaChiusura(1, EIO);
    {
        const FileNuovo file(cartella.Nome() + "f");
    }
    EXPECT_EQ(scritture.Chiusure(), 1);
    EXPECT_TRUE(cartella.Contenuto().empty());
}
