// The errors that only some systems know.

#include "ErroreSistema.h"

#include <gtest/gtest.h>

#include <cerrno>

TEST(ErroreSistema, LaQuotaSuperataEUnDiscoPieno)
{
    const auto errore = ErroreSistema(EDQUOT, "x");
    EXPECT_EQ(errore.Numero(), NumeroErrore::DiscoPieno);
    EXPECT_EQ(errore.Motivo(), "superata la quota di disco dell'utente");
}
