// Barcodes: drawn in the fill colour, from the first bar on.
#include "clsPDFCreator.h"

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.BeginPage();
    // Twelve digits; the thirteenth, which checks them, is the writer's.
    pdf.DrawEAN13("400638133393", 16, 8, true, 28, 1.7F);
    // Bars alone, lower and of the usual module width.
    pdf.DrawEAN13("978014300723", 92, 8, false, 12);
    pdf.DrawEAN13("978014300723", 92, 26, true, 12);
    // As wide as its text is long: 14.5 modules for each character of "*TAGLIA 7*".
    pdf.DrawCODE39("TAGLIA 7", 16, 52, 15, true, 1.4F);
    // Small letters take two characters each; bars three times as wide as narrow ones.
    pdf.SetColorFill("#1F4E3D");
    pdf.DrawCODE39("Nero31", 16, 78, 15, true, 1.2F, 3);
    pdf.EndPage();
    pdf.EndDoc();
}
