// Files of the program's own where names can be links, sockets or devices and files belong to
// users: what may be replaced, and what must stay.

#include "prova_FileNuovo.h"

#include "Utente.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

using namespace filenuovo;
using aiuti::Affida;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ComeNessuno;
using aiuti::InUnFiglio;
using aiuti::Nessuno;
using aiuti::Riuscito;
using aiuti::SonoRadice;

namespace fs = std::filesystem;

namespace {

constexpr const char* Estraneo = "appartiene a un altro utente";

mode_t Permessi(const fs::path& percorso)
{
    struct stat voce = {};
    EXPECT_EQ(::lstat(percorso.c_str(), &voce), 0) << percorso;
    return voce.st_mode & 0777U;
}

} // namespace

TEST(FileNuovo, SostituisceUnFileProprioInSolaLettura)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "un testo vecchio e molto piu lungo");
    fs::permissions(cartella.File("f"), fs::perms::owner_read);
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"f"}));
}

TEST(FileNuovo, AlPostoDiUnCollegamentoUnFileVero)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("bersaglio"), "prezioso");
    fs::create_directory(cartella.File("altra"));
    for (const char* bersaglio : {"bersaglio", "nulla", "altra", "/dev/null", "f"}) {
        fs::remove(cartella.File("f"));
        fs::create_symlink(bersaglio, cartella.File("f"));
        Sostituisci(cartella.File("f"));
        EXPECT_EQ(Tipo(cartella.File("f")), fs::file_type::regular) << bersaglio;
        EXPECT_EQ(Byte(cartella.File("f")), "nuovo") << bersaglio;
    }
    EXPECT_EQ(Byte(cartella.File("bersaglio")), "prezioso");
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"altra", "bersaglio", "f"}));
    EXPECT_EQ(Tipo("/dev/null"), fs::file_type::character);
}

TEST(FileNuovo, UnaFifoRestaENonFermaNessuno)
{
    const CartellaDiProva cartella;
    ASSERT_EQ(::mkfifo(cartella.File("f").c_str(), 0600), 0);
    Resta(cartella.File("f"), NumeroErrore::AccessoAlFile, "non è un file ordinario");
}

TEST(FileNuovo, UnaPresaResta)
{
    const CartellaDiProva cartella;
    const std::string nome = cartella.Nome() + "f";
    sockaddr_un indirizzo = {};
    indirizzo.sun_family = AF_UNIX;
    ASSERT_LT(nome.size(), sizeof indirizzo.sun_path);
    nome.copy(indirizzo.sun_path, nome.size());
    const int presa = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(::bind(presa, reinterpret_cast<sockaddr*>(&indirizzo), sizeof indirizzo), 0);
    Resta(nome, NumeroErrore::AccessoAlFile, "non è un file ordinario");
    ::close(presa);
}

TEST(FileNuovo, UnDispositivoResta)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root makes devices";
    const CartellaDiProva cartella;
    const dev_t nullo = ::makedev(1, 3);
    if (::mknod(cartella.File("c").c_str(), S_IFCHR | 0600, nullo) != 0 ||
        ::mknod(cartella.File("b").c_str(), S_IFBLK | 0600, ::makedev(7, 250)) != 0) {
        GTEST_SKIP() << "no devices here";
    }
    Resta(cartella.File("c"), NumeroErrore::AccessoAlFile, "non è un file ordinario");
    Resta(cartella.File("b"), NumeroErrore::AccessoAlFile, "non è un file ordinario");
}

TEST(FileNuovo, IlFileDiUnAltroUtenteRestaAnchePerRoot)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root gives files away";
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "altrui");
    Affida(cartella.File("f"), Nessuno);
    Resta(cartella.File("f"), NumeroErrore::PermessoNegato, Estraneo);
    EXPECT_EQ(Byte(cartella.File("f")), "altrui");
}

TEST(FileNuovo, IlFileDiUnAltroUtenteRestaPerChiunque)
{
    EXPECT_EQ(ComeNessuno([] {
                  const std::string estraneo = "/etc/passwd";
                  ASSERT_NE(aiuti::Padrone(estraneo), ::geteuid());
                  Resta(estraneo, NumeroErrore::PermessoNegato, Estraneo);
              }),
              Riuscito);
}

TEST(FileNuovo, IlCollegamentoDiUnAltroUtenteRestaAnchePerRoot)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root gives files away";
    const CartellaDiProva cartella;
    Scrivi(cartella.File("mio"), "prezioso");
    fs::create_symlink("mio", cartella.File("f"));
    Affida(cartella.File("f"), Nessuno);
    Resta(cartella.File("f"), NumeroErrore::PermessoNegato, Estraneo);
    EXPECT_EQ(Byte(cartella.File("mio")), "prezioso");
}

TEST(FileNuovo, UnCollegamentoProprioAUnFileAltruiSiSostituisce)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root gives files away";
    const CartellaDiProva cartella;
    Scrivi(cartella.File("altrui"), "prezioso");
    Affida(cartella.File("altrui"), Nessuno);
    fs::create_symlink("altrui", cartella.File("f"));
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("altrui")), "prezioso");
    EXPECT_EQ(Tipo(cartella.File("f")), fs::file_type::regular);
}

TEST(FileNuovo, InUnaCartellaDiTuttiSiToccaSoloIlProprio)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root makes files of two users";
    const CartellaDiProva cartella;
    for (const unsigned modo : {01777U, 0777U}) {
        ASSERT_EQ(::chmod(cartella.Nome().c_str(), modo), 0);
        Scrivi(cartella.File("altrui"), "altrui");
        fs::permissions(cartella.File("altrui"), fs::perms(0666));
        fs::create_symlink("altrui", cartella.File("legame"));
        Scrivi(cartella.File("mio"), "mio");
        Affida(cartella.File("mio"), Nessuno);
        EXPECT_EQ(ComeNessuno([&] {
                      Resta(cartella.File("altrui"), NumeroErrore::PermessoNegato, Estraneo);
                      Resta(cartella.File("legame"), NumeroErrore::PermessoNegato, Estraneo);
                      Sostituisci(cartella.File("mio"));
                      Sostituisci(cartella.File("nuovo"));
                  }),
                  Riuscito)
            << modo;
        EXPECT_EQ(Byte(cartella.File("altrui")), "altrui");
        EXPECT_EQ(Byte(cartella.File("mio")), "nuovo");
        EXPECT_EQ(aiuti::Padrone(cartella.File("nuovo")), Nessuno);
        for (const auto& nome : cartella.Contenuto()) fs::remove(cartella.File(nome));
    }
}

TEST(FileNuovo, InUnaCartellaInSolaLetturaPermessoNegato)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    if (SonoRadice()) {
        Affida(cartella.File("f"), Nessuno);
        Affida(cartella.Nome(), Nessuno);
    }
    fs::permissions(cartella.Nome(), fs::perms(0555));
    EXPECT_EQ(ComeNessuno([&] {
                  ASSERT_EQ(Byte(cartella.File("f")), "vecchio"); // the way there is free
                  ASSERT_EQ(::access(cartella.Nome().c_str(), W_OK), -1);
                  Resta(cartella.File("f"), NumeroErrore::PermessoNegato, "permesso negato");
                  const auto errore = ErroreCreando(cartella.Nome() + "altro");
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->Numero(), NumeroErrore::PermessoNegato);
                  EXPECT_EQ(errore->Motivo(), "permesso negato");
                  EXPECT_EQ(errore->File(), cartella.Nome() + "altro");
              }),
              Riuscito);
    fs::permissions(cartella.Nome(), fs::perms(0755));
    EXPECT_EQ(Byte(cartella.File("f")), "vecchio");
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"f"}));
}

TEST(FileNuovo, UnPercorsoCheNonPortaANullaEUnErrore)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "x");
    const auto motivo = [&](const std::string& nome) {
        const auto errore = ErroreCreando(cartella.Nome() + nome);
        return errore ? errore->Motivo() : "";
    };
    EXPECT_EQ(motivo("assente/f"), "file o cartella inesistente");
    EXPECT_EQ(motivo("f/g"), "una parte del percorso non è una cartella");
    EXPECT_EQ(motivo(std::string(300, 'x')), "il nome è troppo lungo");
    EXPECT_TRUE(ErroreCreando(""));
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"f"}));
}

TEST(FileNuovo, IPermessiSeguonoLaMascheraDellUtente)
{
    const CartellaDiProva cartella;
    EXPECT_EQ(InUnFiglio([&] {
                  for (const mode_t maschera : {0077U, 0022U, 0002U, 0U}) {
                      ::umask(maschera);
                      Scrivi(cartella.File("f"), "vecchio");
                      fs::permissions(cartella.File("f"), fs::perms(0640));
                      Sostituisci(cartella.File("f"));
                      EXPECT_EQ(Permessi(cartella.File("f")), 0666U & ~maschera) << maschera;
                  }
              }),
              Riuscito);
}
