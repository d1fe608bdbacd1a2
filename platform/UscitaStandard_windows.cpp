// Asks the descriptor of standard output. The promises are in UscitaStandard.h.
#include "UscitaStandard.h"

#include "ErroreSistema.h"

#include <cerrno>

#include <fcntl.h>
#include <io.h>

// Otherwise every LF would become CR LF.
void PreparaUscita()
{
    constexpr int uscita = 1;
    if (::_setmode(uscita, _O_BINARY) < 0) throw ErroreSistema(EBADF, NomeUscita);
}

// Nobody can replace a file here that is open.
bool UscitaNelFile(const std::string& /*percorso*/)
{
    return false;
}

// A close has nothing to tell here.
void PretendiUscitaArrivata() {}
