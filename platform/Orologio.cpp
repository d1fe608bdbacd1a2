// The clock for durations. That of the day is in Orologio_posix.cpp and Orologio_windows.cpp.
#include "Orologio.h"

#include <chrono>

double SecondiTrascorsi()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}
