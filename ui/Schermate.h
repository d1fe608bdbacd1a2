// The title and the three screens of a game: what they show and where. No widget is known
// here; Racconto.h tells them in words.
#pragma once

#include "Superficie.h"
#include "modCarte.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace schermate {

// Each draws its elements on a cleared surface, which is not refreshed here.

// The program's name, two fans of cards, the version. Leaves a green background, black text and the
// name's font to every later screen.
void Titolo(Superficie& tavolo);

// Five backs and the captions of a new shoe.
void NuovaTaglia(Superficie& tavolo);

// Coup number numero from its record.
void Colpo(Superficie& tavolo, std::int16_t numero, const modCarte::RecordColpo& record);

// The final record, the one with this number, and the counts of its shoe. Error 13 when a
// total is no whole number, error 6 when one is beyond 16 bits.
void FineTaglia(Superficie& tavolo, std::int16_t numero, const modCarte::RecordColpo& record,
                const modCarte::StatisticheTaglia& statistiche);

// The caption of an outcome, verb in the plural for an ordinary coup and in the singular for the
// last one; empty for a record without outcome.
std::string DidascaliaEsito(const modCarte::RecordColpo& record, bool ultimo);

// Pixels from one card of a row to the next, for so many cards.
std::int32_t PassoColpo(int carte);
std::int32_t PassoFinale(int carte);

} // namespace schermate
