// A table: rows from top to bottom, cells from left to right, texts in the cells' own space.
#include "clsPDFCreator.h"

namespace {

constexpr float Widths[] = {46, 30, 30, 24};
constexpr float Height = 10;
using Texts = const char* [4];

void Row(clsPDFCreator& pdf, const Texts& texts, const char* background)
{
    pdf.BeginRow(Height, background);
    for (int i = 0; i < 4; ++i) {
        const float width = Widths[i];
        pdf.BeginColumn(width);
        // 32 in the middle of the height; 1 left for the first cell, 2 right for the others.
        pdf.DrawTextBox(3, 0, width - 6, Height, texts[i], 1, 0, i == 0 ? 33 : 34);
        pdf.EndColumn();
    }
    pdf.EndRow();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    const Texts rows[] = {{"Nero wins", "402,117", "401,980", "44.5 %"},
                          {"Rosso wins", "401,655", "401,980", "44.5 %"},
                          {"Tie", "99,254", "98,962", "11.0 %"},
                          {"Tie at 31", "19,802", "19,766", "2.2 %"}};
    clsPDFCreator pdf;
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(argv[1]);
    pdf.BeginPage();
    pdf.SetFont("Arial", 12, 1);
    // The fill, the width and the colour of the frames, for rows and cells that name none.
    pdf.BeginTable(9, 26, "White", 0.3F, "#B7A57A");
    pdf.SetColorFill("White");
    Row(pdf, {"First coups", "Counted", "Expected", "Share"}, "#1F4E3D");
    pdf.SetColorFill("#222222");
    pdf.SetFont("Arial", 12);
    for (int i = 0; i < 4; ++i) Row(pdf, rows[i], i % 2 == 0 ? "" : "#F7F1E1");
    pdf.EndTable();
    pdf.SetFont("Times New Roman", 20, 3);
    pdf.DrawText(pdf.GetX(), pdf.GetY() - 5, "What the simulation says");
    pdf.EndPage();
    pdf.EndDoc();
}
