// The five families and their styles, and a frame made to measure for a text.
#include "clsPDFCreator.h"

namespace {

constexpr int Styles[] = {0, 1, 2, 3}; // regular, bold, italic, both

void Family(clsPDFCreator& pdf, const char* name, float y)
{
    float x = 10;
    for (const int style : Styles) {
        pdf.SetFont(name, 15, style);
        pdf.DrawText(x, y, "Rosso 31");
        x += 34;
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.ShareFonts(true); // every SetFont of one face uses the same font of the file
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.BeginPage();
    Family(pdf, "Times New Roman", 17);
    Family(pdf, "Arial", 27);
    Family(pdf, "Courier New", 37);

    // Both have codes, not letters: © is the heart of Symbol, "H" a star of ZapfDingbats.
    pdf.SetFont("Symbol", 20);
    pdf.DrawText(10, 51, "abgdpqS © ¨ § ª");
    pdf.SetFont("ZapfDingbats", 20);
    pdf.DrawText(78, 51, "AFHVo«¬");

    const std::string text = "Trentuno après";
    pdf.SetFont("Times New Roman", 36, 3);
    const float width = pdf.TextLength(text);
    const float height = pdf.TextHeight();
    const float left = (148.5F - width) / 2;
    pdf.SetColorFill("#F0D9A8");
    pdf.DrawRect(left - 4, 84 - height, width + 8, height + 6, 5, 3);
    pdf.SetColorFill("#8C2F39");
    pdf.DrawText(left, 84, text);
    pdf.EndPage();
    pdf.EndDoc();
}
