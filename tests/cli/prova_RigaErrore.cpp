// The line that tells an error: from which length on it is shortened.

#include "RigaErrore.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Detto(const std::string& testo)
{
    testing::internal::CaptureStderr();
    cli::ScriviErrore({testo});
    return testing::internal::GetCapturedStderr();
}

} // namespace

TEST(ScriviErrore, AccorciaSoloCioCheSuperaLaMisura)
{
    const std::string intero = "inizio" + std::string(4608 - 6 - 4, '.') + "fine";
    EXPECT_EQ(Detto(intero), "taglie: " + intero + "\n");
    const std::string lungo = "inizio" + std::string(4609 - 6 - 4, '.') + "fine";
    EXPECT_EQ(Detto(lungo), "taglie: inizio" + std::string(120 - 6 + 3 + 200 - 4, '.') + "fine\n");
}
