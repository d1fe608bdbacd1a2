// Which exit code an error of the run ends with.

#include "Uscita.h"

#include <gtest/gtest.h>

using namespace cli;

TEST(Uscita, QuattroPerIFile)
{
    for (const auto numero : {NumeroErrore::FileNonTrovato, NumeroErrore::ErroreInputOutput,
                              NumeroErrore::DiscoPieno, NumeroErrore::PermessoNegato,
                              NumeroErrore::AccessoAlFile, NumeroErrore::PercorsoNonTrovato}) {
        EXPECT_EQ(UscitaPer(numero), 4) << static_cast<int>(numero);
    }
}

TEST(Uscita, TrePerPiuDiQuantoUnDocumentoTenga)
{
    EXPECT_EQ(UscitaPer(NumeroErrore::Overflow), 3);
}

TEST(Uscita, CinquePerTuttoIlResto)
{
    EXPECT_EQ(UscitaPer(NumeroErrore::ChiamataNonValida), 5);
    EXPECT_EQ(UscitaPer(NumeroErrore::MemoriaEsaurita), 5);
    EXPECT_EQ(UscitaPer(NumeroErrore::DivisionePerZero), 5);
}
