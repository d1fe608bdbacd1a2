// The date written into documents, on Windows.

#include "Calendario.h"

#include "Scritture.h"
#include "Variabile.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>

#include <windows.h>

using aiuti::ErroreDi;
using aiuti::Variabile;

namespace {

std::string Testo(const std::array<int, 6>& parti)
{
    std::string testo;
    for (const int parte : parti) testo += (testo.empty() ? "" : " ") + std::to_string(parte);
    return testo;
}

std::string Testo(std::chrono::local_seconds momento)
{
    using namespace std::chrono;
    const auto giorno = floor<days>(momento);
    const year_month_day data(giorno);
    const hh_mm_ss ora(momento - giorno);
    return Testo({int(data.year()), int(unsigned(data.month())), int(unsigned(data.day())),
                  int(ora.hours().count()), int(ora.minutes().count()),
                  int(ora.seconds().count())});
}

// What the system's calendar says while SOURCE_DATE_EPOCH holds this.
std::string Con(const char* epoca)
{
    const Variabile imposta("SOURCE_DATE_EPOCH", epoca);
    return Testo(CalendarioDelSistema().Adesso());
}

std::string OraDelSistema()
{
    SYSTEMTIME t = {};
    GetLocalTime(&t);
    return Testo({t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond});
}

// What the system counts as minutes behind UTC, daylight saving time included.
int ScartoDelSistema()
{
    TIME_ZONE_INFORMATION fuso = {};
    const DWORD ora = ::GetTimeZoneInformation(&fuso);
    const LONG legale = ora == TIME_ZONE_ID_DAYLIGHT ? fuso.DaylightBias : fuso.StandardBias;
    return -static_cast<int>(fuso.Bias + (ora == TIME_ZONE_ID_UNKNOWN ? 0 : legale));
}

} // namespace

TEST(Calendario, DaLOraLocale)
{
    std::string prima;
    std::string avuta;
    do { // again when the second changes in between
        prima = OraDelSistema();
        avuta = Con("");
    } while (prima != OraDelSistema());
    EXPECT_EQ(avuta, prima);
}

TEST(Calendario, UnMomentoImpostoValeInUtc)
{
    EXPECT_EQ(Con("0"), "1970 1 1 0 0 0");
    EXPECT_EQ(Con("951868799"), "2000 2 29 23 59 59"); // a leap day
    EXPECT_EQ(Con("4107542400"), "2100 3 1 0 0 0");    // no leap year
    EXPECT_EQ(Con("253402300799"), "9999 12 31 23 59 59");
}

TEST(Calendario, LoScartoDaUtc)
{
    {
        const Variabile vuota("SOURCE_DATE_EPOCH", "");
        EXPECT_EQ(CalendarioDelSistema().Scarto().count(), ScartoDelSistema());
    }
    const Variabile imposta("SOURCE_DATE_EPOCH", "0");
    EXPECT_EQ(CalendarioDelSistema().Scarto().count(), 0);
}

TEST(Calendario, UnMomentoSbagliatoEUnErrore)
{
    for (const char* epoca : {"ieri", "-1", "12 ", "253402300800", "1e9"}) {
        const auto errore = ErroreDi([epoca] { Con(epoca); });
        ASSERT_TRUE(errore) << epoca;
        EXPECT_EQ(errore->Numero(), NumeroErrore::TipoNonCorrispondente);
        EXPECT_EQ(errore->File(), "SOURCE_DATE_EPOCH");
    }
}
