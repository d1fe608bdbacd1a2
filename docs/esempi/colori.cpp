// Colours by name, as greys, in hexadecimal digits, computed; caps, joins, dashes of lines.
#include "clsPDFCreator.h"

namespace {

void Swatch(clsPDFCreator& pdf, float x, float y, const std::string& color)
{
    pdf.SetColorFill(color);
    pdf.DrawRect(x, y, 10, 10, 5, 2);
}

void Swatches(clsPDFCreator& pdf)
{
    const char* names[] = {"Black",  "Gray",  "Silver", "White", "Fuchsia", "Red",
                           "Yellow", "Green", "Aqua",   "Blue",  "#C8553D", "#1F4E3D"};
    float x = 7.5F;
    for (const char* name : names) {
        Swatch(pdf, x, 8, name);
        const int step = static_cast<int>(x - 7.5F) / 11;
        Swatch(pdf, x, 20, "%" + std::to_string(9 * step));
        Swatch(pdf, x, 32, clsPDFCreator::ToColor(255, 20 * step, 80));  // red, green, blue
        Swatch(pdf, x, 44, clsPDFCreator::ToColor(9 * step, 0, 60, 10)); // cyan ... black
        x += 11.2F;
    }
}

void Corner(clsPDFCreator& pdf, float x, int kind)
{
    pdf.SetLineStyle(4, kind, kind, 10); // round ends go with round corners
    pdf.MoveTo(x, 93);
    pdf.DrawLineTo(x + 10, 70, 0);
    pdf.DrawLineTo(x + 20, 93, 1);
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
    pdf.SetLineStyle(0.2F);
    Swatches(pdf);
    pdf.SetColorLine("#1F4E3D");
    for (int kind = 0; kind < 3; ++kind) Corner(pdf, 10 + 27 * static_cast<float>(kind), kind);
    pdf.SetColorLine("#8C2F39");
    for (int i = 0; i < 5; ++i) {
        const auto step = static_cast<float>(i);
        pdf.SetLineStyle(0.4F + 0.3F * step, i % 2, 0, 0, step, 2 + step / 2); // dashes and gaps
        pdf.DrawLine(94, 67 + 7 * step, 141, 67 + 7 * step);
    }
    pdf.EndPage();
    pdf.EndDoc();
}
