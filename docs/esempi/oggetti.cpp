// Drawings made once: an emblem, a background of every page, a footer that is made last.
#include "clsPDFCreator.h"

namespace {

void Background(clsPDFCreator& pdf)
{
    pdf.BeginObject("Felt", 7); // played by itself at the start of every page
    pdf.SetColorFill("#1F4E3D");
    pdf.DrawRect(0, 0, 74.2F, 105, 4);
    pdf.EndObject();
    pdf.BeginObject("Emblem"); // played by name only; what is left of or above 0 would be cut
    pdf.SetColorFill("#E4B363");
    pdf.DrawCircle(12, 12, 12, 4);
    pdf.SetColorFill("#1F4E3D");
    pdf.SetFont("Symbol", 40);
    pdf.DrawText(12, 17, "ª", 4);
    pdf.EndObject();
}

void Page(clsPDFCreator& pdf)
{
    const int page = pdf.BeginPage();
    for (int i = 0; i < page; ++i) {
        pdf.BeginGraphicSpace(25, 8 + 28 * static_cast<float>(i));
        pdf.PlayObject("Emblem");
        pdf.EndGraphicSpace();
    }
    pdf.SetColorFill("White");
    pdf.SetFont("Times New Roman", 11);
    pdf.DrawText(35, 99, "page " + std::to_string(page), 2);
    pdf.PlayObject("Footer"); // not made yet
    pdf.EndPage();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.SetScale(2);
    pdf.SetPaperSize(13); // A7
    pdf.BeginDoc(argv[1]);
    Background(pdf);
    for (int i = 0; i < 3; ++i) Page(pdf);
    pdf.BeginObject("Footer"); // only now the number of pages is known
    pdf.SetColorFill("White");
    pdf.SetFont("Times New Roman", 11);
    pdf.DrawText(36.2F, 99, "of " + std::to_string(pdf.Pages()));
    pdf.EndObject();
    pdf.EndDoc();
}
