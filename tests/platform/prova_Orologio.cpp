// The time of day.

#include "prova_Orologio.h"

#include <cmath>

using namespace orologio;

TEST(SecondiDaMezzanotte, FraZeroEUnGiornoEComeLaLibreria)
{
    for (int i = 0; i < 1000; ++i) ConfrontaConLaLibreria();
}

TEST(SecondiDaMezzanotte, HaAncheLeFrazioni)
{
    // The clock moves on in steps of some milliseconds: one of them falls between two seconds.
    bool frazione = false;
    const double inizio = SecondiTrascorsi();
    while (!frazione && SecondiTrascorsi() - inizio < 60) {
        const double secondi = SecondiDaMezzanotte();
        frazione = secondi != std::floor(secondi);
    }
    EXPECT_TRUE(frazione);
}

TEST(SecondiTrascorsi, NonTornanoIndietro)
{
    double prima = SecondiTrascorsi();
    for (int i = 0; i < 10000; ++i) {
        const double adesso = SecondiTrascorsi();
        ASSERT_GE(adesso, prima);
        prima = adesso;
    }
}
