// Writes to the descriptor that every program finds open; what differs by system is in
// UscitaStandard_posix.cpp and UscitaStandard_windows.cpp.
#include "UscitaStandard.h"

#include "ScritturaFile.h"

void ScriviInUscita(std::string_view byte)
{
    constexpr int uscita = 1;
    ScriviSuDescrittore(uscita, byte, NomeUscita);
}
