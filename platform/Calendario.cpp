#include "Calendario.h"

#include "Cifre.h"
#include "Entropia.h"
#include "ErroreRuntime.h"
#include "Numeri.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr int AnnoMassimo = 9999; // documents have four digits for it

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
    if (LeggiInteroSenzaSegno(testo, secondi) && secondi <= ultimo) return secondi;
    const std::string_view cifre = testo;
    const bool numero = SoloCifre(cifre);
    throw ErroreRuntime(
        NumeroErrore::TipoNonCorrispondente,
        "\"" + std::string(cifre) +
            (numero ? "\" supera l'anno 9999" : "\" non è un numero di secondi dal 1970"),
        "SOURCE_DATE_EPOCH");
}

DataOra Adesso()
{
    if (const auto imposto = MomentoImposto()) return InUtc(*imposto);
    const auto ora = calendario::OraLocale();
    if (ora && ora->Anno <= AnnoMassimo) return *ora;
    throw ErroreRuntime(NumeroErrore::Overflow, "segna una data oltre l'anno 9999",
                        "orologio del sistema");
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
