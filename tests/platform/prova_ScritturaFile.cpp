// Writing to an open descriptor when the system does not go on.

#include "ScritturaFile.h"

#include "Scritture.h"

#include <gtest/gtest.h>

#include <cerrno>

using aiuti::ErroreDi;

TEST(ScriviSuDescrittore, ZeroByteScrittiSonoUnErroreNonUnGiroSenzaFine)
{
    aiuti::ScrittureGuaste scritture;
    scritture.Guasta(1, 0, aiuti::Durata::DaAllora);
    const auto errore = ErroreDi([] { ScriviSuDescrittore(1, "x", "uscita"); });
    ASSERT_TRUE(errore);
    EXPECT_EQ(errore->File(), "uscita");
    EXPECT_EQ(errore->Numero(), NumeroErrore::ErroreInputOutput);
    EXPECT_EQ(scritture.Scritture(), 1);
}

TEST(ScriviSuDescrittore, NullaDaScrivereNonChiama)
{
    aiuti::ScrittureGuaste scritture;
    scritture.Guasta(1, EIO, aiuti::Durata::DaAllora);
    EXPECT_FALSE(ErroreDi([] { ScriviSuDescrittore(-1, "", "x"); }));
    EXPECT_EQ(scritture.Scritture(), 0);
}
