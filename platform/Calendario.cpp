// The moment that the environment sets or the system tells: Calendario_posix.cpp,
// Calendario_windows.cpp.
#include "Calendario.h"

#include "Cifre.h"
#include "Entropia.h"
#include "ErroreRuntime.h"
#include "Numeri.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

using namespace std::chrono;

namespace {

constexpr const char* Variabile = "SOURCE_DATE_EPOCH";
constexpr int AnnoMassimo = 9999; // documents have four digits for it

// Nothing for a year with more digits. A leap second counts as the one before it, which every
// calendar has.
std::optional<local_seconds> Momento(const std::tm& parti)
{
    constexpr int annoZero = 1900;
    constexpr int ultimoSecondo = 59;
    if (parti.tm_year > AnnoMassimo - annoZero) return std::nullopt;
    const local_days giorno(year(parti.tm_year + annoZero) /
                            month(static_cast<unsigned>(parti.tm_mon + 1)) / parti.tm_mday);
    return giorno + hours(parti.tm_hour) + minutes(parti.tm_min) +
           seconds(std::min(parti.tm_sec, ultimoSecondo));
}

std::optional<std::uint64_t> MomentoImposto()
{
    constexpr std::uint64_t ultimo = 253402300799; // the last second of the year 9999
    const char* testo = std::getenv(Variabile);
    if (testo == nullptr || *testo == '\0') return std::nullopt;
    std::uint64_t secondi = 0;
    if (LeggiInteroSenzaSegno(testo, secondi) && secondi <= ultimo) return secondi;
    throw ErroreRuntime(
        NumeroErrore::TipoNonCorrispondente,
        "\"" + std::string(testo) +
            (SoloCifre(testo) ? "\" supera l'anno 9999" : "\" non è un numero di secondi dal 1970"),
        Variabile);
}

local_seconds Adesso()
{
    if (const auto imposto = MomentoImposto()) return local_seconds(seconds(*imposto));
    const auto ora = calendario::OraLocale();
    if (const auto momento = ora ? Momento(ora->Parti) : std::nullopt) return *momento;
    throw ErroreRuntime(NumeroErrore::Overflow, "segna una data oltre l'anno 9999",
                        "orologio del sistema");
}

int CifraCasuale()
{
    constexpr std::uint64_t cifre = 10;
    return MomentoImposto() ? 0 : static_cast<int>(Entropia64() % cifre);
}

minutes Scarto()
{
    if (MomentoImposto()) return minutes(0);
    const auto ora = calendario::OraLocale();
    return ora ? ora->Scarto : minutes(0);
}

} // namespace

constinit Calendario CalendarioInUso = {Adesso, CifraCasuale, Scarto};

Calendario CalendarioDelSistema()
{
    return {Adesso, CifraCasuale, Scarto};
}
