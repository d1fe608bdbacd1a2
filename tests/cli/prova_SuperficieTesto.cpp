// A picture as lines of text.

#include "SuperficieTesto.h"

#include <gtest/gtest.h>

using cli::SuperficieTesto;

TEST(SuperficieTesto, UnTestoPerColonnaUnaRigaPerAltezza)
{
    SuperficieTesto superficie;
    EXPECT_EQ(superficie.Testo(), "");
    // Columns are drawn one after the other.
    PrintSemplice(superficie, "uno:", 1000, 1500, "Verdana", 16);
    PrintSemplice(superficie, "due:", 1000, 1800, "Verdana", 16);
    PrintSemplice(superficie, "tre:", 1000, 2200, "Verdana", 16);
    PrintSemplice(superficie, "1", 3500, 1500, "Verdana", 16);
    PrintSemplice(superficie, "2", 3500, 1800, "Verdana", 16);
    PrintSemplice(superficie, "50%", 4500, 1800, "Verdana", 16);
    EXPECT_EQ(superficie.Testo(), "uno:                1\n"
                                  "due:                2       50%\n"
                                  "\n"
                                  "tre:\n");
    superficie.Pulisci();
    EXPECT_EQ(superficie.Testo(), "");
}

TEST(SuperficieTesto, UnOmbraNonSiRipete)
{
    SuperficieTesto superficie;
    superficie.ImpostaFont("Arial Black", 20, Vero);
    superficie.ImpostaPosizione(1120, 180);
    superficie.Stampa("TITOLO");
    superficie.ImpostaPosizione(1100, 160);
    superficie.Stampa("TITOLO");
    EXPECT_EQ(superficie.Testo(), "TITOLO\n");
    superficie.ImpostaPosizione(1100, 500);
    superficie.Stampa("TITOLO");
    EXPECT_EQ(superficie.Testo(), "TITOLO\nTITOLO\n");
}

TEST(SuperficieTesto, UnTestoLungoSpostaQuelloDopo)
{
    SuperficieTesto superficie;
    PrintSemplice(superficie, "31 après:", 1000, 100, "Verdana", 16);
    PrintSemplice(superficie, "9.007.199.254.740.992", 3500, 100, "Verdana", 16);
    PrintSemplice(superficie, "1,00%", 4500, 100, "Verdana", 16);
    EXPECT_EQ(superficie.Testo(), "31 après:           9.007.199.254.740.992  1,00%\n");
}

TEST(SuperficieTesto, CarteEColoriNonSiVedono)
{
    SuperficieTesto superficie;
    superficie.ImpostaSfondo({1, 2, 3});
    superficie.ImpostaColoreTesto({1, 2, 3});
    superficie.cdtDraw(0, 0, 1, 0, {});
    superficie.Aggiorna();
    EXPECT_EQ(superficie.Testo(), "");
}
