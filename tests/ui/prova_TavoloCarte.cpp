// The widget: it shows what is drawn on it, at once when it is told to.

#include "Tavolo.h"

#include <QCoreApplication>

using namespace aiuti;

TEST_F(Tavolo, CioCheSiVedeEIlDisegno)
{
    Colpo();
    const QImage vista = Carte().grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(vista.size(), Carte().Disegno().Immagine.size());
    EXPECT_LT(Scarto(vista, Carte().Disegno().Immagine), 0.01);
}

// At once, not when events are dealt with again: a report may keep the thread busy until its end.
TEST_F(Tavolo, AggiornareDipingeSubito)
{
    QCoreApplication::processEvents();
    const ContaDipinti contatore(&Carte());
    Carte().Aggiorna();
    EXPECT_EQ(contatore.Dipinti, 1);
}
