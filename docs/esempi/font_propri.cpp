// A TrueType font of one's own, embedded: the text looks the same wherever it is read.
#include "clsPDFCreator.h"

int main(int argc, char** argv)
{
    if (argc != 3) return 2;
    clsPDFCreator pdf;
    pdf.ShareFonts(true);
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.AddFont(argv[2], "House Face"); // the file of a font, and the name SetFont shall know
    pdf.BeginPage();
    pdf.SetColorFill("#1F4E3D");
    pdf.SetFont("House Face", 40);
    pdf.DrawText(74.25, 28, "Perché no?", 4);
    pdf.SetColorFill("#222222");
    pdf.SetFontSize(15);
    // Measured, wrapped and justified like the five families that are always there.
    pdf.DrawTextBox(16, 40, 116, 30,
                    "Città, più, così, è, «virgolette» – and €: what Windows-1252 has, the font "
                    "shows, and readers can search it.",
                    1.3F, 0, 64);
    pdf.SetColorFill("#8C2F39");
    pdf.SetFont("House Face", 15, 4); // underlining is drawn, it needs no other font
    pdf.DrawText(74.25, 88, "underlined in a face of one's own", 4);
    pdf.EndPage();
    pdf.EndDoc();
}
