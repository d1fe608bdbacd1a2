// The date and time written into documents, replaceable: a document made twice must be able to
// come out the same.
#pragma once

#include <optional>

struct DataOra
{
    int Anno;    // 1970 to 9999
    int Mese;    // 1 to 12
    int Giorno;  // 1 to 31
    int Ora;     // 0 to 23
    int Minuto;  // 0 to 59
    int Secondo; // 0 to 60
};

struct Calendario
{
    DataOra (*Adesso)();
    int (*CifraCasuale)(); // 0 to 9
};

// What the program asks; replaced whole by tests.
extern constinit Calendario CalendarioInUso;

// Local time and a digit of the system's entropy. While the environment's SOURCE_DATE_EPOCH holds
// a number of seconds since 1970 (to the year 9999), that moment in UTC and the digit 0 instead;
// error 13 when it holds anything else. Error 6 when the system's clock shows a later year.
Calendario CalendarioDelSistema();

namespace calendario {

// The local time of the system, one file per platform. Nothing where the year is beyond all bounds.
std::optional<DataOra> OraLocale();

} // namespace calendario
