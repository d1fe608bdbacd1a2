// The game: the shuffled shoe, the rules of a coup, the simulation of one whole shoe and its
// statistics. Next: Carte.h (cards), RecordColpo.h (what a coup's record says), Esiti.h (the
// outcomes that are counted).
//
// Plain procedures over module state. Every thread has a shoe of its own: all state below is
// thread_local. Only the procedures of this module write it; everybody else reads it.
#pragma once

#include "Carte.h"
#include "Esiti.h"
#include "Flag.h"
#include "RecordColpo.h"
#include "Registro.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace modCarte {

// ---- State -----------------------------------------------------------------------------------

// The shuffled shoe in dealing order, replaced whole by each shuffle. Indices 0 to 4 are the
// cancelled cards. All zero before the first shuffle.
extern constinit thread_local std::array<std::int16_t, CarteTaglia> Mazzo;

// Index in Mazzo of the first card of the next coup: 5 after a shuffle, 313 once the shoe has run
// out. A whole number.
extern constinit thread_local double Posizione;

// The number that the next coup record will carry: 1 after a shuffle. A whole number.
extern constinit thread_local double NumeroColpo;

// Vero once a coup has run out of cards.
extern constinit thread_local Flag FineTaglia;

// The records of the current shoe: index 0 the cancelled cards, then the coups, the last index
// the record that ran out of cards. Empty before the first shoe.
#ifdef __SANITIZE_ADDRESS__
// Local to the program: else the linker replaces the addition that finds the list by an instruction
// that sets no flags, and g++, which asks these very flags, reports a null pointer that is none.
[[gnu::tls_model("local-exec")]]
#endif
extern constinit thread_local Registro Colpi;

// Stands first in a thread that plays and gives back the memory of its Colpi at the end.
struct FineFilo
{
    FineFilo() = default;
    ~FineFilo() { Colpi.Libera(); }
    FineFilo(const FineFilo&) = delete;
    FineFilo& operator=(const FineFilo&) = delete;
    FineFilo(FineFilo&&) = delete;
    FineFilo& operator=(FineFilo&&) = delete;
};

// Counts of one shoe; whole numbers. Ties at 31 are in Pari and in TrentunoApres.
using StatisticheTaglia = ContiEsiti<double>;

extern constinit thread_local StatisticheTaglia Statistiche;

// ---- The shuffle -----------------------------------------------------------------------------

// floor((massimo - minimo + 1) * r + minimo) for one fresh random r. The bounds may be swapped:
// then a small r gives a large number. Error 6 when massimo - minimo + 1 or the result does not
// fit in 16 bits.
std::int16_t Casuale(std::int16_t massimo, std::int16_t minimo);

// Draws quanti numbers from minimo to massimo, each at most once when unici is Vero. An empty
// list for quanti of 0 or less; nothing when the request is refused or a draw fails.
std::optional<std::vector<std::int16_t>> EstraiNumeri(std::int16_t massimo, std::int16_t minimo,
                                                      std::int16_t quanti, Flag unici);

// Shuffles a new shoe: replaces Mazzo and sets Posizione 5, NumeroColpo 1, FineTaglia Falso.
// Error 13, with everything as before, when the draw failed (the random source returned 0).
void MescolaMazzo();

// Deals from a given shoe instead of a shuffled one; the state becomes that of MescolaMazzo.
// Error 5 with the reason, with everything as before, unless codici holds each of 1 to 312 once.
void ImpostaMazzo(std::span<const std::int16_t> codici);

// Starts the repeatable random stream of shoe number taglia of the run with this seed, in the
// calling thread: from here on its draws depend on these two numbers only, no longer on entropy
// and clock.
void AvviaSeme(std::uint64_t seme, std::uint64_t taglia);

// Back to a stream from the system's entropy, with the clock mixed in before every draw.
void AvviaEntropia();

// Replaces the clock that is mixed in (seconds since midnight) or the source of r (0 inclusive to
// 1 exclusive) of the calling thread; nullptr gives back the module's own.
void ImpostaOrologio(double (*orologio)());
void ImpostaSorgente(float (*sorgente)());

// ---- Coups -----------------------------------------------------------------------------------

// The rules. A coup is two rows of cards, Nero and then Rosso, dealt one card after the other. A
// row ends with the card that takes its points past 30, so that it has 31 to 40; an ace is one
// point, face cards are ten. The row with fewer points wins; equal points are a tie ("pari"), which
// at 31 is called "31 apres". The coup's first card decides the colour: Colore wins when it has the
// colour of the winning row (black for Nero, red for Rosso), else Inverso does; a tie has no
// colour.
//
// One coup by hand, on a shoe whose cards from Posizione 5 on are KP 9C 5F 8Q 10F QC 7P 6Q:
//
//   Nero    KP 10, 9C 19, 5F 24, 8Q 32: past 30, the row ends
//   Rosso   10F 10, QC 20, 7P 27, 6Q 33: past 30, the row ends
//
// 32 is less than 33: Nero wins. The first card KP is black as Nero is: Colore. The record is
// "1,N,C,32,33,KP#9C#5F#8Q,10F#QC#7P#6Q", and the next coup begins at Posizione 13.
//
// Deals the next coup and returns its record: seven fields joined by "," (number, outcome "N",
// "R" or "E", colour "C", "I" or "E", Nero total, Rosso total, Nero cards, Rosso cards; cards
// joined by "#").
//
// Reads Mazzo from index Posizione. A complete coup moves Posizione past the last Rosso card and
// adds 1 to NumeroColpo. Running out of cards is no error: FineTaglia becomes Vero, Posizione 313
// (one more with every further call), outcome and colour stay empty, and the record holds the
// cards that were left. Error 9 when Posizione is negative.
std::string GiocaColpo();

// The same, into a text whose memory is used again.
void GiocaColpo(std::string& record);

// ---- One whole shoe --------------------------------------------------------------------------

// The record of index 0: "0" and the five cancelled cards, joined by ",".
std::string CarteAnnullate();

// Fills Statistiche from the records 1 to n of Colpi. Error 9 when Colpi has no index n.
void CalcolaStatistiche(std::int16_t n);

// Shuffles and plays a whole shoe into Colpi and Statistiche. Leaves Posizione 313, NumeroColpo
// equal to the last index of Colpi, FineTaglia Vero.
void SimulaTaglia();

// The same for the shoe that stands ready in Mazzo, from Posizione on.
void GiocaTaglia();

// ---- Files -----------------------------------------------------------------------------------

// Vero when percorso names an ordinary file (no folder, hidden or system entry); Falso otherwise
// and on any error.
Flag FileEsiste(const std::string& percorso);

} // namespace modCarte
