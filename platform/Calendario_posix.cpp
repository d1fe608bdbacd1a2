#include "Calendario.h"

#include <ctime>

namespace calendario {

std::optional<DataOra> OraLocale()
{
    constexpr int annoZero = 1900;
    const std::time_t adesso = std::time(nullptr);
    std::tm locale = {};
    if (::localtime_r(&adesso, &locale) == nullptr) return std::nullopt;
    return DataOra{locale.tm_year + annoZero,
                   locale.tm_mon + 1,
                   locale.tm_mday,
                   locale.tm_hour,
                   locale.tm_min,
                   locale.tm_sec};
}

} // namespace calendario
