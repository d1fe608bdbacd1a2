// Our own reader of PDF files, as a command: prints the faults of each file and ends with 1 when
// there are any, with 2 when a file cannot be read or none is named.
#include "StrutturaPdf.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

int Leggi(const char* nome)
{
    std::ifstream file(nome, std::ios::binary);
    const std::string byte{std::istreambuf_iterator<char>(file), {}};
    if (byte.empty()) {
        std::cerr << nome << ": non si legge\n";
        return 2;
    }
    const auto pdf = aiuti::LeggiPdf(byte);
    for (const auto& difetto : pdf.Difetti) std::cout << nome << ": " << difetto << '\n';
    for (const auto& mancante : pdf.NomiMancanti) std::cout << nome << ": " << mancante << '\n';
    return pdf.Difetti.empty() && pdf.NomiMancanti.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    int esito = argc < 2 ? 2 : 0;
    for (int i = 1; i < argc; ++i) esito = std::max(esito, Leggi(argv[i]));
    return esito;
}
