// The hidden names. How a file without a name gets to its place is in FileIntero_posix.cpp and
// FileIntero_windows.cpp.
#include "FileIntero.h"

#include "Percorsi.h"

std::string NomeIncompiuto(int numero)
{
    constexpr int dieci = 10;
    const std::string cifre = std::to_string(numero);
    return ".taglie." + std::string(numero < dieci ? "0" : "") + cifre + ".incompiuto";
}

ErroreRuntime NomiFiniti(const std::string& percorso)
{
    return ErroreRuntime(NumeroErrore::AccessoAlFile,
                         "nella sua cartella sono presi tutti i nomi da " + NomeIncompiuto(0) +
                             " a " + NomeIncompiuto(MassimoIncompiuti - 1),
                         percorso);
}

bool NomeRiservato(const std::string& percorso)
{
    const std::string nome = percorsi::Cammino(percorso).filename().string();
    for (int numero = 0; numero < MassimoIncompiuti; ++numero) {
        if (nome == NomeIncompiuto(numero)) return true;
    }
    return false;
}
