// Reading, rounding and writing numbers without a locale; the promises stand in Numeri.h.

#include "Numeri.h"

#include "Cifre.h"
#include "ErroreRuntime.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

// Where sums and quotients have more digits in registers than in memory, they round differently,
// and reports would show other numbers than elsewhere.
static_assert(FLT_EVAL_METHOD == 0);

namespace {

// The power of ten of the first digit that is not 0. from_chars tells that a number is out of
// range, not whether it is too large or too small: the sign of this does.
std::int64_t OrdineDiGrandezza(std::string_view numero)
{
    const auto e = std::min(numero.find_first_of("eE"), numero.size());
    const auto mantissa = numero.substr(0, e);
    const auto punto = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto prima = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    const std::int64_t ordine = prima < punto ? punto - prima - 1 : punto - prima;

    auto esponente = numero.substr(std::min(e + 1, numero.size()));
    if (!esponente.empty() && esponente.front() == '+') esponente.remove_prefix(1);
    std::int64_t valore = 0;
    const auto esito =
        std::from_chars(esponente.data(), esponente.data() + esponente.size(), valore);
    if (esito.ec == std::errc::result_out_of_range) return esponente.front() == '-' ? -1 : 1;
    return ordine + valore;
}

} // namespace

std::int16_t Intero16(double valore)
{
    const double intero = std::nearbyint(valore);
    const bool entra = intero >= std::numeric_limits<std::int16_t>::min() &&
                       intero <= std::numeric_limits<std::int16_t>::max();
    if (!entra) throw ErroreRuntime(NumeroErrore::Overflow);
    return static_cast<std::int16_t>(intero);
}

double NumeroIniziale(std::string_view testo)
{
    const auto inizio = testo.find_first_not_of(" \t");
    if (inizio == std::string_view::npos) return 0;
    testo.remove_prefix(inizio);

    const bool negativo = testo.front() == '-';
    if (negativo || testo.front() == '+') testo.remove_prefix(1);

    // from_chars also reads "inf" and "nan"; here letters read as 0.
    const bool numero = !testo.empty() && (Cifra(testo[0]) || testo[0] == '.');
    if (!numero) return 0;

    double valore = 0;
    const auto esito = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    if (esito.ec == std::errc::result_out_of_range) {
        const std::string_view letto(testo.data(),
                                     static_cast<std::size_t>(esito.ptr - testo.data()));
        valore = OrdineDiGrandezza(letto) < 0 ? 0 : std::numeric_limits<double>::infinity();
    }
    return negativo ? -valore : valore;
}

std::string TestoNumero(double valore)
{
    std::array<char, 400> cifre; // the longest fixed form of a double takes some 330 characters
    const auto esito =
        std::to_chars(cifre.data(), cifre.data() + cifre.size(), valore, std::chars_format::fixed);
    return {cifre.data(), esito.ptr};
}

std::string TestoNumero(std::int64_t valore)
{
    std::array<char, 24> cifre;
    const auto esito = std::to_chars(cifre.data(), cifre.data() + cifre.size(), valore);
    return {cifre.data(), esito.ptr};
}

bool LeggiInteroSenzaSegno(std::string_view testo, std::uint64_t& valore)
{
    if (testo.empty() || !std::all_of(testo.begin(), testo.end(), Cifra)) return false;
    std::uint64_t letto = 0;
    const auto esito = std::from_chars(testo.data(), testo.data() + testo.size(), letto);
    if (esito.ec != std::errc()) return false;
    valore = letto;
    return true;
}
