// The date and time written into documents, replaceable: a document made twice must be able to
// come out the same.
#pragma once

#include <chrono>
#include <ctime>
#include <optional>

struct Calendario
{
    // The moment that a calendar and a clock on the wall show, from 1970 to 9999.
    std::chrono::local_seconds (*Adesso)();
    int (*CifraCasuale)(); // 0 to 9

    // How many minutes that clock is ahead of UTC; behind it, less than 0.
    std::chrono::minutes (*Scarto)() = [] { return std::chrono::minutes(0); };
};

// What the program asks; replaced whole by tests.
extern constinit Calendario CalendarioInUso;

// Local time and a digit of the system's entropy. While the environment's SOURCE_DATE_EPOCH holds
// a number of seconds since 1970 (to the year 9999), that moment in UTC, the digit 0 and no
// minutes instead; error 13 when it holds anything else. Error 6 when the system's clock shows a
// later year.
Calendario CalendarioDelSistema();

namespace calendario {

struct Ora
{
    std::tm Parti; // local time, as the C library has it
    std::chrono::minutes Scarto;
};

// The local time, one file per platform. Nothing where the year is beyond all bounds.
std::optional<Ora> OraLocale();

} // namespace calendario
