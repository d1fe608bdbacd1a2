// A document of one page: the settings first, then the page, and errors in one place.
#include "clsPDFCreator.h"

#include <iostream>

namespace {

void Write(const std::string& name)
{
    clsPDFCreator pdf;
    pdf.SetScale(clsPDFCreator::UnitMillimeter);       // before anything that takes lengths
    pdf.SetPaperSize(clsPDFCreator::PaperA6Landscape); // 148.5 by 105 mm
    pdf.Margin(4); // readers show the page without its outer 4 mm
    pdf.PDFReader(clsPDFCreator::Reader1_4);
    pdf.SetDocProperty("An evening of cards", "Invitation", "Circolo Belvedere", "", "",
                       "invitation, cards");
    const std::string file = pdf.BeginDoc(name);

    pdf.BeginPage();
    pdf.SetColorFill("#1F4E3D");
    pdf.DrawRect(0, 0, 148.5, 105, clsPDFCreator::PaintFill);
    pdf.SetColorFill("#F7F1E1");
    pdf.DrawRect(14, 14, 120.5, 77, clsPDFCreator::PaintFill, 5);
    pdf.SetColorFill("#1F4E3D");
    pdf.SetFont("Times New Roman", 30, clsPDFCreator::StyleBold);
    pdf.DrawText(74.25, 44, "An evening of cards", clsPDFCreator::AlignCenter);
    pdf.SetFont("Times New Roman", 15, clsPDFCreator::StyleItalic);
    pdf.DrawText(74.25, 60, "Saturday at nine, in the garden room", clsPDFCreator::AlignCenter);
    pdf.DrawText(74.25, 70, "Circolo Belvedere", clsPDFCreator::AlignCenter);
    pdf.EndPage();

    pdf.EndDoc();
    std::cout << file << ", pages: " << pdf.Pages() << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    try {
        Write(argv[1]);
    } catch (const clsPDFCreator::Error& error) {
        std::cerr << error.what() << '\n'; // the file and the reason
        return 1;
    }
    return 0;
}
