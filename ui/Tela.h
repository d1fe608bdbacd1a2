// The memory of a picture. Quadro.h owns the card table's.
#pragma once

#include <QImage>

// A picture in device pixels, and how many of them make one pixel of the layout. The image itself
// has a ratio of 1, so that cards fall on whole device pixels at every scale.
struct Tela
{
    QImage Immagine;
    qreal Rapporto = 1;
};
