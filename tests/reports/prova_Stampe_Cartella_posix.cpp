// Report folders in which somebody has planted links, FIFOs or files of another user, or into which
// one may not write.

#include "prova_Stampe_Cartella.h"

#include "Utente.h"

#include <array>

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

TEST(CartellaGuasta, SostituitoDaUnCollegamentoODaUnaFifoIlTestoSiFerma)
{
    SiFermaSeSostituito([](const fs::path& report) { fs::create_symlink("suo", report); });
    SiFermaSeSostituito(
        [](const fs::path& report) { EXPECT_EQ(::mkfifo(report.c_str(), 0600), 0); });
}

TEST(CartellaGuasta, SostituitaDuranteLaCorsaLaPaginaAltruiResta)
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

namespace {

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

TEST(EliminaReport, ITreReportInOrdine)
{
    const Prova prova;
    FaiReport(prova);
    EXPECT_EQ(Cancellati(prova.Cartella.Nome(), Stampe::EliminaReport),
              (Nomi{"taglie.htm", "taglie.pdf", "taglie.txt"}));
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
