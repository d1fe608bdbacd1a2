// Our own reader of PDF files, as a command: prints the faults of each file and ends with 1 when
// there are any, with 2 when a file cannot be read or none is named.
#include "StrutturaPdf.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

namespace {

// The one fault that is none: after the file of an embedded font stands a line end of three bytes
// that its length does not count.
bool FineDelFont(const aiuti::PdfLetto& pdf, const std::string& difetto)
{
    constexpr std::string_view fine = "\r\r\n";
    for (std::size_t i = 0; i < std::min(pdf.Oggetti.size(), pdf.Dati.size()); ++i) {
        const auto& dati = pdf.Dati[i];
        if (!dati || !dati->ends_with(fine)) continue;
        if (pdf.Oggetti[i].find("/Length1") == std::string::npos) continue;
        const std::size_t byte = dati->size();
        if (difetto == "oggetto " + std::to_string(i + 1) + ": /Length " +
                           std::to_string(byte - fine.size()) + ", ma i byte sono " +
                           std::to_string(byte))
            return true;
    }
    return false;
}

int Leggi(const char* nome)
{
    std::ifstream file(nome, std::ios::binary);
    const std::string byte{std::istreambuf_iterator<char>(file), {}};
    if (byte.empty()) {
        std::cerr << nome << ": non si legge\n";
        return 2;
    }
    auto pdf = aiuti::LeggiPdf(byte);
    std::erase_if(pdf.Difetti, [&](const auto& difetto) { return FineDelFont(pdf, difetto); });
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
