// Single lines of text: alignment, decorations, spacing, outlines and angles.
#include "clsPDFCreator.h"

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.ShareFonts(true);
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.BeginPage();
    pdf.SetColorLine("#C8553D");
    pdf.DrawLine(48, 7, 48, 32);
    pdf.SetFont("Times New Roman", 14);
    pdf.DrawText(48, 13, "starts at the line", clsPDFCreator::AlignLeft);
    pdf.DrawText(48, 21, "ends at the line", clsPDFCreator::AlignRight);
    pdf.DrawText(48, 29, "centred on it", clsPDFCreator::AlignCenter);

    pdf.SetFont("Arial", 13, clsPDFCreator::StyleUnderline);
    pdf.DrawText(12, 46, "underlined");
    pdf.SetFont("Arial", 13, clsPDFCreator::StyleOverline);
    pdf.DrawText(12, 56, "overlined");
    pdf.SetFont("Arial", 13, clsPDFCreator::StyleStrikeOut);
    pdf.DrawText(12, 66, "struck out");

    pdf.SetFont("Arial", 13);
    pdf.SetCharSpacing(3); // points, like the word spacing
    pdf.DrawText(48, 46, "wide letters");
    pdf.SetCharSpacing(0);
    pdf.SetWordSpacing(9);
    pdf.DrawText(48, 56, "words set apart");
    pdf.SetWordSpacing(0);
    pdf.SetTextHorizontalScaling(60); // percent
    pdf.DrawText(48, 66, "narrow letters");
    pdf.SetTextHorizontalScaling(100);

    pdf.SetLineStyle(0.3F);
    pdf.SetColorFill("#F0D9A8");
    pdf.SetFont("Times New Roman", 54, 1);
    pdf.SetTextRenderingMode(clsPDFCreator::RenderFillStroke);
    pdf.DrawText(12, 94, "Scalvino");
    pdf.SetTextRenderingMode(clsPDFCreator::RenderFill);

    pdf.SetColorFill("#1F4E3D");
    pdf.SetFont("Times New Roman", 12);
    for (float angle = -75; angle <= 75; angle += 15) {
        pdf.DrawText(108, 50, "          at an angle", 1, angle);
    }
    pdf.EndPage();
    pdf.EndDoc();
}
