// Plays a golden script on the PDF writer and compares its document, without a test framework.
#include "Aiuti.h"
#include "Copione.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>

namespace aiuti {

// That of Aiuti.cpp would bring the framework.
std::string Byte(const std::filesystem::path& percorso)
{
    std::ifstream file(percorso, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + percorso.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace aiuti

namespace {

int Prova(const std::filesystem::path& dorati, const std::string& nome, const std::string& cartella)
{
    std::filesystem::create_directories(cartella);
    const auto recita =
        aiuti::RecitaCopione(aiuti::Byte(dorati / "copioni" / (nome + ".json")), cartella);
    for (const auto& mancata : recita.Mancate) std::cerr << mancata << '\n';
    const std::string atteso = aiuti::Byte(dorati / (nome + ".pdf"));
    if (recita.Pdf != atteso) {
        const auto [a, b] =
            std::mismatch(atteso.begin(), atteso.end(), recita.Pdf.begin(), recita.Pdf.end());
        std::cerr << nome << ".pdf differs from byte " << a - atteso.begin() << " on\n";
    }
    return recita.Mancate.empty() && recita.Pdf == atteso ? 0 : 1;
}

} // namespace

// The folder of the golden documents, the script's name, the folder for what it writes.
int main(int argc, char** argv)
{
    if (argc != 4) return 2;
    try {
        return Prova(argv[1], argv[2], std::string(argv[3]) + "/");
    } catch (const std::exception& errore) {
        std::cerr << argv[2] << ": " << errore.what() << '\n';
        return 1;
    }
}
