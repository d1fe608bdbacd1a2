// The C library's local time, asked as this system asks it. Calendario.cpp makes a moment of it.
#include "Calendario.h"

#include <ctime>

namespace calendario {

std::optional<Ora> OraLocale()
{
    const std::time_t adesso = std::time(nullptr);
    std::tm locale = {};
    if (::localtime_s(&locale, &adesso) != 0) return std::nullopt;
    std::tm comeUtc = locale; // which the function may change
    const std::chrono::seconds scarto(::_mkgmtime(&comeUtc) - adesso);
    return Ora{locale, std::chrono::floor<std::chrono::minutes>(scarto)};
}

} // namespace calendario
