// Numbers as texts, from exact quotients of whole numbers (Intero128.h), so that no rounding comes
// twice.
#include "FormatiNumero.h"

#include "ErroreRuntime.h"
#include "Numeri.h"
#include "Windows1252.h"

#include <cmath>
#include <limits>

namespace Stampe {

namespace {

// A finite number as mantissa times 2 to the power of esponente, exactly.
struct Binario
{
    std::int64_t mantissa;
    int esponente;
};

Binario Scomponi(double valore)
{
    constexpr int cifre = std::numeric_limits<double>::digits;
    int esponente = 0;
    const double frazione = std::frexp(valore, &esponente);
    Binario binario{static_cast<std::int64_t>(std::ldexp(frazione, cifre)), esponente - cifre};
    // Below 0 the exponent lengthens the numerator of a quotient: it is brought as near to 0 as the
    // number allows, so that 128 bits hold as many quotients as they can.
    while (binario.esponente < 0 && binario.mantissa % 2 == 0) {
        binario.mantissa /= 2;
        ++binario.esponente;
    }
    return binario;
}

std::uint64_t Modulo(std::int64_t valore)
{
    const auto bit = static_cast<std::uint64_t>(valore);
    return valore < 0 ? 0 - bit : bit;
}

// quoziente * fattore rounded to a whole number, exact halves away from zero.
std::int64_t Arrotonda(const Quoziente& quoziente, std::uint64_t fattore)
{
    const Intero128& divisore = quoziente.Divisore;
    if (divisore == Intero128()) throw ErroreRuntime(NumeroErrore::DivisionePerZero);
    const Intero128 intero = (quoziente.Numeratore * fattore * 2 + divisore) / (divisore * 2);
    if (intero > Intero128(std::numeric_limits<std::int64_t>::max())) {
        throw ErroreRuntime(NumeroErrore::Overflow);
    }
    const auto valore = static_cast<std::int64_t>(intero.Basso());
    return quoziente.Negativo ? -valore : valore;
}

// The digits of a whole number without its sign, grouped by three.
std::string Raggruppa(std::int64_t valore, const std::string& migliaia)
{
    constexpr std::size_t gruppo = 3;
    std::string cifre = TestoNumero(valore);
    const std::size_t segno = valore < 0 ? 1 : 0;
    for (std::size_t posto = cifre.size(); posto > segno + gruppo; posto -= gruppo) {
        cifre.insert(posto - gruppo, migliaia);
    }
    return cifre;
}

// A number of hundredths as text.
std::string Centesimi(std::int64_t centesimi, const std::string& migliaia,
                      const std::string& decimali)
{
    constexpr std::int64_t cento = 100;
    const bool negativo = centesimi < 0;
    const std::int64_t positivi = negativo ? -centesimi : centesimi;
    std::string testo = negativo ? "-" : "";
    testo += Raggruppa(positivi / cento, migliaia);
    testo += decimali;
    testo += DueCifre(positivi % cento);
    return testo;
}

} // namespace

Quoziente Rapporto(std::int64_t dividendo, std::int64_t divisore)
{
    return {(dividendo < 0) != (divisore < 0), Modulo(dividendo), Modulo(divisore)};
}

Quoziente Rapporto(std::int64_t dividendo, double divisore, std::int64_t volte)
{
    if (!std::isfinite(divisore)) throw ErroreRuntime(NumeroErrore::Overflow);
    const Binario binario = Scomponi(divisore);
    constexpr int esponenteMassimo = 60;
    if (binario.esponente > esponenteMassimo || binario.esponente < -esponenteMassimo) {
        throw ErroreRuntime(NumeroErrore::Overflow);
    }
    Quoziente quoziente = Rapporto(dividendo, binario.mantissa);
    quoziente.Negativo = quoziente.Negativo != (volte < 0);
    quoziente.Divisore = quoziente.Divisore * Modulo(volte);
    if (binario.esponente < 0) quoziente.Numeratore = quoziente.Numeratore << -binario.esponente;
    else quoziente.Divisore = quoziente.Divisore << binario.esponente;
    return quoziente;
}

std::string Migliaia(std::int64_t valore, const Separatori& separatori)
{
    return valore == 0 ? std::string() : MigliaiaConZero(valore, separatori);
}

std::string MigliaiaConZero(std::int64_t valore, const Separatori& separatori)
{
    return Raggruppa(valore, separatori.Migliaia);
}

std::string DueDecimali(const Quoziente& quoziente, const Separatori& separatori)
{
    constexpr std::uint64_t centesimi = 100;
    return Centesimi(Arrotonda(quoziente, centesimi), separatori.Migliaia, separatori.Decimali);
}

std::string Percento(const Quoziente& quoziente, const Separatori& separatori)
{
    constexpr std::uint64_t diecimillesimi = 10000;
    return Centesimi(Arrotonda(quoziente, diecimillesimi), "", separatori.Decimali) + "%";
}

std::string DueCifre(std::int64_t valore)
{
    std::string cifre = TestoNumero(valore < 0 ? -valore : valore);
    if (cifre.size() < 2) cifre.insert(0, 1, '0');
    return valore < 0 ? "-" + cifre : cifre;
}

Separatori SeparatoriPerFile(const Separatori& separatori)
{
    static const std::string spazioFisso = "\u00A0";
    const auto adatta = [](const std::string& segno) {
        return EntraInWindows1252(segno) ? segno : spazioFisso;
    };
    return {adatta(separatori.Decimali), adatta(separatori.Migliaia)};
}

} // namespace Stampe
