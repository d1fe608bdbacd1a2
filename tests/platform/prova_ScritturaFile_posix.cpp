// Writing to a device that is full.

#include "ScritturaFile.h"

#include "Scritture.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

using aiuti::ErroreDi;

TEST(ScriviSuDescrittore, IlDispositivoPienoDiceLaVeraRagione)
{
    const int piena = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    if (piena < 0) GTEST_SKIP() << "no /dev/full";
    const auto errore = ErroreDi([&] { ScriviSuDescrittore(piena, "x", "uscita"); });
    ::close(piena);
    ASSERT_TRUE(errore);
    EXPECT_STREQ(errore->what(), "uscita: spazio esaurito sul disco");
}
