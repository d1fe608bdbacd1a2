// Advance widths and descents of the standard fonts, for measuring text without a font file.
#pragma once

#include <array>
#include <cstdint>

namespace pdf {

enum class Family : std::uint8_t
{
    Times,
    Courier,
    Arial,
    Symbol,
    ZapfDingbats
};

// Static metrics of one face; the tables live as long as the program.
//
// Widths: advance widths of the codes 0 to 255, 138 to 1042 thousandths of the font size. The codes
// are Windows-1252 for Times, Courier and Arial, and the built-in encoding of the font for Symbol
// and ZapfDingbats (ISO 32000-1, D.5 and D.6). Every code has a width, also those that stand for
// no character. Never null.
//
// Descent: how far the face reaches below the baseline, in thousandths of the font size; negative.
struct FaceMetrics
{
    const std::array<std::uint16_t, 256>* Widths;
    std::int16_t Descent;
};

// The metrics of a family's face. Bold and italic count for Times and Arial only: every Courier
// face has one width, Symbol and ZapfDingbats have one face. Arial's italic faces are its upright
// ones leaning over and share their tables. Cannot fail; a family outside the list is Arial.
FaceMetrics prMetricsOf(Family family, bool bold, bool italic);

} // namespace pdf
