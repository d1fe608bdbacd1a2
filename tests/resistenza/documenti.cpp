// Documents at random for readers that are not ours.
//
//     documenti FOLDER FIRST HOW-MANY PICTURES FONTS [aperti|conformi]
//
// Writes FOLDER/documento_N.pdf for each seed N from FIRST on, so that a document that fails can be
// made again by itself, and prints "name count" for each operation of the writer that it called.
// "aperti" and "conformi" are the other manners of Documentista.h. Exit code 0; 1 with a message
// for any error; 2 for wrong arguments.

#include "Documentista.h"
#include "ErroreRuntime.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <string>

namespace {

using resistenza::Conto;
using resistenza::Documentista;
using resistenza::Maniera;

constexpr int Fatto = 0;
constexpr int Guasto = 1;
constexpr int Uso = 2;

const std::map<std::string, Maniera, std::less<>> Maniere = {
    {"", Maniera::Usuale}, {"aperti", Maniera::Aperta}, {"conformi", Maniera::Conforme}};

void Scrivi(char** argomenti, Maniera maniera)
{
    const std::filesystem::path cartella = std::filesystem::absolute(argomenti[1]);
    const std::filesystem::path semi = std::filesystem::absolute(argomenti[4]);
    const std::filesystem::path font = std::filesystem::absolute(argomenti[5]);
    const std::uint64_t primo = std::strtoull(argomenti[2], nullptr, 10);
    const std::uint64_t quanti = std::strtoull(argomenti[3], nullptr, 10);
    Conto conto;
    for (std::uint64_t seme = primo; seme < primo + quanti; ++seme) {
        const std::string nome = "documento_" + std::to_string(seme) + ".pdf";
        try {
            Documentista(seme, maniera, conto, semi, font).Scrivi(cartella / nome);
        } catch (const std::exception& errore) {
            throw std::runtime_error(nome + ": " + errore.what());
        }
    }
    for (const auto& [nome, volte] : conto) std::printf("%s %ld\n", nome.c_str(), volte);
}

} // namespace

int main(int argc, char** argv)
{
    const auto maniera = Maniere.find(argc == 7 ? argv[6] : "");
    if ((argc != 6 && argc != 7) || maniera == Maniere.end()) {
        std::fputs("documenti CARTELLA PRIMO QUANTI FIGURE FONT [aperti|conformi]\n", stderr);
        return Uso;
    }
    try {
        Scrivi(argv, maniera->second);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return Guasto;
    }
    return Fatto;
}
