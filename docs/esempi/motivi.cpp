// Areas filled with a tile or with a blend of two colours.
#include "clsPDFCreator.h"

namespace {

void Tiles(clsPDFCreator& pdf)
{
    pdf.BeginTiling("Diamonds", 0, 0, 8, 8, 8, 8); // coloured by what it draws
    pdf.SetColorFill("#F7F1E1");
    pdf.DrawRect(0, 0, 8, 8, 4);
    pdf.SetColorFill("#C1272D");
    pdf.MoveTo(4, 0.5);
    pdf.DrawLineTo(7, 4, 0);
    pdf.DrawLineTo(4, 7.5, 0);
    pdf.DrawLineTo(1, 4, 4);
    pdf.EndTiling();
    pdf.BeginTiling("Dots", 0, 0, 4, 4, 4, 4, 2); // takes a colour where it is chosen
    pdf.DrawCircle(2, 2, 1, 4);
    pdf.EndTiling();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    Tiles(pdf);
    pdf.BeginPage();
    pdf.SetColorFill("Diamonds");
    pdf.DrawRect(8, 8, 40, 40, 5, 4);
    pdf.SetColorFill("Dots", "#1F4E3D");
    pdf.DrawRect(54, 8, 40, 40, 5, 4);
    pdf.SetColorFill("Dots", "#C9A227");
    pdf.DrawCircle(120, 28, 20, 5);

    pdf.SetLinearFill({"#1F4E3D", "#E4B363"}, 8, 0, 94, 0);
    pdf.DrawRect(8, 56, 86, 18, 5, 4);
    pdf.SetRadialFill({"White", "#C1272D"}, 114, 70, 1, 120, 76, 20);
    pdf.DrawCircle(120, 76, 20, 5);
    pdf.SetLinearFill({"#C1272D", "#29335C"}, 0, 82, 0, 98);
    pdf.SetFont("Times New Roman", 54, 1);
    pdf.DrawText(51, 97, "Scalvino", 4); // letters are areas too
    pdf.EndPage();
    pdf.EndDoc();
}
