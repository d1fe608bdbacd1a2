// Files of the program's own: what may be replaced, and what must stay.

#include "FileNuovo.h"

#include "Aiuti.h"
#include "Scritture.h"
#include "Utente.h"

#include <gtest/gtest.h>

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

using aiuti::Affida;
using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ComeNessuno;
using aiuti::ErroreDi;
using aiuti::InUnFiglio;
using aiuti::Nessuno;
using aiuti::Riuscito;
using aiuti::SonoRadice;

namespace fs = std::filesystem;

namespace {

void Scrivi(const fs::path& percorso, const std::string& testo)
{
    std::ofstream file(percorso, std::ios::binary);
    file << testo;
    EXPECT_TRUE(file.flush()) << percorso;
}

// What stands under a name, without following it.
fs::file_type Tipo(const fs::path& percorso)
{
    return fs::symlink_status(percorso).type();
}

std::optional<ErroreRuntime> ErroreCreando(const std::string& percorso)
{
    return ErroreDi([&] { const FileNuovo file(percorso); });
}

std::optional<ErroreRuntime> ErroreTogliendo(const std::string& percorso)
{
    return ErroreDi([&] { TogliFile(percorso); });
}

// Neither removal nor creation touches what stands there; both say why.
void Resta(const fs::path& percorso, NumeroErrore numero, const std::string& motivo)
{
    const auto prima = Tipo(percorso);
    for (const auto& errore : {ErroreCreando(percorso), ErroreTogliendo(percorso)}) {
        ASSERT_TRUE(errore) << percorso;
        EXPECT_EQ(errore->Numero(), numero) << percorso;
        EXPECT_EQ(errore->Motivo(), motivo) << percorso;
        EXPECT_EQ(errore->File(), percorso.string());
    }
    EXPECT_EQ(Tipo(percorso), prima) << percorso;
}

constexpr const char* Estraneo = "appartiene a un altro utente";

// Replaces and keeps a file of one short text.
void Sostituisci(const fs::path& percorso)
{
    FileNuovo file(percorso);
    file.Scrivi("nuovo");
    file.Chiudi();
    file.Conserva();
}

mode_t Permessi(const fs::path& percorso)
{
    struct stat voce = {};
    EXPECT_EQ(::lstat(percorso.c_str(), &voce), 0) << percorso;
    return voce.st_mode & 0777U;
}

} // namespace

// ---- What may be replaced --------------------------------------------------------------------

TEST(PretendiSostituibile, NonToccaNulla)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("file")) << "x";
    fs::create_directory(cartella.File("cartella"));
    EXPECT_NO_THROW(PretendiSostituibile(cartella.File("file").string()));
    EXPECT_NO_THROW(PretendiSostituibile(cartella.File("assente").string()));
    EXPECT_THROW(PretendiSostituibile(cartella.File("cartella").string()), ErroreRuntime);
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"cartella", "file"}));
}

TEST(TogliFile, NullaDaTogliereNonEUnErrore)
{
    const CartellaDiProva cartella;
    EXPECT_FALSE(ErroreTogliendo(cartella.Nome() + "assente"));
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(TogliFile, UnFileProprioScompare)
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

TEST(FileNuovo, SostituisceUnFileProprio)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "un testo vecchio e molto piu lungo");
    fs::permissions(cartella.File("f"), fs::perms::owner_read);
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
    EXPECT_EQ(cartella.Contenuto(), (std::vector<std::string>{"f"}));
}

TEST(FileNuovo, LAltroNomeDelFileVecchioTieneIlContenuto)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "vecchio");
    fs::create_hard_link(cartella.File("f"), cartella.File("altro"));
    Sostituisci(cartella.File("f"));
    EXPECT_EQ(Byte(cartella.File("altro")), "vecchio");
    EXPECT_EQ(Byte(cartella.File("f")), "nuovo");
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

// ---- What must stay --------------------------------------------------------------------------

TEST(FileNuovo, UnaCartellaResta)
{
    const CartellaDiProva cartella;
    fs::create_directory(cartella.File("f"));
    Resta(cartella.File("f"), NumeroErrore::AccessoAlFile, "è una cartella");
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

// ---- Permissions -----------------------------------------------------------------------------

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

// ---- Questions about files -------------------------------------------------------------------

TEST(FileOrdinario, SoloFileVisibiliCollegamentiCompresi)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("f"), "");
    Scrivi(cartella.File(".nascosto"), "");
    fs::create_symlink("f", cartella.File("legame"));
    fs::create_symlink("f", cartella.File(".legame"));
    fs::create_symlink("nulla", cartella.File("penzolante"));
    fs::create_directory_symlink(".", cartella.File("qui"));
    fs::create_directory(cartella.File("cartella"));
    ASSERT_EQ(::mkfifo(cartella.File("fifo").c_str(), 0600), 0);
    for (const char* nome : {"f", "legame", "cartella/../f"}) {
        EXPECT_TRUE(FileOrdinario(cartella.Nome() + nome)) << nome;
    }
    for (const char* nome : {".nascosto", ".legame", "penzolante", "qui", "cartella", "fifo",
                             "assente", "f/x", ".", ""}) {
        EXPECT_FALSE(FileOrdinario(cartella.Nome() + nome)) << nome;
    }
    EXPECT_FALSE(FileOrdinario(""));
    EXPECT_FALSE(FileOrdinario("/dev/null"));
}

TEST(StessoFile, DueNomiDiUnFile)
{
    const CartellaDiProva cartella;
    Scrivi(cartella.File("a"), "x");
    Scrivi(cartella.File("b"), "x");
    fs::create_hard_link(cartella.File("a"), cartella.File("duro"));
    fs::create_symlink("a", cartella.File("legame"));
    const std::string a = cartella.Nome() + "a";
    EXPECT_TRUE(StessoFile(a, a));
    EXPECT_TRUE(StessoFile(a, cartella.Nome() + "./a"));
    EXPECT_TRUE(StessoFile(a, cartella.Nome() + "duro"));
    EXPECT_TRUE(StessoFile(cartella.Nome() + "legame", a));
    EXPECT_FALSE(StessoFile(a, cartella.Nome() + "b"));
    EXPECT_FALSE(StessoFile(a, cartella.Nome() + "assente"));
    EXPECT_FALSE(StessoFile(cartella.Nome() + "assente", cartella.Nome() + "assente"));
}
