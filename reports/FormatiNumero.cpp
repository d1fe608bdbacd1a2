#include "FormatiNumero.h"

#include "ErroreRuntime.h"
#include "Numeri.h"
#include "Windows1252.h"

#include <cmath>
#include <limits>

namespace Stampe {

namespace {

using Intero = Quoziente::Intero;

// Splits a finite number into an odd-free mantissa and a power of two; exact.
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
    while (binario.esponente < 0 && binario.mantissa % 2 == 0) {
        binario.mantissa /= 2;
        ++binario.esponente;
    }
    return binario;
}

// quoziente * fattore rounded to a whole number, exact halves away from zero.
std::int64_t Arrotonda(const Quoziente& quoziente, int fattore)
{
    if (quoziente.Divisore == 0) throw ErroreRuntime(NumeroErrore::DivisionePerZero);
    const bool negativo = (quoziente.Numeratore < 0) != (quoziente.Divisore < 0);
    const Intero numeratore =
        (quoziente.Numeratore < 0 ? -quoziente.Numeratore : quoziente.Numeratore) * fattore;
    const Intero divisore = quoziente.Divisore < 0 ? -quoziente.Divisore : quoziente.Divisore;
    const Intero intero = (2 * numeratore + divisore) / (2 * divisore);
    if (intero > std::numeric_limits<std::int64_t>::max()) {
        throw ErroreRuntime(NumeroErrore::Overflow);
    }
    const auto valore = static_cast<std::int64_t>(intero);
    return negativo ? -valore : valore;
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
    return {dividendo, divisore};
}

Quoziente Rapporto(std::int64_t dividendo, double divisore, std::int64_t volte)
{
    if (!std::isfinite(divisore)) throw ErroreRuntime(NumeroErrore::Overflow);
    const Binario binario = Scomponi(divisore);
    constexpr int esponenteMassimo = 60;
    if (binario.esponente > esponenteMassimo || binario.esponente < -esponenteMassimo) {
        throw ErroreRuntime(NumeroErrore::Overflow);
    }
    const Intero uno = 1;
    Quoziente quoziente{dividendo, static_cast<Intero>(binario.mantissa) * volte};
    if (binario.esponente < 0) quoziente.Numeratore *= uno << -binario.esponente;
    else quoziente.Divisore *= uno << binario.esponente;
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
    constexpr int centesimi = 100;
    return Centesimi(Arrotonda(quoziente, centesimi), separatori.Migliaia, separatori.Decimali);
}

std::string Percento(const Quoziente& quoziente, const Separatori& separatori)
{
    constexpr int diecimillesimi = 10000;
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
