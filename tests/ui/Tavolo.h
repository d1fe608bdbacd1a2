// The card table of the window under test, with eyes for its pixels. The window itself: Finestra.h.
#pragma once

#include "Finestra.h"

#include <QColor>
#include <QImage>

#include <string>
#include <utility>
#include <vector>

namespace aiuti {

inline const QColor Verde(105, 230, 0);
inline const QColor Grigio(127, 127, 127);

class Tavolo : public Finestra
{
protected:
    TavoloCarte& Carte() { return *Trova<TavoloCarte>("picCard"); }

    // The picture at one pixel of the layout each, whatever the screen's density.
    QImage Immagine();

    // The pixel of the screen where a pixel of the layout begins, untouched by scaling.
    QColor Punto(int x, int y);

    // The smallest box within zona that holds every pixel which differs from the background.
    QRect Inchiostro(const QRect& zona);

    static bool Vicini(const QColor& uno, const QColor& altro, int scarto);

    // Shows a coup, the end of a shoe, the statistics of a run of so many shoes.
    void Colpo();
    void Fine();
    void Video(const char* taglie = "1000");

    // The rows of the statistics as a run of so many shoes would print them, which takes hours.
    void VideoDi(double taglie);

    // A caption as the statistics print them.
    void Scritta(const std::string& testo, float x, float y);

    // What these captions look like on an empty table, each a text and its x on the line y 1500.
    QImage Riga(const std::vector<std::pair<std::string, float>>& scritte);
};

// Mean difference of a channel, 0 to 255.
double Scarto(const QImage& una, const QImage& altra);

} // namespace aiuti
