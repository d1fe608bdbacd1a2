// The C library's local time, asked as this system asks it. Calendario.cpp makes a moment of it.
#include "Calendario.h"

#include <ctime>

namespace calendario {

std::optional<std::tm> OraLocale()
{
    const std::time_t adesso = std::time(nullptr);
    std::tm locale = {};
    if (::localtime_s(&locale, &adesso) != 0) return std::nullopt;
    return locale;
}

} // namespace calendario
