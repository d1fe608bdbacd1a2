// A path is built step by step and painted with the last one; rectangles stand alone.
#include "clsPDFCreator.h"

#include <cmath>

namespace {

// Options: 1 strokes, 2 closes, 4 fills, added up; 0 goes on with the next step.
void Star(clsPDFCreator& pdf, float x, float y, float ray, int options)
{
    constexpr int points = 5;
    constexpr double pi = 3.141592653589793;
    for (int i = 0; i < points; ++i) {
        const double angle = (0.8 * i - 0.5) * pi; // every second corner
        const float px = x + ray * static_cast<float>(std::cos(angle));
        const float py = y + ray * static_cast<float>(std::sin(angle));
        if (i == 0) {
            pdf.MoveTo(px, py);
        } else {
            pdf.DrawLineTo(px, py, i + 1 < points ? 0 : options);
        }
    }
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
    pdf.SetColorLine("#1F4E3D");
    pdf.SetColorFill("#E4B363");
    pdf.SetLineStyle(0.7F, 1, 1);
    Star(pdf, 24, 30, 18, 1); // open
    Star(pdf, 74, 30, 18, 3); // closed
    Star(pdf, 124, 30, 18, 7);

    pdf.DrawRect(8, 60, 28, 36);
    pdf.DrawRect(43, 60, 28, 36, 5, 4);
    pdf.DrawRect(78, 60, 28, 36, 4, 18); // the radius is cut to half the width
    for (float inset = 0; inset < 14; inset += 2) {
        pdf.DrawRect(113 + inset, 60 + inset, 28 - 2 * inset, 36 - 2 * inset, 1, 14 - inset);
    }
    pdf.EndPage();
    pdf.EndDoc();
}
