// Asks the console of the standard channels. The promises are in Terminale.h.
#include "Terminale.h"

#include <io.h>
#include <windows.h>

bool ErroriSuTerminale()
{
    return ::_isatty(2) != 0;
}

bool UscitaSuTerminale()
{
    return ::_isatty(1) != 0;
}

int ColonneErrori()
{
    CONSOLE_SCREEN_BUFFER_INFO misure = {};
    const HANDLE errori = GetStdHandle(STD_ERROR_HANDLE);
    if (GetConsoleScreenBufferInfo(errori, &misure) == 0) return 0;
    return misure.srWindow.Right - misure.srWindow.Left + 1;
}
