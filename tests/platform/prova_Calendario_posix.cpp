// The date written into documents.

#include "Calendario.h"

#include "Scritture.h"
#include "Utente.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <set>
#include <string>
#include <string_view>

using aiuti::ErroreDi;
using aiuti::InUnFiglio;
using aiuti::Riuscito;

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

// What the system's calendar says while SOURCE_DATE_EPOCH holds this. Only in a child.
std::string Con(const char* epoca)
{
    ::setenv("SOURCE_DATE_EPOCH", epoca, 1);
    return Testo(CalendarioDelSistema().Adesso());
}

std::string OraDellaLibreria()
{
    const std::time_t adesso = std::time(nullptr);
    std::tm t = {};
    ::localtime_r(&adesso, &t);
    return Testo({t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec});
}

} // namespace

TEST(Calendario, DaLOraLocale)
{
    EXPECT_EQ(InUnFiglio([] {
                  ::unsetenv("SOURCE_DATE_EPOCH");
                  ::setenv("TZ", "XXX-3:30", 1); // three and a half hours east of Greenwich
                  ::tzset();
                  std::string prima;
                  std::string avuta;
                  do { // again when the second changes in between
                      prima = OraDellaLibreria();
                      avuta = Testo(CalendarioDelSistema().Adesso());
                  } while (prima != OraDellaLibreria());
                  EXPECT_EQ(avuta, prima);
              }),
              Riuscito);
}

TEST(Calendario, UnMomentoImpostoValeInUtc)
{
    EXPECT_EQ(InUnFiglio([] {
                  ::setenv("TZ", "XXX-3:30", 1);
                  ::tzset();
                  EXPECT_EQ(Con("0"), "1970 1 1 0 0 0");
                  EXPECT_EQ(Con("951782399"), "2000 2 28 23 59 59");
                  EXPECT_EQ(Con("951868799"), "2000 2 29 23 59 59"); // a leap day
                  EXPECT_EQ(Con("4107542400"), "2100 3 1 0 0 0");    // no leap year
                  EXPECT_EQ(Con("253402300799"), "9999 12 31 23 59 59");
                  EXPECT_EQ(CalendarioDelSistema().CifraCasuale(), 0);
              }),
              Riuscito);
}

TEST(Calendario, LoScartoDaUtc)
{
    for (const auto& [fuso, minuti] : {std::pair{"XXX-3:30", 210},
                                       {"XXX+5", -300},
                                       {"XXX0", 0},
                                       {"XXX+0:00:30", -1}, // whole minutes, rounded down
                                       {"XXX-14", 840}}) {
        EXPECT_EQ(InUnFiglio([fuso = fuso, minuti = minuti] {
                      ::unsetenv("SOURCE_DATE_EPOCH");
                      ::setenv("TZ", fuso, 1);
                      ::tzset();
                      EXPECT_EQ(CalendarioDelSistema().Scarto().count(), minuti);
                      ::setenv("SOURCE_DATE_EPOCH", "0", 1);
                      EXPECT_EQ(CalendarioDelSistema().Scarto().count(), 0);
                  }),
                  Riuscito)
            << fuso;
    }
}

TEST(Calendario, UnMomentoSbagliatoEUnErrore)
{
    EXPECT_EQ(InUnFiglio([] {
                  for (const char* epoca : {"ieri", "-1", "12 ", "253402300800", "1e9"}) {
                      const auto errore = ErroreDi([epoca] { Con(epoca); });
                      ASSERT_TRUE(errore) << epoca;
                      EXPECT_EQ(errore->Numero(), NumeroErrore::TipoNonCorrispondente);
                      EXPECT_EQ(errore->File(), "SOURCE_DATE_EPOCH");
                      const bool numero = std::string_view(epoca) == "253402300800";
                      EXPECT_EQ(errore->Motivo(),
                                "\"" + std::string(epoca) +
                                    (numero ? "\" supera l'anno 9999"
                                            : "\" non è un numero di secondi dal 1970"));
                  }
              }),
              Riuscito);
}

TEST(Calendario, UnaVariabileVuotaNonImponeNulla)
{
    EXPECT_EQ(InUnFiglio([] { EXPECT_NE(Con("").substr(0, 4), "1970"); }), Riuscito);
}

TEST(Calendario, LeCifreVannoDaZeroANoveTutte)
{
    EXPECT_EQ(InUnFiglio([] {
                  ::unsetenv("SOURCE_DATE_EPOCH");
                  std::set<int> cifre;
                  for (int i = 0; i < 1000; ++i) {
                      cifre.insert(CalendarioDelSistema().CifraCasuale());
                  }
                  EXPECT_EQ(cifre, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
              }),
              Riuscito);
}
