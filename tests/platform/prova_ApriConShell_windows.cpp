// The command that opens a file. The program it calls is ours, beside the tests: the system looks
// there first.

#include "ApriConShell.h"

#include "Aiuti.h"
#include "Orologio.h"
#include "Variabile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <windows.h>

using aiuti::Byte;
using aiuti::CartellaDiProva;

namespace fs = std::filesystem;

namespace {

// The command line that arrived and, on a line of its own, the number of the window's style.
std::string Risposta(const std::string& percorso, StileFinestra stile)
{
    const CartellaDiProva cartella;
    const aiuti::Variabile risposta("RISPOSTA", cartella.Nome() + "risposta");
    EXPECT_TRUE(ApriConShell(percorso, stile));
    const double inizio = SecondiTrascorsi();
    std::error_code errore;
    // It is not waited for: its file appears later, and is whole when nobody holds it.
    while (SecondiTrascorsi() - inizio < 60) {
        Sleep(20);
        if (fs::file_size(cartella.File("risposta"), errore) > 0 && !errore) break;
    }
    Sleep(100);
    return Byte(cartella.File("risposta"));
}

} // namespace

TEST(ApriConShell, IlComandoPortaIlPercorsoIntero)
{
    const std::string gestore = "rundll32.exe url.dll,FileProtocolHandler ";
    for (const char* percorso : {"C:\\temp\\taglie.txt", "C:\\due  spazi\\taglie.htm",
                                 "C:\\Niccolò\\l'Été & %TMP%;$(x)\\taglie.pdf"}) {
        EXPECT_EQ(Risposta(percorso, StileFinestra::NormaleConFuoco), gestore + percorso + "\n1");
    }
}

TEST(ApriConShell, MassimizzataSeChiesto)
{
    const std::string risposta =
        Risposta("C:\\temp\\taglie.htm", StileFinestra::MassimizzataConFuoco);
    EXPECT_EQ(risposta.substr(risposta.find('\n')), "\n3");
}
