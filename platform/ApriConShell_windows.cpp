// Starts the handler that the system has for a file. The promise is in ApriConShell.h.
#include "ApriConShell.h"

#include <windows.h>

// The path stands in the command line without quotes on purpose: the handler takes everything
// after the blank as the path, blanks included.
bool ApriConShell(const std::string& percorso, StileFinestra stile)
{
    std::string comando = "rundll32.exe url.dll,FileProtocolHandler " + percorso;
    STARTUPINFOA avvio = {};
    avvio.cb = sizeof avvio;
    avvio.dwFlags = STARTF_USESHOWWINDOW;
    avvio.wShowWindow =
        stile == StileFinestra::MassimizzataConFuoco ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    PROCESS_INFORMATION processo = {};
    if (CreateProcessA(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &avvio, &processo) == 0) {
        return false;
    }
    CloseHandle(processo.hThread);
    CloseHandle(processo.hProcess);
    return true;
}
