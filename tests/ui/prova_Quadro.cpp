// The picture behind the table: kept, covered, drawn anew, cut off at its edge; captions of one
// line give way to each other.

#include "Tavolo.h"

using namespace aiuti;

TEST_F(Tavolo, ConservaIlDisegnoEUnNuovoSfondoLoRicopre)
{
    Carte().Pulisci();
    Carte().PrintText("Ciao", 1500, 1500, "Arial", 28, 400, 0, Falso, Falso, Falso);
    EXPECT_FALSE(Inchiostro({0, 0, 550, 388}).isNull());
    Carte().ImpostaSfondo({0, 0, 255});
    EXPECT_EQ(Punto(110, 110), QColor(0, 0, 255));
    Carte().Pulisci();
    EXPECT_EQ(Punto(0, 0), QColor(0, 0, 255));
    EXPECT_EQ(Carte().ColoreTesto(), Colore());
}

TEST_F(Tavolo, SiRidisegnaDaSoloQuandoCambiaLaDensita)
{
    Colpo();
    const QImage prima = Carte().Disegno().Immagine;
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, prima);
    // Also after a clear that kept colours of an earlier screen.
    Clicca("cmdCancel");
    const QImage titolo = Carte().Disegno().Immagine;
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, titolo);
}

TEST_F(Tavolo, RidisegnatoRicominciaDaiColoriDiAllora)
{
    Carte().Pulisci();
    Carte().PrintText("Prima", 1500, 1500, "Arial", 28, 400, 0, Falso, Falso, Falso);
    Carte().ImpostaColoreTesto({255, 0, 0});
    Carte().PrintText("Dopo", 1500, 3000, "Arial", 28, 400, 0, Falso, Falso, Falso);
    const QImage prima = Carte().Disegno().Immagine;
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, prima);
}

TEST_F(Tavolo, LeCarteTroppoADestraSonoTagliate)
{
    Carte().Pulisci();
    Carte().cdtDraw(530, 20, 0, 0, {127, 127, 127});
    Carte().cdtDraw(-30, -40, 0, 0, {127, 127, 127});
    EXPECT_EQ(Punto(530, 20), Grigio);
    EXPECT_TRUE(Vicini(Punto(545, 60), Qt::white, 40));
    EXPECT_TRUE(Vicini(Punto(30, 10), Qt::white, 40));
}

// Columns are fixed: what is too long for its own is drawn narrower, and what is not stays.
TEST_F(Tavolo, UnTotaleLungoSiStringeQuantoBasta)
{
    const QRect valore(228, 95, 72, 30);
    for (const char* lungo : {"3.040.458", "304.058.123", "304.058.123.456"}) {
        SCOPED_TRACE(lungo);
        Riga({{lungo, 3500}});
        const QRect libero = Inchiostro({228, 95, 300, 30});
        Riga({{lungo, 3500}, {"97,45%", 4500}});
        const QRect stretto = Inchiostro(valore);
        EXPECT_NEAR(stretto.left(), libero.left(), 1);
        EXPECT_NEAR(stretto.top(), libero.top(), 1);
        EXPECT_NEAR(stretto.bottom(), libero.bottom(), 1);
        EXPECT_LT(stretto.right(), libero.right());
        // A blank of 4 pixels stays, and no more; the last digit has an edge of its own.
        EXPECT_LE(stretto.right(), 300 - 4);
        EXPECT_GE(stretto.right(), 300 - 4 - 3);
    }
}

TEST_F(Tavolo, SoloChiUrterebbeSiStringe)
{
    // The caption further right keeps its picture, and a short one before it, too.
    const QImage quota = Riga({{"97,45%", 4500}});
    const QImage corto = Riga({{"304.058", 3500}});
    const QImage insieme = Riga({{"304.058", 3500}, {"97,45%", 4500}});
    const int meta = qRound(296 * Carte().Disegno().Rapporto);
    const QRect sinistra(0, 0, meta, insieme.height());
    const QRect destra(meta, 0, insieme.width() - meta, insieme.height());
    EXPECT_EQ(insieme.copy(sinistra), corto.copy(sinistra));
    EXPECT_EQ(insieme.copy(destra), quota.copy(destra));
    EXPECT_EQ(Riga({{"304.058.123", 3500}, {"97,45%", 4500}}).copy(destra), quota.copy(destra));
    // Whichever of the two comes first.
    EXPECT_EQ(Riga({{"97,45%", 4500}, {"304.058.123", 3500}}),
              Riga({{"304.058.123", 3500}, {"97,45%", 4500}}));
    // Another line, the same place and what reads upwards are no neighbours.
    const QImage lungo = Riga({{"304.058.123", 3500}});
    const QRect riga(0, qRound(95 * Carte().Disegno().Rapporto), lungo.width(),
                     qRound(30 * Carte().Disegno().Rapporto));
    Scritta("97,45%", 4500, 3000);
    Carte().PrintText("NERO", 5400, 1500, "Arial", 28, 400, 900, Falso, Falso, Falso);
    Carte().Aggiorna();
    EXPECT_EQ(Carte().Disegno().Immagine.copy(riga).copy(0, 0, meta, riga.height()),
              lungo.copy(riga).copy(0, 0, meta, riga.height()));
    EXPECT_EQ(Riga({{"304.058.123", 3500}, {"304.058.123", 3500}}).size(), lungo.size());
}

TEST_F(Tavolo, StrettoRestaAncheRidisegnato)
{
    const QImage prima = Riga({{"304.058.123", 3500}, {"97,45%", 4500}});
    Carte().Disegno().Immagine = QImage(10, 10, QImage::Format_RGB32);
    Carte().repaint();
    EXPECT_EQ(Carte().Disegno().Immagine, prima);
}
