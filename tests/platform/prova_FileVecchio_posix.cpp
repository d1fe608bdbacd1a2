// The same where names can be links and rights belong to users.

#include "prova_FileNuovo.h"

#include "Utente.h"

#include <filesystem>
#include <string>

#include <unistd.h>

using namespace filenuovo;
using aiuti::Byte;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

TEST(TogliFile, UnFileProprioScompareConQualunquePermesso)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    fs::permissions(cartella.File("f"), fs::perms::none); // its permissions do not matter
    TogliFile(cartella.Nome() + "f");
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(TogliFile, ScompareIlCollegamentoNonIlBersaglio)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("bersaglio"), "prezioso");
    fs::create_directory(cartella.File("altra"));
    Scrivi(cartella.File("altra/dentro"), "prezioso");
    for (const char* bersaglio : {"bersaglio", "nulla", "altra", "/dev/null", "f"}) {
        fs::create_symlink(bersaglio, cartella.File("f"));
        TogliFile(cartella.Nome() + "f");
        EXPECT_EQ(Tipo(cartella.File("f")), fs::file_type::not_found) << bersaglio;
    }
    EXPECT_EQ(Byte(cartella.File("bersaglio")), "prezioso");
    EXPECT_EQ(Byte(cartella.File("altra/dentro")), "prezioso");
    EXPECT_EQ(Tipo("/dev/null"), fs::file_type::character);
}

TEST(PretendiCreabile, UnaCartellaCheNonPrendeVociNo)
{
    const CartellaDiProva cartella;
    if (aiuti::SonoRadice()) aiuti::Affida(cartella.Nome(), aiuti::Nessuno);
    for (const unsigned permessi : {0300U, 0700U, 0500U, 0600U, 0100U, 0000U}) {
        fs::permissions(cartella.Nome(), fs::perms(permessi));
        const bool creabile = (permessi & 0300U) == 0300U;
        EXPECT_EQ(aiuti::ComeNessuno([&] {
                      const auto errore =
                          aiuti::ErroreDi([&] { PretendiCreabile(cartella.Nome() + "f"); });
                      EXPECT_EQ(!errore, creabile) << permessi;
                      EXPECT_TRUE(!errore || errore->Numero() == NumeroErrore::PermessoNegato);
                      EXPECT_EQ(!ErroreCreando(cartella.Nome() + "f"), creabile) << permessi;
                  }),
                  aiuti::Riuscito);
    }
    fs::permissions(cartella.Nome(), fs::perms(0700));
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(PretendiCreabile, ContanoIDirittiConCuiSiScrive)
{
    if (!aiuti::SonoRadice()) GTEST_SKIP() << "only root can act for somebody else";
    const CartellaDiProva cartella;
    fs::permissions(cartella.Nome(), fs::perms(0755));
    EXPECT_EQ(aiuti::InUnFiglio([&] {
                  PretendiCreabile(cartella.Nome() + "f");
                  ASSERT_EQ(::setegid(aiuti::Nessuno), 0);
                  ASSERT_EQ(::seteuid(aiuti::Nessuno), 0); // the real user is still root
                  EXPECT_TRUE(aiuti::ErroreDi([&] { PretendiCreabile(cartella.Nome() + "f"); }));
              }),
              aiuti::Riuscito);
}
