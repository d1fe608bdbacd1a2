// Asks the descriptors of the standard channels. The promises are in Terminale.h.
#include "Terminale.h"

#include <sys/ioctl.h>
#include <unistd.h>

bool ErroriSuTerminale()
{
    return ::isatty(STDERR_FILENO) != 0;
}

bool UscitaSuTerminale()
{
    return ::isatty(STDOUT_FILENO) != 0;
}

int ColonneErrori()
{
    winsize misure = {};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &misure) == 0 ? misure.ws_col : 0;
}
