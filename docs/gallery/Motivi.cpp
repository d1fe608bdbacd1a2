// The tilings of the gallery: small drawings that fill areas under their names, as
// Pagine_Figure.cpp shows.

#include "Galleria.h"

namespace galleria {

namespace {

constexpr int Colorato = 1;
constexpr int SenzaColore = 2;

void Losanghe(clsPDFCreator& pdf)
{
    pdf.BeginTiling("Losanghe", 0, 0, 8, 8, 8, 8, Colorato);
    pdf.SetColorFill(Carta);
    pdf.DrawRect(0, 0, 8, 8, 4);
    pdf.SetColorFill(Rosso);
    Poligono(pdf, {{4, 0.7F}, {7, 4}, {4, 7.3F}, {1, 4}}, 4);
    pdf.EndTiling();
}

void Squame(clsPDFCreator& pdf)
{
    pdf.BeginTiling("Squame", 0, 0, 8, 8, 8, 8, Colorato);
    pdf.SetColorFill(Panno);
    pdf.DrawRect(0, 0, 8, 8, 4);
    pdf.SetColorLine(Oro);
    pdf.SetLineStyle(0.4F);
    // From the top down, each row over the one above.
    for (const Punto& centro : {Punto{0, 0}, {8, 0}, {4, 4}, {0, 8}, {8, 8}}) {
        for (const float raggio : {4.0F, 2.7F, 1.4F}) {
            pdf.DrawArc(centro.X, centro.Y, raggio, 180, 360, 5);
        }
    }
    pdf.EndTiling();
}

// The cell need not begin at the origin.
void Mattoni(clsPDFCreator& pdf)
{
    pdf.BeginTiling("Mattoni", 3, 2, 15, 10, 12, 8, Colorato);
    pdf.SetColorFill("#E9DCC3");
    pdf.DrawRect(0, 0, 12, 8, 4);
    pdf.SetColorFill("#B5583B");
    pdf.DrawRect(0.3F, 0.3F, 11.4F, 3.4F, 4, 0.4F);
    pdf.SetColorFill("#A34A30");
    pdf.DrawRect(-5.7F, 4.3F, 11.4F, 3.4F, 4, 0.4F);
    pdf.DrawRect(6.3F, 4.3F, 11.4F, 3.4F, 4, 0.4F);
    pdf.EndTiling();
}

void Punti(clsPDFCreator& pdf)
{
    pdf.BeginTiling("Punti", 0, 0, 4, 4, 4, 4, SenzaColore);
    pdf.DrawCircle(1, 1, 0.9F, 4);
    pdf.DrawCircle(3, 3, 0.6F, 4);
    pdf.EndTiling();
}

} // namespace

void Motivi(clsPDFCreator& pdf)
{
    Losanghe(pdf);
    Squame(pdf);
    Mattoni(pdf);
    Punti(pdf);
}

} // namespace galleria
