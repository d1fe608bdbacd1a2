// The C library's local time, asked as this system asks it. Calendario.cpp makes a moment of it.
#include "Calendario.h"

#include <ctime>

namespace calendario {

std::optional<Ora> OraLocale()
{
    const std::time_t adesso = std::time(nullptr);
    std::tm locale = {};
    if (::localtime_r(&adesso, &locale) == nullptr) return std::nullopt;
    const std::chrono::seconds scarto(locale.tm_gmtoff);
    return Ora{locale, std::chrono::floor<std::chrono::minutes>(scarto)};
}

} // namespace calendario
