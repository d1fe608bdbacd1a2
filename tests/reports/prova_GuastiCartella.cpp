// Report folders in which somebody has put something else, or into which one may not write; the
// removal of reports; and numbers of shoes that are refused before any file is touched.

#include "prova_Guasti.h"

#include "Utente.h"

#include <array>
#include <cmath>
#include <limits>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace guasti;
using aiuti::Affida;
using aiuti::Byte;
using aiuti::ComeNessuno;
using aiuti::Dorato;
using aiuti::Nessuno;
using aiuti::Riuscito;
using aiuti::SonoRadice;

namespace fs = std::filesystem;

namespace {

// The operation is refused for this reason before a shoe is dealt, and the entry stays.
void Rifiuta(Prova& prova, const Operazione& operazione, NumeroErrore numero,
             const std::string& motivo)
{
    SCOPED_TRACE(operazione.Nome);
    Stampe::AmbienteInUso.PreparaTaglia = [](std::int64_t taglia) {
        ADD_FAILURE() << "shoe " << taglia << " was dealt";
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida);
    };
    const fs::path report = prova.Report(operazione);
    const auto prima = fs::symlink_status(report).type();
    const auto errore = prova.Fallisce(operazione);
    EXPECT_EQ(errore.Numero(), numero);
    EXPECT_EQ(errore.Motivo(), motivo);
    EXPECT_EQ(errore.File(), report.string());
    EXPECT_EQ(fs::symlink_status(report).type(), prima);
}

// Works, and stands as a file of its own where something else was planted.
void Riesce(Prova& prova, const Operazione& operazione)
{
    EXPECT_TRUE(operazione.Esegui(Taglie)) << operazione.Nome;
    EXPECT_EQ(fs::symlink_status(prova.Report(operazione)).type(), fs::file_type::regular);
    EXPECT_TRUE(Byte(prova.Report(operazione)) == Dorato(operazione.Dorato)) << operazione.Nome;
    EXPECT_EQ(prova.Aperti, (std::vector<std::string>{prova.Report(operazione).string()}));
}

} // namespace

// ---- Planted entries -------------------------------------------------------------------------

TEST(CartellaGuasta, UnCollegamentoSiSostituisceEIlBersaglioResta)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        Scrivi(prova.Cartella.File("bersaglio"), "prezioso");
        fs::create_symlink("bersaglio", prova.Report(operazione));
        Riesce(prova, operazione);
        EXPECT_EQ(Byte(prova.Cartella.File("bersaglio")), "prezioso");
    }
}

TEST(CartellaGuasta, UnCollegamentoPenzolanteNonCreaIlBersaglio)
{
    for (const auto& operazione : Operazioni) {
        if (operazione.File == std::string("taglie.pdf")) continue; // such a link counts as held
        Prova prova;
        fs::create_symlink("bersaglio", prova.Report(operazione));
        Riesce(prova, operazione);
        EXPECT_EQ(prova.Cartella.Contenuto(), (std::vector<std::string>{operazione.File}));
    }
}

TEST(CartellaGuasta, UnNomeDuroPerdeSoloIlNome)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        Scrivi(prova.Cartella.File("bersaglio"), "prezioso");
        fs::create_hard_link(prova.Cartella.File("bersaglio"), prova.Report(operazione));
        Riesce(prova, operazione);
        EXPECT_EQ(Byte(prova.Cartella.File("bersaglio")), "prezioso");
    }
}

TEST(CartellaGuasta, UnaFifoRestaENonFermaNessuno)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        ASSERT_EQ(::mkfifo(prova.Report(operazione).c_str(), 0600), 0);
        Rifiuta(prova, operazione, NumeroErrore::AccessoAlFile, "non è un file ordinario");
    }
}

TEST(CartellaGuasta, UnaCartellaResta)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        fs::create_directory(prova.Report(operazione));
        Rifiuta(prova, operazione, NumeroErrore::AccessoAlFile, "è una cartella");
    }
}

TEST(CartellaGuasta, IlFileDiUnAltroUtenteResta)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root gives files away";
    for (const auto& operazione : Operazioni) {
        Prova prova;
        Scrivi(prova.Report(operazione), "altrui");
        Affida(prova.Report(operazione), Nessuno);
        Rifiuta(prova, operazione, NumeroErrore::PermessoNegato, "appartiene a un altro utente");
        EXPECT_EQ(Byte(prova.Report(operazione)), "altrui");
    }
}

TEST(CartellaGuasta, InUnaCartellaDiTuttiIlFileAltruiResta)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root makes files of two users";
    for (const auto& operazione : Operazioni) {
        Prova prova;
        ASSERT_EQ(::chmod(prova.Cartella.Nome().c_str(), 01777), 0);
        Scrivi(prova.Report(operazione), "altrui");
        EXPECT_EQ(ComeNessuno([&] {
                      Rifiuta(prova, operazione, NumeroErrore::PermessoNegato,
                              "appartiene a un altro utente");
                  }),
                  Riuscito);
        EXPECT_EQ(Byte(prova.Report(operazione)), "altrui");
    }
}

TEST(CartellaGuasta, SostituitoFraDueTaglieIlTestoSiFerma)
{
    // Between two shoes the full text is closed: what stands there then need not be ours.
    const Operazione& operazione = Operazioni[0];
    const std::vector<std::function<void(const fs::path&)>> sostituti = {
        [](const fs::path& report) { fs::create_symlink("suo", report); },
        [](const fs::path& report) { EXPECT_EQ(::mkfifo(report.c_str(), 0600), 0); },
        [](const fs::path& report) { Scrivi(report, "altrui"); },
        [](const fs::path& report) { fs::create_directory(report); },
    };
    for (const auto& sostituto : sostituti) {
        Prova prova;
        const fs::path report = prova.Report(operazione);
        const fs::path suo = prova.Cartella.File("suo");
        Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t fatte) {
            if (fatte != 2) return;
            fs::rename(report, suo);
            sostituto(report);
        };
        const auto errore = prova.Fallisce(operazione);
        EXPECT_EQ(errore.Numero(), NumeroErrore::AccessoAlFile);
        EXPECT_EQ(errore.File(), report.string());
        // Whole: nothing was written through a link.
        EXPECT_TRUE(Byte(suo) == StatiInteri(Dorato(operazione.Dorato), 3)[2]);
        if (fs::symlink_status(report).type() == fs::file_type::regular) {
            EXPECT_EQ(Byte(report), "altrui");
        }
    }
}

TEST(CartellaGuasta, SostituitaDuranteIlGiroLaPaginaAltruiResta)
{
    for (const std::size_t quale : {2U, 3U}) {
        Prova prova;
        const fs::path report = prova.Report(Operazioni[quale]);
        Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t fatte) {
            if (fatte != 2) return;
            fs::remove(report);
            Scrivi(report, "altrui");
        };
        int domande = 0;
        Stampe::AmbienteInUso.Fermare = [&] { return ++domande == 2; };
        EXPECT_EQ(Operazioni[quale].Esegui(Taglie), std::nullopt);
        EXPECT_EQ(Byte(report), "altrui");
    }
}

// ---- Folders without permission --------------------------------------------------------------

TEST(CartellaGuasta, InSolaLetturaPermessoNegatoEIlVecchioResta)
{
    for (const auto& operazione : Operazioni) {
        for (const bool conVecchio : {false, true}) {
            // The statistics text only meets an empty folder's refusal at its end.
            Prova prova;
            if (conVecchio) Scrivi(prova.Report(operazione), "vecchio");
            if (SonoRadice()) {
                if (conVecchio) Affida(prova.Report(operazione), Nessuno);
                Affida(prova.Cartella.Nome(), Nessuno);
            }
            fs::permissions(prova.Cartella.Nome(), fs::perms(0555));
            EXPECT_EQ(ComeNessuno([&] {
                          ASSERT_EQ(::access(prova.Cartella.Nome().c_str(), R_OK | X_OK), 0);
                          const auto errore = prova.Fallisce(operazione);
                          EXPECT_EQ(errore.Numero(), NumeroErrore::PermessoNegato);
                          EXPECT_EQ(errore.Motivo(), "permesso negato");
                          EXPECT_EQ(errore.File(), prova.Report(operazione).string());
                      }),
                      Riuscito)
                << operazione.Nome;
            fs::permissions(prova.Cartella.Nome(), fs::perms(0755));
            const auto resto = conVecchio ? std::optional<std::string>("vecchio") : std::nullopt;
            EXPECT_EQ(Contenuto(prova.Report(operazione)), resto) << operazione.Nome;
        }
    }
}

TEST(CartellaGuasta, SenzaCartellaUnErroreConIlNomeDelFile)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        Stampe::AmbienteInUso.Cartella = prova.Cartella.Nome() + "assente/";
        const auto errore = prova.Fallisce(operazione);
        EXPECT_EQ(errore.Numero(), NumeroErrore::PercorsoNonTrovato) << operazione.Nome;
        EXPECT_EQ(errore.File(), prova.Cartella.Nome() + "assente/" + operazione.File);
        EXPECT_TRUE(prova.Cartella.Contenuto().empty());
    }
}

// ---- Numbers of shoes ------------------------------------------------------------------------

TEST(NumeroTaglie, QuelloSbagliatoERifiutatoPrimaDiToccareIlFile)
{
    struct Caso
    {
        double taglie;
        NumeroErrore numero;
        const char* messaggio;
    };
    const auto piccolo = "numero di taglie: deve essere almeno 1";
    const auto grande = "numero di taglie: può essere al massimo 9007199254740992";
    const auto infinito = std::numeric_limits<double>::infinity();
    const std::vector<Caso> casi = {
        {0, NumeroErrore::ChiamataNonValida, piccolo},
        {0.9999, NumeroErrore::ChiamataNonValida, piccolo},
        {-1, NumeroErrore::ChiamataNonValida, piccolo},
        {-infinito, NumeroErrore::ChiamataNonValida, piccolo},
        {std::nan(""), NumeroErrore::ChiamataNonValida, piccolo},
        {9007199254740994.0, NumeroErrore::Overflow, grande},
        {infinito, NumeroErrore::Overflow, grande},
    };
    for (const auto& operazione : Operazioni) {
        for (const auto& caso : casi) {
            Prova prova;
            Scrivi(prova.Report(operazione), "il vecchio report\r\n");
            const auto errore = prova.Fallisce(operazione, caso.taglie);
            EXPECT_EQ(errore.Numero(), caso.numero) << caso.taglie;
            EXPECT_STREQ(errore.what(), caso.messaggio) << caso.taglie;
            EXPECT_EQ(Byte(prova.Report(operazione)), "il vecchio report\r\n");
            EXPECT_EQ(prova.Cartella.Contenuto().size(), 1U);
        }
    }
}

// ---- Removal ---------------------------------------------------------------------------------

namespace {

const std::vector<std::string> Report = {"taglie.htm", "taglie.pdf", "taglie.txt"};

// All three reports and a file that is none.
void FaiReport(const Prova& prova)
{
    for (const auto& nome : Report) Scrivi(prova.Cartella.File(nome), nome);
    Scrivi(prova.Cartella.File("taglie.csv"), "altro");
}

using Nomi = std::vector<std::string>;

// The names that disappear from a folder while lavoro runs, in order.
Nomi Cancellati(const std::string& cartella, const std::function<void()>& lavoro)
{
    const int avvisi = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    EXPECT_GE(::inotify_add_watch(avvisi, cartella.c_str(), IN_DELETE), 0);
    lavoro();
    Nomi nomi;
    alignas(inotify_event) std::array<char, 4096> byte{};
    const auto letti = ::read(avvisi, byte.data(), byte.size());
    for (std::ptrdiff_t posto = 0; posto < letti;) {
        const auto* avviso = reinterpret_cast<const inotify_event*>(byte.data() + posto);
        nomi.emplace_back(avviso->name);
        posto += static_cast<std::ptrdiff_t>(sizeof(inotify_event) + avviso->len);
    }
    ::close(avvisi);
    return nomi;
}

} // namespace

TEST(EliminaReport, ITreReportInOrdineENientAltro)
{
    const Prova prova;
    FaiReport(prova);
    EXPECT_EQ(Cancellati(prova.Cartella.Nome(), Stampe::EliminaReport),
              (Nomi{"taglie.htm", "taglie.pdf", "taglie.txt"}));
    EXPECT_EQ(prova.Cartella.Contenuto(), (Nomi{"taglie.csv"}));
    Stampe::EliminaReport(); // nothing to remove is no error
    EXPECT_TRUE(prova.Aperti.empty());
    EXPECT_TRUE(prova.Messaggi.empty());
}

TEST(EliminaReport, SenzaCartellaNonEUnErrore)
{
    const Prova prova;
    Stampe::AmbienteInUso.Cartella = prova.Cartella.Nome() + "assente/";
    EXPECT_NO_THROW(Stampe::EliminaReport());
}

TEST(EliminaReport, UnaCartellaConQuelNomeRestaEGliAltriNo)
{
    for (const auto& nome : Report) {
        const Prova prova;
        FaiReport(prova);
        fs::remove(prova.Cartella.File(nome));
        fs::create_directory(prova.Cartella.File(nome));
        Stampe::EliminaReport();
        EXPECT_EQ(prova.Cartella.Contenuto(), (Nomi{"taglie.csv", nome}));
    }
}

TEST(EliminaReport, UnaFifoResta)
{
    const Prova prova;
    FaiReport(prova);
    fs::remove(prova.Cartella.File("taglie.htm"));
    ASSERT_EQ(::mkfifo(prova.Cartella.File("taglie.htm").c_str(), 0600), 0);
    Stampe::EliminaReport();
    EXPECT_EQ(prova.Cartella.Contenuto(), (Nomi{"taglie.csv", "taglie.htm"}));
}

TEST(EliminaReport, DiUnCollegamentoScompareIlCollegamento)
{
    const Prova prova;
    Scrivi(prova.Cartella.File("bersaglio"), "prezioso");
    for (const auto& nome : Report) fs::create_symlink("bersaglio", prova.Cartella.File(nome));
    Stampe::EliminaReport();
    EXPECT_EQ(prova.Cartella.Contenuto(), (Nomi{"bersaglio"}));
    EXPECT_EQ(Byte(prova.Cartella.File("bersaglio")), "prezioso");
}

TEST(EliminaReport, DietroUnCollegamentoAUnaCartellaNonSiToccaNulla)
{
    const Prova prova;
    fs::create_directory(prova.Cartella.File("altra"));
    Scrivi(prova.Cartella.File("altra/taglie.txt"), "prezioso");
    fs::create_directory_symlink("altra", prova.Cartella.File("taglie.htm"));
    Stampe::EliminaReport();
    EXPECT_EQ(Byte(prova.Cartella.File("altra/taglie.txt")), "prezioso");
}

TEST(EliminaReport, IlFileAltruiRestaEGliAltriNo)
{
    if (!SonoRadice()) GTEST_SKIP() << "only root gives files away";
    for (const auto& nome : Report) {
        const Prova prova;
        FaiReport(prova);
        Affida(prova.Cartella.File(nome), Nessuno);
        Stampe::EliminaReport();
        EXPECT_EQ(prova.Cartella.Contenuto(), (Nomi{"taglie.csv", nome}));
        EXPECT_EQ(Byte(prova.Cartella.File(nome)), nome);
    }
}

TEST(EliminaReport, InUnaCartellaProtettaRestaTuttoSenzaErrore)
{
    const Prova prova;
    FaiReport(prova);
    if (SonoRadice()) {
        for (const auto& nome : Report) Affida(prova.Cartella.File(nome), Nessuno);
        Affida(prova.Cartella.Nome(), Nessuno);
    }
    fs::permissions(prova.Cartella.Nome(), fs::perms(0555));
    EXPECT_EQ(ComeNessuno([&] {
                  ASSERT_EQ(aiuti::Padrone(prova.Cartella.File("taglie.htm")), ::geteuid());
                  ASSERT_EQ(::access(prova.Cartella.Nome().c_str(), R_OK | X_OK), 0);
                  EXPECT_NO_THROW(Stampe::EliminaReport());
              }),
              Riuscito);
    fs::permissions(prova.Cartella.Nome(), fs::perms(0755));
    EXPECT_EQ(prova.Cartella.Contenuto().size(), 4U);
}
