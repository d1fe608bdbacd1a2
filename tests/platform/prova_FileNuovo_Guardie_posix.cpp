// The guards of each opening, one by one: what somebody plants at the last moment stays, and a
// number that is held is that of the entry itself.

#include "prova_FileNuovo.h"

#include "Aperture.h"
#include "Utente.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace filenuovo;
using aiuti::Byte;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

namespace {

// The descriptors of this process that mean this very name.
std::vector<int> Descrittori(const fs::path& percorso)
{
    std::vector<int> trovati;
    for (const auto& voce : fs::directory_iterator("/proc/self/fd")) {
        std::error_code errore; // the listing's own is gone by then
        if (fs::read_symlink(voce.path(), errore) == percorso) {
            trovati.push_back(std::stoi(voce.path().filename().string()));
        }
    }
    return trovati;
}

} // namespace

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

TEST(Impronta, TieneLaVoceStessaENonCioACuiConduce)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("altrui"), "prezioso");
    fs::create_symlink("altrui", cartella.File("f"));
    const Impronta impronta(cartella.File("f").string());
    EXPECT_EQ(Descrittori(cartella.File("altrui")), std::vector<int>{});
    EXPECT_EQ(Descrittori(cartella.File("f")).size(), 1U);
}

TEST(Impronta, IProgrammiAvviatiNonLaEreditano)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "x");
    const Impronta impronta(cartella.File("f").string());
    const auto descrittori = Descrittori(cartella.File("f"));
    ASSERT_EQ(descrittori.size(), 1U);
    EXPECT_NE(::fcntl(descrittori.front(), F_GETFD) & FD_CLOEXEC, 0);
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
