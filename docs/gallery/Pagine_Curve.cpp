// Page of the gallery: curves, circles, arcs. Next: Pagine_Spazi.cpp.

#include "Galleria.h"

namespace galleria {

namespace {

void Controllo(clsPDFCreator& pdf, const Punto& da, const Punto& a)
{
    pdf.SetColorLine(Oro);
    pdf.SetColorFill(Oro);
    pdf.SetLineStyle(0.2F, 0, 0, 0, 1, 1);
    pdf.DrawLine(da.X, da.Y, a.X, a.Y);
    pdf.DrawCircle(a.X, a.Y, 0.9F, 4);
}

void TreCurve(clsPDFCreator& pdf)
{
    Controllo(pdf, {22, 78}, {30, 47});
    Controllo(pdf, {66, 78}, {58, 47});
    Controllo(pdf, {128, 78}, {98, 47});
    Controllo(pdf, {142, 78}, {176, 47});
    pdf.SetColorLine(Panno);
    pdf.SetLineStyle(0.9F, 1);
    pdf.MoveTo(22, 78);
    pdf.DrawCurveA(30, 47, 58, 47, 66, 78);
    pdf.MoveTo(82, 78);
    pdf.DrawCurveB(98, 47, 128, 78);
    pdf.MoveTo(142, 78);
    pdf.DrawCurveC(176, 47, 188, 78);
    Didascalia(pdf, 44, 85, "DrawCurveA: due punti di controllo");
    Didascalia(pdf, 105, 85, "DrawCurveB: il primo è l'inizio");
    Didascalia(pdf, 165, 85, "DrawCurveC: il secondo è la fine");
}

void Tondi(clsPDFCreator& pdf)
{
    constexpr const char* colori[] = {Panno, Oro, Rosso, Carta};
    int quale = 0;
    pdf.SetLineStyle(0.3F);
    pdf.SetColorLine(Inchiostro);
    for (float raggio = 20; raggio > 1; raggio -= 2.5F) {
        pdf.SetColorFill(colori[quale++ % 4]);
        pdf.DrawCircle(40, 126, raggio, 5);
    }
    pdf.SetColorLine(Rosso);
    for (float raggio = 2; raggio <= 20; raggio += 3) {
        pdf.DrawEllipse(105, 126, 32, raggio);
        pdf.DrawEllipse(165, 126, raggio, 20);
    }
    Didascalia(pdf, 40, 152, "DrawCircle");
    Didascalia(pdf, 105, 152, "DrawEllipse, larga");
    Didascalia(pdf, 165, 152, "e alta");
}

void Fetta(clsPDFCreator& pdf, const Punto& centro, float da, float a, const char* colore)
{
    pdf.SetColorFill(colore);
    pdf.DrawArc(centro.X, centro.Y, 24, da, a, 0);
    pdf.DrawLineTo(centro.X, centro.Y, 7);
}

// The odds of the first coup: two sides alike and the tie.
void Torta(clsPDFCreator& pdf)
{
    constexpr float vince = 160.27F;
    pdf.SetColorLine("White");
    pdf.SetLineStyle(0.8F, 1, 1);
    Fetta(pdf, {44, 194}, 90, 90 + vince, Inchiostro);
    Fetta(pdf, {44, 194}, 90 + vince, 90 + 2 * vince, Rosso);
    Fetta(pdf, {44, 194}, 90 + 2 * vince, 450, Oro);
    Didascalia(pdf, 44, 224, "Nero 44,5 %, Rosso 44,5 %, pari 11 %");
}

void Archi(clsPDFCreator& pdf)
{
    pdf.SetColorLine(Panno);
    pdf.SetLineStyle(1.6F, 1);
    float raggio = 3;
    for (float fine = 45; fine <= 360; fine += 45) {
        pdf.DrawArc(110, 194, raggio, 0, fine);
        raggio += 2.9F;
    }
    Didascalia(pdf, 110, 224, "DrawArc da 0 a 45, 90 ... 360 gradi");
}

void Cuore(clsPDFCreator& pdf, float x, float y, float lato)
{
    pdf.MoveTo(x, y - lato / 4);
    pdf.DrawCurveA(x - lato * 0.4F, y - lato, x - lato, y - lato / 4, x, y + lato * 0.6F, 0);
    pdf.DrawCurveA(x + lato, y - lato / 4, x + lato * 0.4F, y - lato, x, y - lato / 4, 7);
}

void Onde(clsPDFCreator& pdf)
{
    for (int onda = 0; onda < 6; ++onda) {
        const float y = 246 + 5 * static_cast<float>(onda);
        pdf.SetColorLine(clsPDFCreator::ToColor(100 - 15 * onda, 20 + 10 * onda, 60, 20));
        pdf.SetLineStyle(1.2F);
        pdf.MoveTo(Sinistra, y);
        for (float x = Sinistra; x < 190; x += 29) {
            pdf.DrawCurveA(x + 10, y - 14, x + 19, y + 14, x + 29, y, x < 160 ? 0 : 1);
        }
    }
}

} // namespace

void PaginaCurve(clsPDFCreator& pdf)
{
    ApriPagina(pdf, "Curve", "DrawCurveA, B e C, DrawCircle, DrawEllipse, DrawArc");
    Sezione(pdf, 38, "Curve di Bézier");
    TreCurve(pdf);
    Sezione(pdf, 98, "Cerchi ed ellissi");
    Tondi(pdf);
    Sezione(pdf, 163, "Archi");
    Torta(pdf);
    Archi(pdf);
    pdf.SetColorFill(Rosso);
    pdf.SetColorLine(Oro);
    pdf.SetLineStyle(1, 1, 1);
    Cuore(pdf, 167, 192, 28);
    Didascalia(pdf, 167, 224, "due curve, un cuore");
    Sezione(pdf, 235, "Onde");
    Onde(pdf);
    ChiudiPagina(pdf);
}

} // namespace galleria
