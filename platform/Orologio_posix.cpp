// The time of day from the cheapest clock of the system, with midnight kept. The promise is in
// Orologio.h.
#include "Orologio.h"

#include <ctime>

namespace {

// The last local midnight, known for a quarter of an hour. Time zones change their offset at
// quarters only, so asking the time zone again once a quarter is exact, and that question costs
// more than all else here.
struct Quarto
{
    std::time_t da = 1;
    std::time_t a = 0; // empty interval: nothing known yet
    std::time_t mezzanotte = 0;
};

Quarto QuartoDi(std::time_t adesso)
{
    constexpr std::time_t durata = 900;
    std::tm locale = {};
    ::localtime_r(&adesso, &locale);
    const std::time_t secondi = locale.tm_hour * 3600 + locale.tm_min * 60 + locale.tm_sec;
    const std::time_t inizio = adesso - (secondi % durata);
    return {inizio, inizio + durata, adesso - secondi};
}

} // namespace

double SecondiDaMezzanotte()
{
#ifdef CLOCK_REALTIME_COARSE
    constexpr clockid_t orologio = CLOCK_REALTIME_COARSE;
#else
    constexpr clockid_t orologio = CLOCK_REALTIME;
#endif
    constexpr double nanosecondo = 1e-9;
    static constinit thread_local Quarto quarto;
    std::timespec adesso = {};
    ::clock_gettime(orologio, &adesso);
    if (adesso.tv_sec < quarto.da || adesso.tv_sec >= quarto.a) quarto = QuartoDi(adesso.tv_sec);
    const std::time_t secondi = adesso.tv_sec - quarto.mezzanotte;
    return static_cast<double>(secondi) + static_cast<double>(adesso.tv_nsec) * nanosecondo;
}
