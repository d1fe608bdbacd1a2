// The time of day as the system keeps it. The promise is in Orologio.h.
#include "Orologio.h"

#include <windows.h>

double SecondiDaMezzanotte()
{
    SYSTEMTIME adesso = {};
    GetLocalTime(&adesso);
    constexpr double millesimo = 1e-3;
    const int secondi = (adesso.wHour * 60 + adesso.wMinute) * 60 + adesso.wSecond;
    return secondi + adesso.wMilliseconds * millesimo;
}
