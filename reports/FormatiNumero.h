// The number formats of the reports, with the user's separators (platform/Separatori.h). No locale
// is consulted.
#pragma once

#include "Intero128.h"
#include "Separatori.h"

#include <cstdint>
#include <string>

namespace Stampe {

// A quotient kept exact, so that halves are told from what is just above or below them.
struct Quoziente
{
    bool Negativo;
    Intero128 Numeratore; // both without their signs
    Intero128 Divisore;
};

// dividendo / divisore, and dividendo / (divisore * volte) with a finite divisore of which every
// binary digit counts. The divisor may be 0: the formats below then report it. Error 6 for a
// divisor that is not finite or so far from 1 that 128 bits do not hold the quotient.
Quoziente Rapporto(std::int64_t dividendo, std::int64_t divisore);
Quoziente Rapporto(std::int64_t dividendo, double divisore, std::int64_t volte = 1);

// "#,###": a whole number with grouped thousands; zero is the empty text.
std::string Migliaia(std::int64_t valore, const Separatori& separatori);

// "#,##0": the same, but zero is "0".
std::string MigliaiaConZero(std::int64_t valore, const Separatori& separatori);

// "#,##0.00": two decimals, grouped thousands, exact halves away from zero. Error 11 (division by
// zero) when the divisor is 0.
std::string DueDecimali(const Quoziente& quoziente, const Separatori& separatori);

// "percent": a hundred times the quotient with two decimals, then "%"; no grouping, exact halves
// away from zero. Error 11 when the divisor is 0.
std::string Percento(const Quoziente& quoziente, const Separatori& separatori);

// "00": a whole number of at least two digits.
std::string DueCifre(std::int64_t valore);

// The marks as a Windows-1252 file can hold them: a mark outside the code page (the narrow
// no-break space of some regions) becomes the no-break space.
Separatori SeparatoriPerFile(const Separatori& separatori);

} // namespace Stampe
