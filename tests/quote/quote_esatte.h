// The exact odds of the first coup of a shoe, calculated without dealing: what statistical tests
// compare the engine with.
#ifndef TESTS_QUOTE_QUOTE_ESATTE_H
#define TESTS_QUOTE_QUOTE_ESATTE_H

#include <array>
#include <cstddef>

namespace quote {

// Points run from 1 to 10; totals of a completed row run from 31 to 40.
inline constexpr std::size_t kValori = 10;
inline constexpr std::size_t kTotali = 10;
inline constexpr std::size_t kPrimoTotale = 31;

// A row is closed by the first card that takes it past 30, so it never exceeds 31 cards.
inline constexpr std::size_t kMaxCarteRiga = 31;
inline constexpr std::size_t kMaxCarteColpo = 2 * kMaxCarteRiga;

// Number of cards of each point value: element 0 counts the aces, element 9 everything worth ten.
using Composizione = std::array<int, kValori>;

inline constexpr Composizione kSeiMazzi = {24, 24, 24, 24, 24, 24, 24, 24, 24, 96};

// Every probability is that of the event *and* of the coup being completed: a shoe that runs out
// in the middle of a row gives neither a winner nor a tie, and its weight is in `incompiuto` only.
struct QuotePrimoColpo
{
    double vinceNero = 0.0;
    double vinceRosso = 0.0;
    double pari = 0.0; // includes trentunoApres
    double trentunoApres = 0.0;
    double colore = 0.0;
    double inverso = 0.0;
    double neroColore = 0.0;
    double neroInverso = 0.0;
    double rossoColore = 0.0;
    double rossoInverso = 0.0;

    // One minus all the rest, hence mere rounding residue when the shoe cannot run out.
    double incompiuto = 0.0;

    // Element i is the total 31 + i.
    std::array<double, kTotali> totaleNero{};
    std::array<double, kTotali> totaleRosso{};

    // Element k is the probability that the two rows together take k cards.
    std::array<double, kMaxCarteColpo + 1> carteColpo{};
};

// Exact odds of the first coup dealt from a uniformly shuffled shoe. Cards burnt unseen do not
// change them, as any cards of a uniform shuffle are as good as the topmost ones, provided enough
// are left for a whole coup.
//
// Each count must be even and not negative, or std::invalid_argument is thrown: half the cards of
// every value are taken to be black and half red, and the colour results rest on that.
QuotePrimoColpo CalcolaQuotePrimoColpo(const Composizione& composizione = kSeiMazzi);

} // namespace quote

#endif
