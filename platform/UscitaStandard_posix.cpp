// Asks the descriptor of standard output. The promises are in UscitaStandard.h.
#include "UscitaStandard.h"

#include "ErroreSistema.h"
#include "ScritturaFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

void PreparaUscita()
{
    const int modo = ::fcntl(STDOUT_FILENO, F_GETFL);
    // What stands in for a closed output cannot be written to: Segnali_posix.cpp.
    if (modo < 0 || (modo & O_ACCMODE) == O_RDONLY) throw ErroreSistema(EBADF, NomeUscita);
}

bool UscitaNelFile(const std::string& percorso)
{
    struct stat uscita = {};
    struct stat voce = {};
    return ::fstat(STDOUT_FILENO, &uscita) == 0 && S_ISREG(uscita.st_mode) &&
           ::stat(percorso.c_str(), &voce) == 0 && voce.st_dev == uscita.st_dev &&
           voce.st_ino == uscita.st_ino;
}

void PretendiUscitaArrivata()
{
    const int copia = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    if (copia < 0) throw ErroreSistema(errno, NomeUscita);
    if (ChiamateInUso.Chiudi(copia) != 0 && errno != EINTR) throw ErroreSistema(errno, NomeUscita);
}
