// Card texts, written and read; the promises stand in Carte.h.

#include "Carte.h"

#include "ErroreRuntime.h"
#include "Numeri.h"

#include <cmath>
#include <limits>

namespace modCarte {

std::string TestoCarta(std::int16_t codice)
{
    return std::string(NomeValore(codice)).append(SemeCarta(codice));
}

std::int32_t ValoreDaTesto(std::string_view testo)
{
    constexpr double numeraleMassimo = 10;
    const std::string_view valore = ValoreScritto(testo);
    const double numero = NumeroIniziale(valore);
    if (numero >= 1 && numero <= numeraleMassimo) {
        return static_cast<std::int32_t>(std::nearbyint(numero));
    }
    if (numero != 0) return 0;
    if (valore == "A") return 1;
    if (valore == "J") return 11;
    if (valore == "Q") return 12;
    if (valore == "K") return 13;
    return 0;
}

std::int32_t SemeDaTesto(std::string_view testo)
{
    switch (SemeScritto(testo)) {
    case 'Q':
        return 1;
    case 'C':
        return 2;
    case 'P':
        return 3;
    default:
        return 0;
    }
}

std::int32_t IndiceCarta(std::int32_t valore, std::int32_t seme)
{
    constexpr std::int64_t semi = 4;
    const std::int64_t indice = (std::int64_t{valore} - 1) * semi + seme;
    if (indice < std::numeric_limits<std::int32_t>::min() ||
        indice > std::numeric_limits<std::int32_t>::max()) {
        throw ErroreRuntime(NumeroErrore::Overflow);
    }
    return static_cast<std::int32_t>(indice);
}

} // namespace modCarte
