// Our own reader of PDF files, as a command: prints the faults of each file and ends with 1 when
// there are any, with 2 when a file cannot be read or none is named.
#include "StrutturaPdf.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <regex>
#include <string>

namespace {

// The one fault that is none: after the file of an embedded font stands a line end of three bytes
// that its length does not count.
bool FineDelFont(const aiuti::PdfLetto& pdf, const std::string& difetto)
{
    static const std::regex forma("oggetto ([0-9]+): /Length ([0-9]+), ma i byte sono ([0-9]+)");
    constexpr long crCrLf = 3;
    std::smatch parti;
    if (!std::regex_match(difetto, parti, forma)) return false;
    const auto& oggetto = pdf.Oggetto(std::stoi(parti[1]));
    return oggetto.find("/Length1") != oggetto.npos &&
           std::stol(parti[3]) - std::stol(parti[2]) == crCrLf;
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
