// What every report says of a whole run.

#include "ErroreRuntime.h"
#include "RigheGenerali.h"

#include <gtest/gtest.h>

using namespace Stampe;

namespace {

const Separatori Italiani{",", "."};

TotaliReport Totali()
{
    TotaliReport totali;
    totali.Colpi = 50;
    totali.CarteUsate = 468;
    totali.VinceNero = 20;
    totali.RossoInverso = 7;
    return totali;
}

} // namespace

TEST(RigheGenerali, ColpiPerTagliaCarteDelMazzoEsitiDeiColpi)
{
    const auto righe = RigheGenerali(NumeroTaglie(2), Totali(), Italiani);
    ASSERT_EQ(righe.size(), 12U);
    EXPECT_EQ(righe[0].Etichetta, "Colpi totali:");
    EXPECT_EQ(righe[0].Totale, 50);
    EXPECT_EQ(righe[0].Quota, "25,00");
    EXPECT_EQ(righe[1].Etichetta, "Carte utilizzate:");
    EXPECT_EQ(righe[1].Quota, "75,00%"); // 468 of 624
    EXPECT_EQ(righe[PrimoEsito].Etichetta, "Vincite Nero:");
    EXPECT_EQ(righe[PrimoEsito].Quota, "40,00%");
    EXPECT_EQ(righe[PrimaCombinata].Etichetta, "Vincite Nero-Colore:");
    EXPECT_EQ(righe[11].Etichetta, "Vincite Rosso-Inverso:");
    EXPECT_EQ(righe[11].Totale, 7);
    EXPECT_EQ(righe[11].Quota, "14,00%");
}

TEST(RigheGenerali, SenzaColpiNonCiSonoQuote)
{
    EXPECT_THROW(RigheGenerali(NumeroTaglie(1), TotaliReport(), Italiani), ErroreRuntime);
}

TEST(EtichettaBreve, SoloLeCombinazioniPerdonoLaParola)
{
    EXPECT_EQ(EtichettaBreve(0), "Vincite Nero:");
    EXPECT_EQ(EtichettaBreve(5), "31 après:");
    EXPECT_EQ(EtichettaBreve(6), "Nero-Colore:");
    EXPECT_EQ(EtichettaBreve(9), "Rosso-Inverso:");
}
