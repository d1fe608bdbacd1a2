// Whether standard error is a terminal. Each test runs in a child, since it changes standard error.

#include "Terminale.h"

#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using aiuti::InUnFiglio;
using aiuti::Riuscito;

TEST(ErroriSuTerminale, UnTuboEUnFileNonSonoUnTerminale)
{
    EXPECT_EQ(InUnFiglio([] {
                  std::array<int, 2> tubo{};
                  ASSERT_EQ(::pipe(tubo.data()), 0);
                  ASSERT_EQ(::dup2(tubo[1], STDERR_FILENO), STDERR_FILENO);
                  EXPECT_FALSE(ErroriSuTerminale());
                  const int nulla = ::open("/dev/null", O_WRONLY);
                  ASSERT_EQ(::dup2(nulla, STDERR_FILENO), STDERR_FILENO);
                  EXPECT_FALSE(ErroriSuTerminale());
                  EXPECT_EQ(ColonneErrori(), 0);
                  ::close(STDERR_FILENO);
                  EXPECT_FALSE(ErroriSuTerminale());
              }),
              Riuscito);
}

TEST(ErroriSuTerminale, UnTerminaleSi)
{
    const int esito = InUnFiglio([] {
        const int capo = ::posix_openpt(O_RDWR | O_NOCTTY);
        if (capo < 0 || ::grantpt(capo) != 0 || ::unlockpt(capo) != 0) aiuti::EsciImpossibile();
        const int terminale = ::open(::ptsname(capo), O_RDWR | O_NOCTTY);
        if (terminale < 0) aiuti::EsciImpossibile();
        ASSERT_EQ(::dup2(terminale, STDERR_FILENO), STDERR_FILENO);
        EXPECT_TRUE(ErroriSuTerminale());
        EXPECT_EQ(ColonneErrori(), 0); // a terminal that does not know
        winsize misure = {24, 132, 0, 0};
        ASSERT_EQ(::ioctl(capo, TIOCSWINSZ, &misure), 0);
        EXPECT_EQ(ColonneErrori(), 132);
    });
    if (esito == aiuti::Impossibile) GTEST_SKIP() << "no pseudo-terminals here";
    EXPECT_EQ(esito, Riuscito);
}
