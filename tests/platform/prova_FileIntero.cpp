// Files that stand under their name only when they are whole: what is there before, in between and
// in the end, on every system.

#include "FileIntero.h"

#include "Aiuti.h"
#include "FileNuovo.h"
#include "Scritture.h"
#include "prova_FileIntero.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

using namespace fileintero;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;
using aiuti::ScrittureGuaste;

namespace fs = std::filesystem;

TEST(FileIntero, FinoAllaFineRestaIlVecchio)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        Scrivi(cartella.File("f"), "vecchio");
        FileIntero file(cartella.File("f").string());
        file.Scrivi("nuovo");
        EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
        file.Scrivi(" e lungo");
        file.MettiAPosto();
        EXPECT_EQ(Byte(cartella.File("f")), "nuovo e lungo");
        EXPECT_EQ(cartella.Contenuto(), (Nomi{"f"}));
    }
}

TEST(FileIntero, SenzaUnVecchioNonCENullaFinoAllaFine)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        FileIntero file(cartella.File("f").string());
        file.Scrivi("nuovo");
        EXPECT_FALSE(fs::exists(cartella.File("f")));
        file.MettiAPosto();
        EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
    }
}

TEST(FileIntero, AbbandonatoNonLasciaTraccia)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        Scrivi(cartella.File("f"), "vecchio");
        {
            FileIntero file(cartella.File("f").string());
            file.Scrivi("nuovo");
        }
        EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
        EXPECT_EQ(cartella.Contenuto(), (Nomi{"f"}));
    }
}

TEST(FileIntero, OgniScritturaEChiusuraCheFallisceLasciaIlVecchio)
{
    for (const bool anonimo : Modi) {
        for (const int quale : {1, 2, 3}) {
            const Modo modo(anonimo);
            const CartellaDiProva cartella;
            Scrivi(cartella.File("f"), "vecchio");
            ScrittureGuaste scritture;
            if (quale < 3) scritture.Guasta(quale, ENOSPC);
            else scritture.GuastaChiusura(1, ENOSPC);
            const auto errore = ErroreDi([&] { Sostituisci(cartella.File("f"), {"uno", "due"}); });
            ASSERT_TRUE(errore) << quale;
            EXPECT_EQ(errore->Numero(), NumeroErrore::DiscoPieno);
            EXPECT_EQ(errore->File(), cartella.File("f").string());
            EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
            EXPECT_EQ(cartella.Contenuto(), (Nomi{"f"}));
        }
    }
}

TEST(FileIntero, UnaCartellaRestaESiDiceSubito)
{
    const CartellaDiProva cartella;
    fs::create_directory(cartella.File("f"));
    const auto errore = ErroreDi([&] { const FileIntero file(cartella.File("f").string()); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "è una cartella");
    EXPECT_TRUE(fs::is_directory(cartella.File("f")));
    EXPECT_TRUE(ErroreDi([&] { const FileIntero file(cartella.Nome()); })); // no name at all
    EXPECT_TRUE(ErroreDi([&] { const FileIntero file(cartella.Nome() + "assente/f"); }));
}

TEST(FileIntero, UnaCartellaMessaLiNelFrattempoResta)
{
    for (const bool anonimo : Modi) {
        const Modo modo(anonimo);
        const CartellaDiProva cartella;
        {
            FileIntero file(cartella.File("f").string());
            file.Scrivi("nuovo");
            fs::create_directory(cartella.File("f"));
            const auto errore = ErroreDi([&] { file.MettiAPosto(); });
            ASSERT_TRUE(errore);
            EXPECT_EQ(errore->Motivo(), "è una cartella");
        }
        EXPECT_TRUE(fs::is_directory(cartella.File("f")));
        EXPECT_EQ(cartella.Contenuto(), (Nomi{"f"}));
    }
}

TEST(FileIntero, IlSeguenteToglieCioCheUnUccisoHaLasciato)
{
    const CartellaDiProva cartella;
    for (const int numero : {0, 7, 99}) Scrivi(cartella.File(NomeIncompiuto(numero)), "a metà");
    Sostituisci(cartella.File("f"), {"nuovo"});
    EXPECT_EQ(cartella.Contenuto(), (Nomi{"f"}));
}

TEST(FileIntero, CioCheSomigliaAUnIncompiutoResta)
{
    const CartellaDiProva cartella;
    Nomi nomi = {".taglie.7.incompiuto", ".taglie.007.incompiuto", ".taglie.07.incompiuto~",
                 ".taglie.07.completo",  "taglie.07.incompiuto",   ".taglie.100.incompiuto",
                 ".taglie..incompiuto",  ".taglie.0x.incompiuto"};
    for (const auto& nome : nomi) {
        EXPECT_FALSE(NomeRiservato(nome)) << nome;
        Scrivi(cartella.File(nome), "altrui");
    }
    Sostituisci(cartella.File("f"), {"nuovo"});
    nomi.emplace_back("f");
    std::sort(nomi.begin(), nomi.end());
    EXPECT_EQ(cartella.Contenuto(), nomi);
}

TEST(FileIntero, QuelloDiUnaCorsaVivaResta)
{
    const Modo modo(false);
    const CartellaDiProva cartella;
    FileIntero lungo(cartella.File("f").string());
    lungo.Scrivi("lungo");
    Sostituisci(cartella.File("g"), {"breve"});
    EXPECT_EQ(cartella.Contenuto(), (Nomi{NomeIncompiuto(0), "g"}));
    lungo.MettiAPosto();
    EXPECT_EQ(Byte(cartella.File("f")), "lungo");
    EXPECT_EQ(cartella.Contenuto(), (Nomi{"f", "g"}));
}

TEST(NomeRiservato, DiceQualiNomiNonSonoDiNessunReport)
{
    EXPECT_EQ(NomeIncompiuto(7), ".taglie.07.incompiuto");
    EXPECT_EQ(NomeIncompiuto(99), ".taglie.99.incompiuto");
    for (const auto* nome : {".taglie.00.incompiuto", "a/b/.taglie.42.incompiuto"}) {
        EXPECT_TRUE(NomeRiservato(nome)) << nome;
    }
    EXPECT_FALSE(NomeRiservato(".taglie.42.incompiuto/f"));
    EXPECT_FALSE(NomeRiservato(""));
}
