// Text in boxes: four ways to align it, three heights, paragraphs with an indent, an angle.
#include "clsPDFCreator.h"

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    const std::string text = "The lower total wins the coup. Equal totals leave the stakes where "
                             "they are, thirty-one excepted.";
    clsPDFCreator pdf;
    pdf.ShareFonts(true);
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.BeginPage();
    pdf.SetColorLine("#C9A227");

    // A box draws no frame of its own.
    float x = 6;
    pdf.SetFont("Arial", 8.5);
    for (const int align : {clsPDFCreator::AlignLeft, clsPDFCreator::AlignCenter,
                            clsPDFCreator::AlignRight, clsPDFCreator::AlignJustified}) {
        pdf.DrawRect(x, 7, 32.5, 24);
        pdf.DrawTextBox(x + 1.5F, 8.5, 29.5, 21, text, 1.2F, 0, align);
        x += 34.5F;
    }

    pdf.SetFont("Times New Roman", 12, 2);
    const char* names[] = {"top", "bottom", "middle"};
    const int heights[] = {0, clsPDFCreator::AlignBottom, clsPDFCreator::AlignMiddle};
    for (int i = 0; i < 3; ++i) {
        const float top = 40 + 20 * static_cast<float>(i);
        pdf.DrawRect(6, top, 32.5, 16);
        pdf.DrawTextBox(6, top, 32.5, 16, names[i], 1, 0, clsPDFCreator::AlignCenter + heights[i]);
    }

    // CR LF ends a paragraph; the indent is that of its first line.
    pdf.SetFont("Times New Roman", 14);
    const auto lines = pdf.DrawParagraph(46, 39, 70, 50, text + "\r\n" + text, 1.15F, 6, 64);
    pdf.SetFont("Arial", 8.5, 1);
    pdf.SetColorFill("#8C2F39");
    pdf.DrawText(116, 96, std::to_string(lines) + " lines", 2);
    pdf.DrawTextBox(126, 96, 56, 18,
                    "A box of text can be turned as a whole: this one by ninety "
                    "degrees.",
                    1.3F, 0, 1, 90);
    pdf.EndPage();
    pdf.EndDoc();
}
