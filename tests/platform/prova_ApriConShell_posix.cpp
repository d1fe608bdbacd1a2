// The desktop's handler, played by a script of ours that comes first in PATH and tells what it got.

#include "ApriConShell.h"

#include "Aiuti.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using aiuti::CartellaDiProva;
using aiuti::InUnFiglio;
using aiuti::Riuscito;

namespace fs = std::filesystem;

namespace {

// Long enough for any machine: it only keeps a failed test from waiting for ever.
constexpr int Pazienza = 60 * 1000;

// A handler in a folder of its own, which is all of PATH. It answers through the FIFO "risposta";
// opening that waits for us, so that nothing here depends on time. Used in a child process.
class Gestore
{
public:
    explicit Gestore(const std::string& corpo)
    {
        ::setenv("PATH", m_cartella.Nome().c_str(), 1);
        EXPECT_EQ(::mkfifo(m_cartella.File("risposta").c_str(), 0600), 0);
        EXPECT_EQ(::mkfifo(m_cartella.File("via").c_str(), 0600), 0);
        m_risposta = ::open(m_cartella.File("risposta").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        EXPECT_GE(m_risposta, 0);
        const auto programma = m_cartella.File("xdg-open");
        std::ofstream(programma) << "#!/bin/sh\ncd '" << m_cartella.Nome() << "'\n"
                                 << corpo << "\n";
        fs::permissions(programma, fs::perms::owner_all);
    }
    ~Gestore() { ::close(m_risposta); }
    Gestore(const Gestore&) = delete;
    Gestore& operator=(const Gestore&) = delete;

    // Everything that the handler answers.
    std::string Risposta() const
    {
        std::string testo;
        for (;;) {
            pollfd attesa = {m_risposta, POLLIN, 0};
            if (::poll(&attesa, 1, Pazienza) <= 0) {
                ADD_FAILURE() << "no answer";
                return testo;
            }
            std::array<char, 4096> byte{};
            const auto letti = ::read(m_risposta, byte.data(), byte.size());
            if (letti > 0) testo.append(byte.data(), static_cast<std::size_t>(letti));
            else if (letti == 0) return testo;
        }
    }

    bool HaRisposto() const
    {
        pollfd attesa = {m_risposta, POLLIN, 0};
        return ::poll(&attesa, 1, 0) > 0;
    }

    // Lets a handler go on that reads "via".
    void Via() const
    {
        const int via = ::open(m_cartella.File("via").c_str(), O_RDWR | O_CLOEXEC);
        EXPECT_EQ(::write(via, "\n", 1), 1);
        m_via = via; // stays open: a FIFO that nobody has open loses its bytes
    }

    // Whether this process has a child that has not been reaped.
    static bool HaFigli() { return ::waitpid(-1, nullptr, WNOHANG) >= 0 || errno != ECHILD; }

private:
    CartellaDiProva m_cartella;
    int m_risposta = -1;
    mutable int m_via = -1;
};

constexpr auto Modo = StileFinestra::NormaleConFuoco;
constexpr const char* DiceGliArgomenti = R"(printf '%s\0' "$#" "$@" > risposta)";

// The answer of a handler that got this one argument.
std::string Uno(const std::string& percorso)
{
    return std::string("1\0", 2) + percorso + std::string(1, '\0');
}

} // namespace

TEST(ApriConShell, UnSoloArgomentoConIByteEsatti)
{
    for (const std::string percorso :
         {"/tmp/taglie.txt", "/tmp/due  spazi .txt ", "/tmp/l'apice", "/tmp/\"virgolette\"",
          "/tmp/$(touch x)`id`$HOME", "/tmp/a;b|c&d>e<f", "/tmp/riga\nnuova\n", "-rf", "--help",
          "/tmp/citt\xE0\xFF", "/tmp/caffè", "/tmp/*?[a]~", "/tmp/\\n%s", "/tmp/\t#!", ""}) {
        EXPECT_EQ(InUnFiglio([&] {
                      const Gestore gestore(DiceGliArgomenti);
                      EXPECT_TRUE(ApriConShell(percorso, Modo));
                      EXPECT_EQ(gestore.Risposta(), Uno(percorso));
                  }),
                  Riuscito)
            << percorso;
    }
}

TEST(ApriConShell, LoStileNonCambiaNullaQui)
{
    EXPECT_EQ(InUnFiglio([] {
                  const Gestore gestore(DiceGliArgomenti);
                  EXPECT_TRUE(ApriConShell("/a", StileFinestra::MassimizzataConFuoco));
                  EXPECT_EQ(gestore.Risposta(), Uno("/a"));
              }),
              Riuscito);
}

TEST(ApriConShell, NonAspettaCheIlGestoreFinisca)
{
    EXPECT_EQ(InUnFiglio([] {
                  const Gestore gestore("read riga < via\nprintf finito > risposta");
                  EXPECT_TRUE(ApriConShell("/a", Modo));
                  EXPECT_FALSE(gestore.HaRisposto()); // it waits for us, not we for it
                  gestore.Via();
                  EXPECT_EQ(gestore.Risposta(), "finito");
              }),
              Riuscito);
}

TEST(ApriConShell, NonLasciaProcessiDaRaccogliere)
{
    EXPECT_EQ(InUnFiglio([] {
                  const Gestore gestore("read riga < via\nprintf finito > risposta");
                  EXPECT_TRUE(ApriConShell("/a", Modo));
                  EXPECT_FALSE(Gestore::HaFigli()); // while it runs
                  gestore.Via();
                  gestore.Risposta();
                  EXPECT_FALSE(Gestore::HaFigli()); // and when it has ended
                  ::setenv("PATH", "/nessuna", 1);
                  EXPECT_FALSE(ApriConShell("/a", Modo));
                  EXPECT_FALSE(Gestore::HaFigli()); // or was never there
              }),
              Riuscito);
}

TEST(ApriConShell, LEsitoDelGestoreNonConta)
{
    EXPECT_EQ(InUnFiglio([] {
                  const Gestore gestore("printf no > risposta\nexit 3");
                  EXPECT_TRUE(ApriConShell("/a", Modo));
                  EXPECT_EQ(gestore.Risposta(), "no");
              }),
              Riuscito);
}

TEST(ApriConShell, SenzaGestoreFalso)
{
    EXPECT_EQ(InUnFiglio([] {
                  const CartellaDiProva cartella;
                  const auto programma = cartella.File("xdg-open");
                  ::setenv("PATH", cartella.Nome().c_str(), 1);
                  EXPECT_FALSE(ApriConShell("/a", Modo));
                  std::ofstream(programma) << "#!/assente/x\n";
                  EXPECT_FALSE(ApriConShell("/a", Modo)); // not executable
                  fs::permissions(programma, fs::perms::owner_all);
                  EXPECT_FALSE(ApriConShell("/a", Modo)); // nobody to run it
              }),
              Riuscito);
}

TEST(ApriConShell, ICanaliSonoNulliELaSessioneNuova)
{
    EXPECT_EQ(InUnFiglio([] {
                  const Gestore gestore("PATH=/usr/bin:/bin\n"
                                        "canali=$(readlink /proc/$$/fd/[012])\n"
                                        "cat <&0 && echo x >&1 && echo x >&2 && usabili=si\n"
                                        "sessione=$(cut -d' ' -f6 /proc/$$/stat)\n"
                                        "[ \"$sessione\" = $$ ] && sessione=sua\n"
                                        "printf '%s\\n' \"$canali\" \"$usabili\" "
                                        "\"$sessione\" > risposta");
                  // A channel that would be noticed at the other end.
                  std::array<int, 2> tubo{};
                  ASSERT_EQ(::pipe(tubo.data()), 0);
                  const int uscita = ::dup(STDOUT_FILENO);
                  ASSERT_EQ(::dup2(tubo[1], STDOUT_FILENO), STDOUT_FILENO);
                  const bool avviato = ApriConShell("/a", Modo);
                  ASSERT_EQ(::dup2(uscita, STDOUT_FILENO), STDOUT_FILENO);
                  EXPECT_TRUE(avviato);
                  EXPECT_EQ(gestore.Risposta(), "/dev/null\n/dev/null\n/dev/null\nsi\nsua\n");
              }),
              Riuscito);
}

TEST(ApriConShell, ISegnaliIgnoratiDaNoiNonLoSonoDalGestore)
{
    EXPECT_EQ(InUnFiglio([] {
                  std::signal(SIGPIPE, SIG_IGN);
                  std::signal(SIGXFSZ, SIG_IGN);
                  const Gestore gestore("PATH=/usr/bin:/bin\n"
                                        "ignorati=$(grep SigIgn /proc/$$/status)\n"
                                        "printf '%s' \"$ignorati\" > risposta");
                  EXPECT_TRUE(ApriConShell("/a", Modo));
                  const std::string ignorati = gestore.Risposta();
                  const auto inizio = ignorati.find('\t');
                  ASSERT_NE(inizio, std::string::npos) << ignorati;
                  const auto bit = std::stoull(ignorati.substr(inizio + 1), nullptr, 16);
                  EXPECT_EQ(bit >> (SIGPIPE - 1) & 1U, 0U);
                  EXPECT_EQ(bit >> (SIGXFSZ - 1) & 1U, 0U);
              }),
              Riuscito);
}

TEST(ApriConShell, CioCheIlGestoreScriveVaPerso)
{
    EXPECT_EQ(InUnFiglio([] {
                  const Gestore gestore("echo rumore\necho rumore >&2\nread x\n"
                                        "printf '%s' \"$?$x\" > risposta");
                  std::array<int, 2> tubo{};
                  ASSERT_EQ(::pipe2(tubo.data(), O_CLOEXEC | O_NONBLOCK), 0);
                  const int uscita = ::dup(STDOUT_FILENO);
                  const int errori = ::dup(STDERR_FILENO);
                  ASSERT_EQ(::dup2(tubo[1], STDOUT_FILENO), STDOUT_FILENO);
                  ASSERT_EQ(::dup2(tubo[1], STDERR_FILENO), STDERR_FILENO);
                  ApriConShell("/a", Modo);
                  ASSERT_EQ(::dup2(uscita, STDOUT_FILENO), STDOUT_FILENO);
                  ASSERT_EQ(::dup2(errori, STDERR_FILENO), STDERR_FILENO);
                  EXPECT_EQ(gestore.Risposta(), "1"); // its input was at the end at once
                  char byte = 0;
                  EXPECT_EQ(::read(tubo[0], &byte, 1), -1); // nothing in the pipe
                  EXPECT_EQ(errno, EAGAIN);
              }),
              Riuscito);
}
