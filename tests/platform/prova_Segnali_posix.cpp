// Requests to stop. Each test runs in a child, since signals change a process for good.

#include "Segnali.h"

#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

using aiuti::DaSegnale;
using aiuti::InUnFiglio;
using aiuti::Riuscito;

namespace {

constexpr std::array Richieste = {SIGHUP,  SIGINT,  SIGQUIT, SIGTERM, SIGALRM, SIGVTALRM, SIGPROF,
                                  SIGXCPU, SIGUSR1, SIGUSR2, SIGIO,   SIGPWR,  SIGSTKFLT};

// Faults of the program itself, what nobody can catch, and what does not end a program.
constexpr std::array Altri = {SIGSEGV, SIGBUS,  SIGFPE,  SIGILL,  SIGTRAP,
                              SIGSYS,  SIGABRT, SIGKILL, SIGSTOP, SIGCHLD,
                              SIGCONT, SIGTSTP, SIGTTIN, SIGTTOU, SIGWINCH};

// Some signals would leave a picture of the memory behind.
void SenzaCore()
{
    const rlimit niente = {0, 0};
    ASSERT_EQ(::setrlimit(RLIMIT_CORE, &niente), 0);
}

// The first request sets the flag; what a second one does ends the child or not.
int DueVolte(int segnale)
{
    return InUnFiglio([segnale] {
        SenzaCore();
        AscoltaInterruzioni();
        EXPECT_FALSE(InterruzioneChiesta());
        std::raise(segnale);
        EXPECT_TRUE(InterruzioneChiesta());
        if (!testing::Test::HasFailure()) std::raise(segnale);
    });
}

} // namespace

TEST(Segnali, IlPrimoMetteLaRichiestaIlSecondoTermina)
{
    for (const int segnale : Richieste) {
        EXPECT_EQ(DueVolte(segnale), DaSegnale + segnale) << strsignal(segnale);
    }
    for (int segnale = SIGRTMIN; segnale <= SIGRTMAX; ++segnale) {
        EXPECT_EQ(DueVolte(segnale), DaSegnale + segnale) << segnale;
    }
}

TEST(Segnali, GliAltriRestanoComeSono)
{
    EXPECT_EQ(InUnFiglio([] {
                  for (const int segnale : Altri) std::signal(segnale, SIG_DFL);
                  AscoltaInterruzioni();
                  for (const int segnale : Altri) {
                      struct sigaction azione = {};
                      ASSERT_EQ(::sigaction(segnale, nullptr, &azione), 0);
                      EXPECT_EQ(azione.sa_handler, SIG_DFL) << strsignal(segnale);
                  }
              }),
              Riuscito);
}

TEST(Segnali, DiTreChiunqueVengaPerSecondoTermina)
{
    constexpr std::array tre = {SIGINT, SIGQUIT, SIGTERM};
    for (const int primo : tre) {
        for (const int secondo : tre) {
            EXPECT_EQ(InUnFiglio([&] {
                          SenzaCore();
                          AscoltaInterruzioni();
                          std::raise(primo);
                          EXPECT_TRUE(InterruzioneChiesta());
                          std::raise(secondo);
                      }),
                      DaSegnale + secondo);
        }
    }
}

TEST(Segnali, UnoPerTipoNonTermina)
{
    EXPECT_EQ(InUnFiglio([] {
                  AscoltaInterruzioni();
                  std::raise(SIGTERM);
                  for (const int segnale : {SIGHUP, SIGALRM, SIGXCPU, SIGUSR1, SIGRTMIN}) {
                      std::raise(segnale);
                  }
                  EXPECT_TRUE(InterruzioneChiesta());
              }),
              Riuscito);
}

// A shell that is hung up tells its programs, and when it has ended the system tells them again.
TEST(Segnali, IlTerminaleELaShellSonoUnaSolaRichiesta)
{
    const int esito = InUnFiglio([] {
        const int capo = ::posix_openpt(O_RDWR | O_NOCTTY);
        if (capo < 0 || ::grantpt(capo) != 0 || ::unlockpt(capo) != 0) aiuti::EsciImpossibile();
        if (::setsid() < 0) aiuti::EsciImpossibile();
        const int terminale = ::open(::ptsname(capo), O_RDWR); // its controlling one from here on
        if (terminale < 0) aiuti::EsciImpossibile();
        AscoltaInterruzioni();
        std::raise(SIGHUP);
        EXPECT_TRUE(InterruzioneChiesta());
        ImpostaInterruzione(false);
        ::close(capo);
        EXPECT_TRUE(InterruzioneChiesta());
        if (!testing::Test::HasFailure()) std::raise(SIGHUP);
    });
    if (esito == aiuti::Impossibile) GTEST_SKIP() << "no pseudo-terminals here";
    EXPECT_EQ(esito, DaSegnale + SIGHUP);
}

TEST(Segnali, CioCheIlChiamanteIgnoraRestaIgnorato)
{
    for (const int ignorato : Richieste) {
        const int altro = ignorato == SIGINT ? SIGTERM : SIGINT;
        EXPECT_EQ(InUnFiglio([&] {
                      std::signal(ignorato, SIG_IGN);
                      AscoltaInterruzioni();
                      std::raise(ignorato);
                      EXPECT_FALSE(InterruzioneChiesta());
                      std::raise(altro);
                      EXPECT_TRUE(InterruzioneChiesta());
                      std::raise(ignorato); // nor is it the second request
                      if (!testing::Test::HasFailure()) std::raise(altro);
                  }),
                  DaSegnale + altro);
    }
}

TEST(Segnali, ChiGiaAscoltaUnSegnaleContinua)
{
    EXPECT_EQ(InUnFiglio([] {
                  std::signal(SIGPROF, [](int) {});
                  AscoltaInterruzioni();
                  std::raise(SIGPROF);
                  EXPECT_FALSE(InterruzioneChiesta());
              }),
              Riuscito);
}

TEST(Segnali, LaRichiestaSvegliaChiGuardaIlCanale)
{
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        EXPECT_EQ(InUnFiglio([segnale] {
                      const int canale = ApriCanaleInterruzioni();
                      ASSERT_GE(canale, 0);
                      AscoltaInterruzioni();
                      pollfd guardia = {canale, POLLIN, 0};
                      EXPECT_EQ(::poll(&guardia, 1, 0), 0);
                      errno = EDOM;
                      std::raise(segnale);
                      EXPECT_EQ(errno, EDOM);
                      EXPECT_EQ(::poll(&guardia, 1, 0), 1);
                      EXPECT_TRUE(InterruzioneChiesta());
                      // Whoever looks at it too often does not wait.
                      std::array<char, 8> byte{};
                      ASSERT_NE(::fcntl(canale, F_GETFL) & O_NONBLOCK, 0);
                      EXPECT_EQ(::read(canale, byte.data(), byte.size()), 1);
                      EXPECT_EQ(::read(canale, byte.data(), byte.size()), -1);
                      EXPECT_EQ(errno, EAGAIN);
                      // No program that is started gets it.
                      EXPECT_EQ(::fcntl(canale, F_GETFD), FD_CLOEXEC);
                  }),
                  Riuscito);
    }
}

TEST(Segnali, LaRichiestaResta)
{
    EXPECT_EQ(InUnFiglio([] {
                  AscoltaInterruzioni();
                  std::raise(SIGINT);
                  EXPECT_TRUE(InterruzioneChiesta());
                  EXPECT_TRUE(InterruzioneChiesta());
              }),
              Riuscito);
}

TEST(Segnali, UnaLetturaInAttesaTornaIndietro)
{
    EXPECT_EQ(InUnFiglio([] {
                  AscoltaInterruzioni();
                  for (const int segnale : Richieste) {
                      struct sigaction azione = {};
                      ASSERT_EQ(::sigaction(segnale, nullptr, &azione), 0);
                      EXPECT_EQ(azione.sa_flags & SA_RESTART, 0);
                  }
              }),
              Riuscito);
}

TEST(Segnali, IlTuboChiusoEUnErroreDellaScrittura)
{
    EXPECT_EQ(InUnFiglio([] {
                  AscoltaInterruzioni();
                  std::array<int, 2> tubo{};
                  ASSERT_EQ(::pipe(tubo.data()), 0);
                  ::close(tubo[0]);
                  EXPECT_EQ(::write(tubo[1], "x", 1), -1);
                  EXPECT_EQ(errno, EPIPE);
                  EXPECT_FALSE(InterruzioneChiesta());
              }),
              Riuscito);
}

TEST(Segnali, OltreIlLimiteDeiFileEUnErroreDellaScrittura)
{
    EXPECT_EQ(InUnFiglio([] {
                  AscoltaInterruzioni();
                  std::array<char, 20> nome{"/tmp/prova-XXXXXX"};
                  const int descrittore = ::mkstemp(nome.data());
                  ASSERT_GE(descrittore, 0);
                  ::unlink(nome.data());
                  rlimit prima = {};
                  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &prima), 0);
                  const rlimit quattro = {4, prima.rlim_max};
                  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &quattro), 0);
                  const auto dentro = ::write(descrittore, "123456", 6);
                  const auto fuori = ::write(descrittore, "56", 2);
                  const int codice = errno;
                  // Back before anything is said: standard output may be a file, too.
                  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &prima), 0);
                  EXPECT_EQ(dentro, 4);
                  EXPECT_EQ(fuori, -1);
                  EXPECT_EQ(codice, EFBIG);
              }),
              Riuscito);
}

TEST(Segnali, IlPostoDiUnCanaleChiusoNonVaAUnFile)
{
    EXPECT_EQ(InUnFiglio([] {
                  const int uscita = ::dup(STDOUT_FILENO);
                  for (const int canale : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
                      ::close(canale);
                  }
                  AscoltaInterruzioni();
                  const int nuovo = ::open("/dev/null", O_RDWR);
                  char byte = 0;
                  const auto letti = ::read(STDIN_FILENO, &byte, 1);
                  const auto scritti = ::write(STDOUT_FILENO, "x", 1);
                  const auto detti = ::write(STDERR_FILENO, "x", 1);
                  ASSERT_EQ(::dup2(uscita, STDOUT_FILENO), STDOUT_FILENO);
                  EXPECT_GT(nuovo, STDERR_FILENO);
                  EXPECT_EQ(letti, -1); // using a closed channel stays an error
                  EXPECT_EQ(scritti, -1);
                  EXPECT_EQ(detti, -1);
              }),
              Riuscito);
}

TEST(Segnali, UnCanaleApertoRestaComeE)
{
    EXPECT_EQ(InUnFiglio([] {
                  std::array<int, 2> tubo{};
                  ASSERT_EQ(::pipe(tubo.data()), 0);
                  ASSERT_EQ(::dup2(tubo[0], STDIN_FILENO), STDIN_FILENO);
                  AscoltaInterruzioni();
                  ASSERT_EQ(::write(tubo[1], "x", 1), 1);
                  char byte = 0;
                  EXPECT_EQ(::read(STDIN_FILENO, &byte, 1), 1);
              }),
              Riuscito);
}

TEST(Segnali, LaRichiestaSiImpostaAncheAMano)
{
    EXPECT_FALSE(InterruzioneChiesta());
    ImpostaInterruzione(true);
    EXPECT_TRUE(InterruzioneChiesta());
    ImpostaInterruzione(false);
    EXPECT_FALSE(InterruzioneChiesta());
}

TEST(Segnali, UnTuboSenzaLettoreFinisceComeSeNessunoLoSapesse)
{
    EXPECT_EQ(InUnFiglio([] {
                  std::signal(SIGPIPE, SIG_DFL);
                  AscoltaInterruzioni();
                  FinisciDiTubo();
              }),
              DaSegnale + SIGPIPE);
    // Not where the caller ignores it, nor where nobody listens.
    EXPECT_EQ(InUnFiglio([] {
                  std::signal(SIGPIPE, SIG_IGN);
                  AscoltaInterruzioni();
                  FinisciDiTubo();
              }),
              Riuscito);
    EXPECT_EQ(InUnFiglio([] { FinisciDiTubo(); }), Riuscito);
}
