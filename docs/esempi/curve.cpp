// Bezier curves, circles, ellipses and arcs: a chart and a heart.
#include "clsPDFCreator.h"

namespace {

constexpr float Percent = 3.6F; // in degrees

// The arc goes on to the centre and is closed there.
void Slice(clsPDFCreator& pdf, float from, float to, const char* color)
{
    pdf.SetColorFill(color);
    pdf.DrawArc(42, 38, 28, from * Percent, to * Percent, 0);
    pdf.DrawLineTo(42, 38, 7);
}

void Heart(clsPDFCreator& pdf, float x, float y)
{
    pdf.MoveTo(x, y);
    pdf.DrawCurveA(x - 14, y - 19, x - 36, y + 2, x, y + 33, 0); // both control points
    pdf.DrawCurveA(x + 36, y + 2, x + 14, y - 19, x, y, 7);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.BeginPage();
    pdf.SetLineStyle(0.5F, 1, 1);
    pdf.SetColorLine("White");
    Slice(pdf, 0, 44.52F, "#222222");
    Slice(pdf, 44.52F, 89.04F, "#C1272D");
    Slice(pdf, 89.04F, 100, "#E4B363");

    pdf.SetColorFill("#C1272D");
    Heart(pdf, 106, 25);
    pdf.SetColorLine("#1F4E3D");
    for (float ray = 3; ray <= 15; ray += 3) {
        pdf.DrawCircle(24, 86, ray);
        pdf.DrawEllipse(70, 86, 26, ray);
    }
    pdf.MoveTo(102, 98);
    pdf.DrawCurveB(112, 66, 122, 86, 0); // the first control point is the start
    pdf.DrawCurveC(132, 106, 142, 74);   // the second one is the end
    pdf.EndPage();
    pdf.EndDoc();
}
