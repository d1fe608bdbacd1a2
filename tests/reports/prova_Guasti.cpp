// Reports whose writes and closes fail, each in its turn, and reports on a device that is full.

#include "prova_Guasti.h"

#include "Utente.h"

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace guasti;
using aiuti::Dorato;
using aiuti::Durata;
using aiuti::InUnFiglio;
using aiuti::Riuscito;
using aiuti::ScrittureGuaste;

namespace {

struct Ragione
{
    int Codice;
    NumeroErrore Numero;
    const char* Motivo;
};

constexpr Ragione Pieno = {ENOSPC, NumeroErrore::DiscoPieno, "spazio esaurito sul disco"};
constexpr Ragione Rotto = {EIO, NumeroErrore::ErroreInputOutput, "errore del dispositivo"};
constexpr Ragione Limite = {EFBIG, NumeroErrore::DiscoPieno,
                            "superata la dimensione massima di un file"};

void Confronta(const ErroreRuntime& errore, const Ragione& ragione,
               const std::filesystem::path& report)
{
    EXPECT_EQ(errore.Numero(), ragione.Numero);
    EXPECT_EQ(errore.Motivo(), ragione.Motivo);
    EXPECT_EQ(errore.File(), report.string());
}

// Writes and closes of a run that works.
struct Chiamate
{
    int scritture;
    int chiusure;
};

Chiamate InUnaProvaBuona(const Operazione& operazione, std::size_t pezzo)
{
    Prova prova;
    ScrittureGuaste scritture;
    scritture.Spezza(pezzo);
    EXPECT_TRUE(operazione.Esegui(Taglie));
    EXPECT_TRUE(aiuti::Byte(prova.Report(operazione)) == Dorato(operazione.Dorato));
    return {scritture.Scritture(), scritture.Chiusure()};
}

void GuastaUnaScrittura(const Operazione& operazione, std::size_t pezzo, int quale,
                        const Ragione& ragione, Durata durata)
{
    Prova prova;
    Scrivi(prova.Report(operazione), "vecchio");
    ScrittureGuaste scritture;
    scritture.Spezza(pezzo);
    scritture.Guasta(quale, ragione.Codice, durata);
    Confronta(prova.Fallisce(operazione), ragione, prova.Report(operazione));
    EXPECT_EQ(scritture.Scritture(), quale); // what failed is not tried again
    EXPECT_TRUE(Contenuto(prova.Report(operazione)) == CioCheResta(operazione, scritture.Byte()));
}

void GuastaOgniScrittura(const Operazione& operazione, std::size_t pezzo, int almeno)
{
    const int quante = InUnaProvaBuona(operazione, pezzo).scritture;
    EXPECT_GE(quante, almeno);
    for (int quale = 1; quale <= quante; ++quale) {
        SCOPED_TRACE(std::string(operazione.Nome) + " " + std::to_string(quale));
        for (const auto& ragione : {Pieno, Rotto}) {
            for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
                GuastaUnaScrittura(operazione, pezzo, quale, ragione, durata);
            }
        }
    }
}

void GuastaUnaChiusura(const Operazione& operazione, int quale, const Ragione& ragione,
                       Durata durata)
{
    Prova prova;
    Scrivi(prova.Report(operazione), "vecchio");
    ScrittureGuaste scritture;
    scritture.GuastaChiusura(quale, ragione.Codice, durata);
    Confronta(prova.Fallisce(operazione), ragione, prova.Report(operazione));
    EXPECT_EQ(scritture.Chiusure(), quale);
    // The title alone is no report yet; after it the shoe of this close is in the file.
    const auto resto = quale == 1 ? std::nullopt : CioCheResta(operazione, scritture.Byte());
    EXPECT_TRUE(Contenuto(prova.Report(operazione)) == resto);
}

// As large as any block: a write a block.
constexpr std::size_t Intero = 1U << 20;

} // namespace

TEST(Guasti, OgniScritturaCheFallisceEUnErroreSolo)
{
    GuastaOgniScrittura(Operazioni[0], Intero, 5); // title, three shoes, general statistics
    GuastaOgniScrittura(Operazioni[1], Intero, 1);
    GuastaOgniScrittura(Operazioni[2], Intero, 5);
    GuastaOgniScrittura(Operazioni[3], Intero, 2);
    GuastaOgniScrittura(Operazioni[4], Intero, 8);
    GuastaOgniScrittura(Operazioni[5], Intero, 1);
}

TEST(Guasti, AncheSeIlDiscoSiRiempieAMetaDiUnBlocco)
{
    GuastaOgniScrittura(Operazioni[0], 500, 18);
    GuastaOgniScrittura(Operazioni[1], 100, 5);
    GuastaOgniScrittura(Operazioni[2], 4096, 52);
    GuastaOgniScrittura(Operazioni[3], 500, 7);
    GuastaOgniScrittura(Operazioni[4], 20000, 28);
    GuastaOgniScrittura(Operazioni[5], 500, 15);
}

TEST(Guasti, OgniChiusuraCheFallisceEUnErroreSolo)
{
    for (const auto& operazione : Operazioni) {
        const int quante = InUnaProvaBuona(operazione, Intero).chiusure;
        EXPECT_EQ(quante, operazione.TieneLeTaglie ? 5 : 1) << operazione.Nome;
        for (int quale = 1; quale <= quante; ++quale) {
            SCOPED_TRACE(std::string(operazione.Nome) + " " + std::to_string(quale));
            for (const auto& ragione : {Pieno, Rotto}) {
                for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
                    GuastaUnaChiusura(operazione, quale, ragione, durata);
                }
            }
        }
    }
}

TEST(Guasti, ScrittureCorteEInterrotteNonCambianoIlReport)
{
    for (const auto& operazione : Operazioni) {
        for (const std::size_t pezzo : {std::size_t{1}, std::size_t{7}, std::size_t{1000}}) {
            Prova prova;
            ScrittureGuaste scritture;
            scritture.Spezza(pezzo);
            scritture.Interrompi(); // closes too
            EXPECT_TRUE(operazione.Esegui(Taglie));
            EXPECT_TRUE(aiuti::Byte(prova.Report(operazione)) == Dorato(operazione.Dorato))
                << operazione.Nome << " " << pezzo;
            EXPECT_EQ(prova.Aperti.size(), 1U);
        }
    }
}

TEST(Guasti, UnaScritturaDiZeroByteNonGiraSenzaFine)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        ScrittureGuaste scritture;
        scritture.Guasta(1, 0, Durata::DaAllora);
        Confronta(prova.Fallisce(operazione), Rotto, prova.Report(operazione));
        EXPECT_EQ(scritture.Scritture(), 1);
        EXPECT_TRUE(prova.Cartella.Contenuto().empty());
    }
}

TEST(Guasti, DopoUnGuastoIlReportSuccessivoEIntero)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        {
            ScrittureGuaste scritture;
            scritture.Guasta(operazione.TieneLeTaglie ? 3 : 1, ENOSPC);
            prova.Fallisce(operazione);
        }
        EXPECT_TRUE(operazione.Esegui(Taglie));
        EXPECT_TRUE(aiuti::Byte(prova.Report(operazione)) == Dorato(operazione.Dorato));
        EXPECT_EQ(prova.Aperti.size(), 1U);
    }
}

TEST(SoloTotali, NonToccaNessunFile)
{
    Prova prova;
    for (const auto& operazione : Operazioni) Scrivi(prova.Report(operazione), "vecchio");
    ScrittureGuaste scritture;
    scritture.Guasta(1, ENOSPC, Durata::DaAllora);
    scritture.GuastaChiusura(1, EIO, Durata::DaAllora);
    EXPECT_TRUE(Stampe::SoloTotali(Taglie, {}));
    EXPECT_EQ(aiuti::Byte(prova.Cartella.File("taglie.txt")), "vecchio");
    EXPECT_EQ(aiuti::Byte(prova.Cartella.File("taglie.htm")), "vecchio");
}

// ---- Devices that are really full ------------------------------------------------------------

namespace {

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
