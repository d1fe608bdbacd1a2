// What a reader adds around the page: bookmarks, notes, a stamp, a link.
#include "clsPDFCreator.h"

namespace {

void Chapter(clsPDFCreator& pdf, const char* title, const char* section)
{
    pdf.BeginPage();
    pdf.SetColorFill("#1F4E3D");
    pdf.SetFont("Times New Roman", 22, clsPDFCreator::StyleBold);
    pdf.DrawText(37, 20, title, clsPDFCreator::AlignCenter);
    pdf.AddBookmark(title, 1);                                   // shows the whole drawing
    pdf.AddBookmark(section, 2, clsPDFCreator::FitWidth, 0, 50); // from 50 mm on
    pdf.SetFont("Arial", 11);
    pdf.DrawText(8, 58, section);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    clsPDFCreator pdf;
    pdf.ShareFonts(true);
    pdf.SetScale(2);
    pdf.SetPaperSize(13);
    pdf.SetDocProperty("House rules"); // the bookmark above all others
    pdf.BeginDoc(argv[1]);

    Chapter(pdf, "The coup", "Two rows of cards");
    pdf.AddNoteIcon("Ask the dealer.", clsPDFCreator::IconHelp, 8, 26, false, "#E4B363",
                    "Question");
    pdf.AddNoteBox("The lower total wins.", 8, 68, 58, 14, 13, "#8C2F39", clsPDFCreator::NoteCenter,
                   1, clsPDFCreator::BorderSolid, "#F7F1E1");
    pdf.EndPage();

    Chapter(pdf, "The stakes", "Where to read on");
    pdf.AddNoteStamp("Checked by the house.", 12, 26, 50, 15, clsPDFCreator::StampApproved, "House",
                     "#8C2F39");
    pdf.SetColorFill("#1A4FA3");
    pdf.SetFont("Arial", 11, clsPDFCreator::StyleUnderline);
    pdf.DrawText(8, 72, "example.org/rules");
    pdf.AddWebLink("https://example.org/rules", 8, 67, pdf.TextLength("example.org/rules"), 7);
    pdf.EndPage();
    pdf.EndDoc();
}
