// Captions of Generale::PrintText as ink on the table, and resources that the program lacks.

#include "Generale.h"
#include "Tavolo.h"

using namespace aiuti;

TEST_F(Tavolo, LaDidascaliaStaNellaSuaCella)
{
    struct Caso
    {
        const char* Faccia;
        int Altezza;
    };
    for (const auto& [faccia, altezza] :
         {Caso{"Arial", 14}, {"Arial", 22}, {"Arial", 28}, {"Verdana", 16}, {"Arial Black", 32}}) {
        Carte().Pulisci();
        Carte().PrintText("ÀHgjpq", 1500, 1500, faccia, altezza, 400, 0, Falso, Falso, Falso);
        const QRect inchiostro = Inchiostro({0, 0, 550, 388});
        EXPECT_GE(inchiostro.left(), 99) << faccia;
        EXPECT_LE(inchiostro.left(), 104) << faccia;
        EXPECT_GE(inchiostro.top(), 99) << faccia << altezza;
        EXPECT_LE(inchiostro.bottom(), 100 + altezza) << faccia << altezza;
        EXPECT_GE(inchiostro.height(), altezza / 2) << faccia;
    }
}

TEST_F(Tavolo, LAngoloGiraIlTestoVersoLAlto)
{
    Carte().Pulisci();
    Carte().PrintText("NERO", 1500, 3000, "Arial", 28, 400, 900, Falso, Falso, Falso);
    const QRect su = Inchiostro({0, 0, 550, 388});
    EXPECT_GE(su.left(), 99);
    EXPECT_LE(su.right(), 100 + 28);
    EXPECT_LE(su.bottom(), 201);
    EXPECT_GT(su.height(), 2 * su.width());
    Carte().Pulisci();
    Carte().PrintText("NERO", 1500, 3000, "Arial", 28, 400, 0, Falso, Falso, Falso);
    const QRect piano = Inchiostro({0, 0, 550, 388});
    EXPECT_NEAR(piano.width(), su.height(), 2);
    // Longer than its band it simply runs on upwards.
    Carte().PrintText("NERO NERO NERO NERO NERO", 1500, 3000, "Arial", 28, 400, 900, Falso, Falso,
                      Falso);
    EXPECT_EQ(Inchiostro({0, 0, 550, 388}).top(), 0);
}

TEST_F(Tavolo, CorsivoSottolineatoEBarratoSiVedono)
{
    const auto disegna = [this](Flag corsivo, Flag sottolineato, Flag barrato) {
        Carte().Pulisci();
        Carte().PrintText("Il", 1500, 1500, "Arial", 28, 400, 0, corsivo, sottolineato, barrato);
        return Carte().Disegno().Immagine.copy();
    };
    const QImage normale = disegna(Falso, Falso, Falso);
    EXPECT_NE(disegna(Vero, Falso, Falso), normale);
    EXPECT_NE(disegna(Falso, Vero, Falso), normale);
    EXPECT_NE(disegna(Falso, Falso, Vero), normale);
    EXPECT_EQ(disegna(Falso, Falso, 1), disegna(Falso, Falso, Vero));
}

TEST_F(Finestra, UnaRisorsaCheNonCESiIgnora)
{
    Generale::ApriRisorsa("scalvino.htm", 102);
    EXPECT_TRUE(ambiente.Aperti.empty());
    EXPECT_TRUE(ambiente.Cartella.Contenuto().empty());
}
