// Stands beside the tests in the place of the system's program of this name: writes down the
// command it was given and how its window should open, in the file that the variable RISPOSTA
// names.

#include <cstdio>
#include <cstdlib>

#include <windows.h>

int main()
{
    const char* risposta = std::getenv("RISPOSTA");
    if (risposta == nullptr) return 1;
    STARTUPINFOA avvio = {};
    avvio.cb = sizeof avvio;
    GetStartupInfoA(&avvio);
    std::FILE* file = std::fopen(risposta, "wb");
    if (file == nullptr) return 1;
    std::fprintf(file, "%s\n%u", GetCommandLineA(), static_cast<unsigned>(avvio.wShowWindow));
    return std::fclose(file);
}
