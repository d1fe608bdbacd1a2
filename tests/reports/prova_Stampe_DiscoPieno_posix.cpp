// Reports on a device that is really full.

#include "prova_Stampe_Guasti.h"

#include "Utente.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace guasti;
using aiuti::Dorato;
using aiuti::InUnFiglio;
using aiuti::Riuscito;

namespace {

constexpr Ragione Limite = {EFBIG, NumeroErrore::DiscoPieno,
                            "superata la dimensione massima di un file"};

// Mounts a small file system over a folder, for this process alone.
void MontaPiccolo(const std::string& cartella)
{
    if (aiuti::SonoRadice()) {
        if (::unshare(CLONE_NEWNS) != 0) aiuti::EsciImpossibile();
    } else {
        const std::string utente = std::to_string(::geteuid());
        const std::string gruppo = std::to_string(::getegid());
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) aiuti::EsciImpossibile();
        Scrivi("/proc/self/setgroups", "deny");
        Scrivi("/proc/self/uid_map", utente + " " + utente + " 1\n");
        Scrivi("/proc/self/gid_map", gruppo + " " + gruppo + " 1\n");
    }
    if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", cartella.c_str(), "tmpfs", 0, "size=16k") != 0) {
        aiuti::EsciImpossibile();
    }
}

// Fills the device up, so that not one byte more goes in.
void Riempi(const std::string& percorso)
{
    const int descrittore = ::open(percorso.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    ASSERT_GE(descrittore, 0);
    const std::string blocco(1024, 'x');
    while (::write(descrittore, blocco.data(), blocco.size()) > 0) {
    }
    EXPECT_EQ(errno, ENOSPC);
    ::close(descrittore);
}

// Runs a test on a device of 16 KiB, which is mounted over the report folder.
void SulDispositivoPiccolo(const std::function<void(Prova&)>& lavoro,
                           const std::string& mazzi = "tre.mazzi")
{
    Prova prova(mazzi);
    const int esito = InUnFiglio([&] {
        MontaPiccolo(prova.Cartella.Nome());
        lavoro(prova);
    });
    if (esito == aiuti::Impossibile) GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(esito, Riuscito);
    EXPECT_TRUE(prova.Cartella.Contenuto().empty()); // it was all on the other device
}

} // namespace

TEST(DiscoPieno, IlTestoPienoTieneLeTaglieIntere)
{
    SulDispositivoPiccolo(
        [](Prova& prova) {
            Confronta(prova.Fallisce(Operazioni[0], 12), Pieno, prova.Report(Operazioni[0]));
            const auto stati = StatiInteri(Dorato("dodici.nbsp.pieno.txt"), 12);
            const std::string resto = aiuti::Byte(prova.Report(Operazioni[0]));
            constexpr std::size_t dispositivo = 16384;
            std::string atteso;
            for (const auto& stato : stati) {
                if (stato.size() <= dispositivo) atteso = stato;
            }
            EXPECT_GT(atteso.size(), stati[4].size()); // room for more than four shoes
            EXPECT_TRUE(resto == atteso) << resto.size();
        },
        "dodici.mazzi");
}

TEST(DiscoPieno, LaPaginaNonLasciaFile)
{
    SulDispositivoPiccolo([](Prova& prova) {
        Confronta(prova.Fallisce(Operazioni[2]), Pieno, prova.Report(Operazioni[2]));
        EXPECT_TRUE(prova.Cartella.Contenuto().empty());
    });
}

TEST(DiscoPieno, SuUnDispositivoGiaPienoNonRestaNulla)
{
    SulDispositivoPiccolo([](Prova& prova) {
        Riempi(prova.Cartella.Nome() + "tutto");
        for (const auto& operazione : Operazioni) {
            Confronta(prova.Fallisce(operazione), Pieno, prova.Report(operazione));
            EXPECT_EQ(prova.Cartella.Contenuto(), (std::vector<std::string>{"tutto"}))
                << operazione.Nome;
        }
    });
}

TEST(DiscoPieno, OltreIlLimiteDiUnFileLoStesso)
{
    // The limit cuts a write short first and then refuses the rest: at every kind of place.
    for (const auto& operazione : Operazioni) {
        const auto tutto = Dorato(operazione.Dorato).size();
        for (const std::size_t limite :
             {std::size_t{0}, std::size_t{1}, tutto / 3, tutto / 2, tutto - 1}) {
            Prova prova;
            const auto report = prova.Report(operazione);
            EXPECT_EQ(InUnFiglio([&] {
                          std::signal(SIGXFSZ, SIG_IGN);
                          rlimit prima = {};
                          ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &prima), 0);
                          const rlimit stretto = {limite, prima.rlim_max};
                          ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &stretto), 0);
                          const auto errore = aiuti::ErroreDi([&] { operazione.Esegui(Taglie); });
                          // Back before anything is said: standard output may be a file, too.
                          ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &prima), 0);
                          ASSERT_TRUE(errore);
                          Confronta(*errore, Limite, report);
                          EXPECT_TRUE(prova.Aperti.empty());
                      }),
                      Riuscito)
                << operazione.Nome << " " << limite;
            EXPECT_TRUE(Contenuto(report) == CioCheResta(operazione, limite))
                << operazione.Nome << " " << limite;
        }
    }
}
