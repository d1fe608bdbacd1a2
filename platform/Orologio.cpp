#include "Orologio.h"

#include <chrono>

double SecondiTrascorsi()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}
