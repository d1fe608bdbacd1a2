// A document that goes to standard output while it is made: tubo | lpr, tubo > tickets.pdf
#include "clsPDFCreator.h"

#include <csignal>
#include <cstdlib>
#include <iostream>

namespace {

void Ticket(clsPDFCreator& pdf, int number)
{
    pdf.BeginPage();
    pdf.SetColorFill("#1F4E3D");
    pdf.DrawRect(0, 0, 74.1F, 105, 4);
    pdf.SetColorFill("#F7F1E1");
    pdf.DrawRect(5, 5, 64.1F, 95, 4, 4);
    pdf.SetColorFill("#1F4E3D");
    pdf.SetFont("Times New Roman", 14, 1);
    pdf.DrawText(37, 24, "An evening of cards", 4);
    pdf.SetFont("Times New Roman", 64, 1);
    pdf.DrawText(37, 62, std::to_string(number), 4);
    pdf.DrawEAN13(std::to_string(800000000000 + number), 20, 76, true, 10);
    pdf.EndPage();
}

void Write(std::ostream& out, int tickets)
{
    clsPDFCreator pdf;
    pdf.ShareFonts(true);
    pdf.SetScale(2);
    pdf.SetPaperSize(13);
    pdf.BeginDocTo(out); // on Windows a stream must be made binary first
    for (int number = 1; number <= tickets; ++number) Ticket(pdf, number);
    pdf.EndDoc();
}

} // namespace

int main(int argc, char** argv)
{
#ifdef SIGPIPE
    // Else a reader that goes away ends the program; now it is an error like a full disk.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    try {
        Write(std::cout, argc > 1 ? std::atoi(argv[1]) : 3);
    } catch (const ErroreRuntime& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
