// A document that never is a file: made in memory and sent as a web server answers, with its
// length in front. Its picture comes from memory, too.
#include "clsPDFCreator.h"

#include <iostream>
#include <iterator>

namespace {

// A Windows bitmap of 8 by 8 pixels of one bit: a diamond.
constexpr unsigned char Diamond[] = {
    'B',  'M',  94,   0, 0,    0,    0,    0, 0,    0, 62, 0, 0,    0,       // the file
    40,   0,    0,    0, 8,    0,    0,    0, 8,    0, 0,  0, 1,    0, 1, 0, // the picture
    0,    0,    0,    0, 32,   0,    0,    0, 0,    0, 0,  0, 0,    0, 0, 0,
    0,    0,    0,    0, 0,    0,    0,    0, //
    0xE1, 0xF1, 0xF7, 0, 0x39, 0x2F, 0x8C, 0, // paper and red: blue, green, red
    0x18, 0,    0,    0, 0x3C, 0,    0,    0, 0x7E, 0, 0,  0, 0xFF, 0, 0, 0, // rows
    0xFF, 0,    0,    0, 0x7E, 0,    0,    0, 0x3C, 0, 0,  0, 0x18, 0, 0, 0,
};

std::string Invitation(std::string_view guest)
{
    std::string bytes;
    clsPDFCreator pdf;
    pdf.ShareFonts(true);
    pdf.SetScale(2);
    pdf.SetPaperSize(12);
    pdf.BeginDocTo([&bytes](std::string_view piece) { bytes.append(piece); });
    pdf.BeginPage();
    pdf.SetColorFill("#F7F1E1");
    pdf.DrawRect(0, 0, 148.5, 105, 4);
    const std::string_view picture(reinterpret_cast<const char*>(Diamond), std::size(Diamond));
    for (const float x : {44.25F, 60.25F, 76.25F, 92.25F})
        pdf.DrawImageData(picture, x, 14, 12, 12);
    pdf.SetColorFill("#1F4E3D");
    pdf.SetFont("Times New Roman", 30, 1);
    pdf.DrawText(74.25, 50, guest, 4);
    pdf.SetFont("Times New Roman", 15, 2);
    pdf.DrawText(74.25, 66, "is expected at nine, in the garden room", 4);
    pdf.EndPage();
    pdf.EndDoc(); // the last piece has come
    return bytes;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const std::string answer = Invitation(argc > 1 ? argv[1] : "Signora Bruni");
        std::cout << "HTTP/1.1 200 OK\r\nContent-Type: application/pdf\r\nContent-Length: "
                  << answer.size() << "\r\n\r\n"
                  << answer << std::flush;
    } catch (const ErroreRuntime& error) {
        std::cout << "HTTP/1.1 500 Internal Server Error\r\nContent-Length: 0\r\n\r\n";
        std::cerr << error.what() << '\n';
    }
    return std::cout ? 0 : 1;
}
