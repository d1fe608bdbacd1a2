#include "Calendario.h"

#include "Entropia.h"
#include "ErroreRuntime.h"
#include "Numeri.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace {

DataOra InUtc(std::uint64_t secondi)
{
    using namespace std::chrono;
    const sys_seconds momento{seconds{secondi}};
    const auto giorno = floor<days>(momento);
    const year_month_day data{giorno};
    const hh_mm_ss ora{momento - giorno};
    return {static_cast<int>(data.year()),
            static_cast<int>(static_cast<unsigned>(data.month())),
            static_cast<int>(static_cast<unsigned>(data.day())),
            static_cast<int>(ora.hours().count()),
            static_cast<int>(ora.minutes().count()),
            static_cast<int>(ora.seconds().count())};
}

std::optional<std::uint64_t> MomentoImposto()
{
    constexpr std::uint64_t ultimo = 253402300799; // the last second of the year 9999
    const char* testo = std::getenv("SOURCE_DATE_EPOCH");
    if (testo == nullptr || *testo == '\0') return std::nullopt;
    std::uint64_t secondi = 0;
    if (!LeggiInteroSenzaSegno(testo, secondi) || secondi > ultimo) {
        throw ErroreRuntime(NumeroErrore::TipoNonCorrispondente,
                            "\"" + std::string(testo) + "\" non è un numero di secondi dal 1970",
                            "SOURCE_DATE_EPOCH");
    }
    return secondi;
}

DataOra Adesso()
{
    const auto imposto = MomentoImposto();
    return imposto ? InUtc(*imposto) : calendario::OraLocale();
}

int CifraCasuale()
{
    constexpr std::uint64_t cifre = 10;
    return MomentoImposto() ? 0 : static_cast<int>(Entropia64() % cifre);
}

} // namespace

constinit Calendario CalendarioInUso = {Adesso, CifraCasuale};

Calendario CalendarioDelSistema()
{
    return {Adesso, CifraCasuale};
}
