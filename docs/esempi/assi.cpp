// The same drawing under other axes; each graphic space is closed again by its end.
#include "clsPDFCreator.h"

namespace {

// A playing card with its top left corner at the origin, 18 by 26.
void Card(clsPDFCreator& pdf, const char* suit, const char* color)
{
    pdf.SetColorFill("White");
    pdf.DrawRect(0, 0, 18, 26, 5, 2);
    pdf.SetColorFill(color);
    pdf.SetFont("Symbol", 48);
    pdf.DrawText(9, 18.5, suit, 4);
}

void Fan(clsPDFCreator& pdf)
{
    const char* suits[] = {"ª", "©", "§", "¨", "ª"};
    for (int i = 0; i < 5; ++i) {
        pdf.BeginGraphicSpace(44, 62);
        pdf.MakeAxisRotation(static_cast<float>(24 * i - 48)); // clockwise
        pdf.MakeAxisTranslation(-9, -48);
        Card(pdf, suits[i], i % 2 == 0 ? "#222222" : "#C1272D");
        pdf.EndGraphicSpace();
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.ShareFonts(true);
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.BeginPage();
    pdf.SetLineStyle(0.3F);
    Fan(pdf);
    pdf.BeginGraphicSpace(96, 12, 1.6F, 1.6F); // enlarged from its corner
    Card(pdf, "©", "#C1272D");
    pdf.EndGraphicSpace();
    pdf.BeginGraphicSpace(20, 68);
    pdf.MakeAxisScaling(2.2F, 1);
    Card(pdf, "¨", "#C1272D");
    pdf.EndGraphicSpace();
    pdf.BeginGraphicSpace(84, 64);
    pdf.MakeAxisSkewing(12, 24);
    Card(pdf, "§", "#222222");
    pdf.EndGraphicSpace();
    pdf.EndPage();
    pdf.EndDoc();
}
