// Pages with labels of their own: i and ii, then 1 and 2, then an annex shown turned.
#include "clsPDFCreator.h"

namespace {

void Draw(clsPDFCreator& pdf, std::string_view label, std::string_view title)
{
    pdf.SetColorFill("#F7F1E1");
    pdf.DrawRect(0, 0, 74.1F, 105, 4);
    pdf.SetColorFill("#8C2F39");
    pdf.SetFont("Times New Roman", 60, 1);
    pdf.DrawText(37, 50, label, 4);
    pdf.SetFont("Arial", 13);
    pdf.DrawText(37, 68, title, 4);
    // Where the next line goes: the current point is one font size below the last one.
    pdf.SetFont("Arial", 10);
    pdf.DrawText(37, pdf.GetY() + 2, "page " + std::to_string(pdf.Pages()) + " of the file", 4);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.SetScale(2);
    pdf.SetPaperSize(13); // A7
    pdf.BeginDoc(argv[1]);

    pdf.BeginPage(clsPDFCreator::PageUpright, clsPDFCreator::LabelSmallRoman);
    Draw(pdf, "i", "Preface");
    pdf.EndPage();
    pdf.BeginPage(0, clsPDFCreator::LabelNone); // goes on with the range before
    Draw(pdf, "ii", "Contents");
    pdf.EndPage();
    pdf.BeginPage(0, clsPDFCreator::LabelDecimal); // from 1
    Draw(pdf, "1", "The rules");
    pdf.EndPage();
    pdf.BeginPage(0, clsPDFCreator::LabelNone);
    Draw(pdf, "2", "The odds");
    pdf.EndPage();
    pdf.BeginPage(clsPDFCreator::PageTurned, 0, "A-", 10); // labelled A-10
    Draw(pdf, "A-10", "Annex");
    pdf.EndPage();
    pdf.EndDoc();
}
