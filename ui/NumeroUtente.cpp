// Reads a number with the user's marks by writing it anew without them; base/Numeri.h reads that.

#include "NumeroUtente.h"

#include "Cifre.h"
#include "ErroreRuntime.h"
#include "Numeri.h"

#include <string>

namespace {

bool ConCifra(std::string_view testo)
{
    return !testo.empty() && Cifra(testo.front());
}

bool Mangia(std::string_view& testo, std::string_view segno)
{
    if (segno.empty() || !testo.starts_with(segno)) return false;
    testo.remove_prefix(segno.size());
    return true;
}

std::string_view SenzaMargini(std::string_view testo)
{
    constexpr std::string_view bianchi = " \t\r\n\f\v";
    const auto inizio = testo.find_first_not_of(bianchi);
    if (inizio == std::string_view::npos) return {};
    return testo.substr(inizio, testo.find_last_not_of(bianchi) - inizio + 1);
}

// Moves the digits at the start of testo to the end of piano; how many there were.
int PrendiCifre(std::string_view& testo, std::string& piano, std::string_view migliaia)
{
    int quante = 0;
    while (ConCifra(testo)) {
        piano.push_back(testo.front());
        testo.remove_prefix(1);
        ++quante;
        // A mark of thousands counts only with a digit after it.
        if (testo.starts_with(migliaia) && ConCifra(testo.substr(migliaia.size()))) {
            testo.remove_prefix(migliaia.size());
        }
    }
    return quante;
}

void PrendiSegno(std::string_view& testo, std::string& piano)
{
    if (Mangia(testo, "-")) piano.push_back('-');
    else Mangia(testo, "+");
}

// The same number with "." and without marks; empty when testo is none.
std::string InPiano(std::string_view testo, const Separatori& separatori)
{
    std::string piano;
    PrendiSegno(testo, piano);
    int cifre = PrendiCifre(testo, piano, separatori.Migliaia);
    if (Mangia(testo, separatori.Decimali)) {
        piano.push_back('.');
        cifre += PrendiCifre(testo, piano, {});
    }
    if (cifre == 0) return {};
    if (Mangia(testo, "e") || Mangia(testo, "E")) {
        piano.push_back('e');
        PrendiSegno(testo, piano);
        if (PrendiCifre(testo, piano, {}) == 0) return {};
    }
    return testo.empty() ? piano : std::string();
}

} // namespace

double NumeroUtente(std::string_view testo, const Separatori& separatori)
{
    const std::string piano = InPiano(SenzaMargini(testo), separatori);
    if (piano.empty()) throw ErroreRuntime(NumeroErrore::TipoNonCorrispondente);
    return NumeroIniziale(piano);
}
