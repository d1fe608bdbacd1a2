// Prints the seconds since midnight as the programs see them, one line for each of ten readings.

#include "Orologio.h"

#include <cstdio>

int main()
{
    constexpr int letture = 10;
    for (int i = 0; i < letture; ++i) std::printf("%.9f\n", SecondiDaMezzanotte());
    return 0;
}
