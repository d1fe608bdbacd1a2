// Both wordings of the same limit; who uses which is told in LimitiTaglie.h.
#include "LimitiTaglie.h"

#include "Numeri.h"

namespace Stampe {

std::string TroppeTaglie()
{
    return "può essere al massimo " + TestoNumero(MassimoTaglie);
}

std::string TroppeTaglie(std::string_view scritte)
{
    return std::string(scritte) + " supera il massimo, " + TestoNumero(MassimoTaglie);
}

} // namespace Stampe
