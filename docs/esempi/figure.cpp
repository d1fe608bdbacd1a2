// Pictures from files, stretched over rectangles, and how their data stand in the document.
#include "clsPDFCreator.h"

#include <iostream>

namespace {

void Write(const std::string& name, const std::string& folder)
{
    clsPDFCreator pdf;
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDoc(name);
    pdf.FilterDecode(2 + 4); // LZW, then base-85 letters; JPEG data only the latter
    pdf.BeginPage();
    pdf.DrawImage(folder + "/tramonto.jpg", 8, 8, 80, 50);
    pdf.DrawImage(folder + "/mano.gif", 94, 8, 46.5, 30);
    pdf.DrawImage(folder + "/semi.bmp", 94, 44, 46.5, 14);
    // Drawn again, and read only once; the axes turn a picture like everything else.
    for (int i = 0; i < 6; ++i) {
        pdf.BeginGraphicSpace(10 + 23 * static_cast<float>(i), 67);
        pdf.MakeAxisRotation(static_cast<float>(2 * i - 5));
        pdf.DrawImage(folder + "/tramonto.jpg", 0, 0, 13 + static_cast<float>(i), 28);
        pdf.EndGraphicSpace();
    }
    try {
        pdf.DrawImage(folder + "/assente.jpg", 0, 0, 10, 10);
    } catch (const ErroreRuntime& error) {
        std::cerr << error.what() << '\n'; // nothing was drawn: the page goes on
    }
    pdf.EndPage();
    pdf.EndDoc();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) return 2;
    Write(argv[1], argv[2]);
}
