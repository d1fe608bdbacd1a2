// Carries the resources of the window's program and asks the system for them as that one does:
//   risorse_finestra HELPFILE
// Ends with 0 when the help page is found by its numbers and equals that file, and when the icon
// and the controls of the desktop can be had.

#include "MenuSistema.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include <windows.h>

namespace {

constexpr WORD PaginaWeb = 23;
constexpr WORD Guida = 101;
constexpr WORD Italiano = 1040;

std::string RisorsaGuida()
{
    const HRSRC voce =
        FindResourceExA(nullptr, MAKEINTRESOURCEA(PaginaWeb), MAKEINTRESOURCEA(Guida), Italiano);
    if (voce == nullptr) return {};
    const HGLOBAL caricata = LoadResource(nullptr, voce);
    const void* byte = caricata == nullptr ? nullptr : LockResource(caricata);
    if (byte == nullptr) return {};
    return {static_cast<const char*>(byte), SizeofResource(nullptr, voce)};
}

std::string Byte(const char* percorso)
{
    std::ifstream file(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool Pretendi(bool fatto, const char* quale)
{
    std::printf("%s: %s\n", quale, fatto ? "si" : "NO");
    return fatto;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) return 2;
    InizializzaControlliComuni();
    const std::string guida = RisorsaGuida();
    std::printf("byte della guida: %u\n", static_cast<unsigned>(guida.size()));
    const bool uguale = Pretendi(!guida.empty() && guida == Byte(argv[1]), "guida uguale al file");
    const bool icona = Pretendi(
        FindResourceA(nullptr, MAKEINTRESOURCEA(1), MAKEINTRESOURCEA(14)) != nullptr, "icona 1");
    const bool utf8 = Pretendi(GetACP() == CP_UTF8, "nomi in UTF-8");
    return uguale && icona && utf8 ? 0 : 1;
}
