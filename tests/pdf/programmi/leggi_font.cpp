// Reads TrueType files and writes what the PDF file would hold of each.
//
//   leggi_font FILE...
//
// Five lines per file: name, descent, 1 or 0 for "may be embedded", descriptor, the 256 widths.
// A refusal is one line "errore: ...".

#include "ErroreRuntime.h"
#include "TrueTypeFile.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace {

void Scrivi(const pdf::TrueTypeFont& font)
{
    std::printf("%s\n%g\n%d\n%s\n", font.Name.c_str(), static_cast<double>(font.Descent),
                font.MayEmbed ? 1 : 0, font.Descriptor.c_str());
    for (const float larghezza : font.Widths) std::printf("%.0f ", static_cast<double>(larghezza));
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string nome = argv[i];
        std::ifstream file(nome, std::ios::binary);
        const std::string byte{std::istreambuf_iterator<char>(file), {}};
        try {
            Scrivi(pdf::prReadTrueType(byte, nome));
        } catch (const ErroreRuntime& errore) {
            std::printf("errore: %s\n", errore.what());
        }
    }
    return 0;
}
