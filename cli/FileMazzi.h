// Shoe files: recorded shoes, one per line. Who plays them: SorgenteTaglie.h.
//
// A line holds 312 cards separated by commas, semicolons or blanks: either all as codes 1 to 312,
// each once, or all as texts ("AC", "10F"), each of the 52 six times. "#" starts a comment; empty
// lines are passed over, and so is a byte order mark before a line. Of equal texts the first one
// stands for the first pack, and so on.
#pragma once

#include "IndiceMazzi.h"
#include "LetturaFile.h"
#include "modCarte.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace cli {

using Taglia = std::array<std::int16_t, modCarte::CarteTaglia>;

// The shoe of a line, or nothing when it holds only blanks and a comment. Error 5 with the reason.
std::optional<Taglia> LeggiTaglia(std::string_view riga);

// The shoes of a file, all of them checked.
//
// Of a regular file only the places are kept, twelve bytes a shoe, and each shoe is read again when
// it is dealt; what comes from a pipe is kept whole. Errors name the file and the reason.
class FileMazzi
{
public:
    // Opens the file; "-" is standard input.
    explicit FileMazzi(const std::string& percorso);

    // Reads and checks every line and keeps the shoes, at most massimo when given; to be called
    // once. Errors name the line, too. False when fermare said to stop.
    bool Leggi(std::optional<std::int64_t> massimo, const std::function<bool()>& fermare);

    const std::string& Percorso() const { return m_file.Percorso(); }

    // Shoes kept; at least one after reading.
    std::int64_t Quante() const { return static_cast<std::int64_t>(m_indice.Quante()); }

    // Shoe number indice, from 0 on. Error 5 when the file holds another one there by now. Any
    // thread may ask.
    Taglia Mazzo(std::size_t indice) const;

    // The shoes that are equal to an earlier one, card by card whatever their packs. Ends with what
    // it knows so far when fermare says to stop.
    std::optional<IndiceMazzi::Ripetute> Ripetizioni(const std::function<bool()>& fermare);

    // Whether the file has been written to since it was opened.
    bool Cambiato() const { return m_file.Cambiato(); }

private:
    void Aggiungi(std::uint64_t inizio, const Taglia& taglia);
    std::optional<Taglia> Rileggi(std::uint64_t inizio) const;

    FileRighe m_file;
    IndiceMazzi m_indice;
    std::deque<Taglia> m_intere; // of a file that cannot be read twice
};

// The line that LeggiTaglia reads as this shoe, with its line end.
std::string RigaTaglia(const Taglia& taglia);

} // namespace cli
