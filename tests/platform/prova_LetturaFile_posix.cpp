// Files of unknown origin that are devices, FIFOs or not readable, and signals that arrive
// meanwhile.

#include "prova_LetturaFile.h"

#include "Segnali.h"
#include "Utente.h"

#include <array>
#include <csignal>
#include <fstream>
#include <functional>
#include <string>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using aiuti::CartellaDiProva;
using aiuti::Riuscito;
using namespace lettura;

namespace {

void NonFareNulla(int /*segnale*/) {}

} // namespace

TEST(LeggiRighe, UnFlussoSenzaFineRigaNonRiempieLaMemoria)
{
    const auto errore = ErroreLeggendo("/dev/zero");
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->Motivo(), "riga 1: troppo lunga");
    EXPECT_EQ(errore->File(), "/dev/zero");
}

TEST(LeggiRighe, IProgrammiAvviatiIntantoNonEreditanoIlFile)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "x\n";
    int aperti = 0;
    const auto riga = [&](std::size_t, std::string_view) {
        for (int descrittore = 3; descrittore < 1024; ++descrittore) {
            struct stat aperto = {};
            struct stat file = {};
            if (::fstat(descrittore, &aperto) != 0) continue;
            ASSERT_EQ(::stat(cartella.File("f").c_str(), &file), 0);
            if (aperto.st_ino != file.st_ino || aperto.st_dev != file.st_dev) continue;
            EXPECT_NE(::fcntl(descrittore, F_GETFD) & FD_CLOEXEC, 0);
            ++aperti;
        }
    };
    LeggiRighe(cartella.Nome() + "f", 10, riga, [] { return false; });
    EXPECT_EQ(aperti, 1);
}

TEST(LeggiRighe, UnFileCheNonSiPuoLeggereEUnErrore)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "x\n";
    if (aiuti::SonoRadice()) aiuti::Affida(cartella.File("f"), aiuti::Nessuno);
    std::filesystem::permissions(cartella.File("f"), std::filesystem::perms::none);
    EXPECT_EQ(aiuti::ComeNessuno([&] {
                  const auto errore = ErroreLeggendo(cartella.Nome() + "f");
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->Numero(), NumeroErrore::PermessoNegato);
                  EXPECT_EQ(errore->Motivo(), "permesso negato");
              }),
              Riuscito);
}

TEST(LeggiRighe, UnTrattinoELIngressoStandard)
{
    EXPECT_EQ(aiuti::InUnFiglio([] {
                  std::array<int, 2> tubo{};
                  ASSERT_EQ(::pipe(tubo.data()), 0);
                  ASSERT_EQ(::write(tubo[1], "uno\ndue", 7), 7);
                  ::close(tubo[1]);
                  ASSERT_EQ(::dup2(tubo[0], STDIN_FILENO), STDIN_FILENO);
                  EXPECT_EQ(Righe("-"), (Testi{"uno", "due"}));
                  EXPECT_NE(::fcntl(STDIN_FILENO, F_GETFD), -1); // it is not ours to close
                  ::close(STDIN_FILENO);
                  const auto errore = ErroreLeggendo("-");
                  ASSERT_TRUE(errore);
                  EXPECT_EQ(errore->File(), "-");
              }),
              Riuscito);
}

TEST(FileRighe, LIngressoStandardSiRileggeDaDoveStava)
{
    const CartellaDiProva cartella;
    std::ofstream(cartella.File("f")) << "saltata\nuno\ndue";
    EXPECT_EQ(aiuti::InUnFiglio([&] {
                  const int aperto = ::open(cartella.File("f").c_str(), O_RDONLY | O_CLOEXEC);
                  ASSERT_EQ(::dup2(aperto, STDIN_FILENO), STDIN_FILENO);
                  ASSERT_EQ(::lseek(STDIN_FILENO, 8, SEEK_SET), 8);
                  FileRighe file("-", 10);
                  std::vector<std::uint64_t> inizi;
                  EXPECT_TRUE(file.Leggi([&](std::size_t, std::uint64_t inizio,
                                             std::string_view) { inizi.push_back(inizio); },
                                         Mai));
                  EXPECT_EQ(inizi, (std::vector<std::uint64_t>{8, 12}));
                  EXPECT_TRUE(file.Rileggibile());
                  EXPECT_EQ(file.RigaA(8), "uno");
                  EXPECT_EQ(file.RigaA(12), "due");
              }),
              Riuscito);
}

TEST(FileRighe, UnaFifoNonSiRilegge)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_FALSE(FileRighe(fifo, 10).Rileggibile());
    EXPECT_FALSE(FileRighe(fifo, 10).Cambiato());
    EXPECT_FALSE(FileRighe("/dev/null", 10).Rileggibile());
}

TEST(LeggiRighe, UnaFifoSiLeggeFinoAllaFine)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    aiuti::Figlio scrittore([&] { std::ofstream(fifo) << "uno\n" << std::flush << "due\n"; });
    EXPECT_EQ(Righe(fifo), (Testi{"uno", "due"}));
    EXPECT_EQ(scrittore.Aspetta(), Riuscito);
}

namespace {

// Reads a FIFO that nobody writes to, with signals arriving until the reading has ended.
int LeggiSottoSegnali(const std::string& fifo, const std::function<bool()>& fermare)
{
    aiuti::Figlio lettore([&] {
        EXPECT_FALSE(LeggiRighe(
            fifo, 1000, [](std::size_t, std::string_view) {}, fermare));
    });
    // One signal could come before the wait begins, so that there are many.
    int esito = aiuti::DaSegnale + SIGUSR1;
    while (!lettore.Finito(esito)) {
        ::kill(lettore.Numero(), SIGUSR1);
        ::poll(nullptr, 0, 1);
    }
    return esito;
}

// True from the question number volte on.
std::function<bool()> AllaDomanda(int volte)
{
    return [volte, domande = 0]() mutable { return ++domande >= volte; };
}

} // namespace

TEST(LeggiRighe, UnSegnaleFermaLAttesaDiChiApreUnaFifo)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    // Set here, for the child to start with: a signal that came too early would end it.
    struct sigaction prima = {};
    struct sigaction azione = {};
    azione.sa_handler = NonFareNulla;
    ASSERT_EQ(::sigaction(SIGUSR1, &azione, &prima), 0);
    EXPECT_EQ(LeggiSottoSegnali(fifo, AllaDomanda(1)), Riuscito);
    EXPECT_EQ(LeggiSottoSegnali(fifo, AllaDomanda(3)), Riuscito); // "no" goes on waiting
    // Open, but without a byte: now it is the reading that waits.
    const int scrittore = ::open(fifo.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(scrittore, 0);
    EXPECT_EQ(LeggiSottoSegnali(fifo, AllaDomanda(2)), Riuscito);
    ::close(scrittore);
    ASSERT_EQ(::sigaction(SIGUSR1, &prima, nullptr), 0);
}

TEST(LeggiRighe, UnaRichiestaFraLaDomandaELAttesaNonSiPerde)
{
    const CartellaDiProva cartella;
    const std::string fifo = cartella.Nome() + "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP, SIGXCPU, SIGRTMAX}) {
        EXPECT_EQ(aiuti::InUnFiglio([&] {
                      constexpr unsigned troppo = 60; // seconds, after which the child is killed
                      ::alarm(troppo);
                      AscoltaInterruzioni();
                      bool arrivata = false;
                      const auto fermare = [&] {
                          const bool chiesta = InterruzioneChiesta();
                          if (!std::exchange(arrivata, true)) std::raise(segnale);
                          return chiesta;
                      };
                      EXPECT_FALSE(LeggiRighe(
                          fifo, 1000, [](std::size_t, std::string_view) {}, fermare));
                  }),
                  Riuscito);
    }
}

TEST(LeggiFile, RifiutaUnaFifoSenzaAspettare)
{
    const CartellaDiProva cartella;
    ASSERT_EQ(::mkfifo(cartella.File("fifo").c_str(), 0600), 0);
    EXPECT_EQ(NumeroLeggendo(cartella.Nome() + "fifo", 3),
              static_cast<int>(NumeroErrore::AccessoAlFile));
}
