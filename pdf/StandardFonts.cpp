// The 14 standard fonts as a table. The measures are those of their published metrics; the widths
// that go with them are in FontWidths.cpp.

#include "StandardFonts.h"

#include <array>
#include <cstddef>

namespace pdf {

namespace {

// Regular, bold, italic, both.
using Faces = std::array<StandardFace, 4>;

constexpr Faces Helvetica = {
    {{"Helvetica",
      "/Flags 32 /FontBBox [-166 -225 1000 931] /ItalicAngle 0 /Ascent 718 /Descent -207 "
      "/CapHeight 718 /XHeight 523 /StemV 88",
      false},
     {"Helvetica-Bold",
      "/Flags 32 /FontBBox [-170 -228 1003 962] /ItalicAngle 0 /Ascent 718 /Descent -207 "
      "/CapHeight 718 /XHeight 532 /StemV 140",
      false},
     {"Helvetica-Oblique",
      "/Flags 96 /FontBBox [-170 -225 1116 931] /ItalicAngle -12 /Ascent 718 /Descent -207 "
      "/CapHeight 718 /XHeight 523 /StemV 88",
      false},
     {"Helvetica-BoldOblique",
      "/Flags 96 /FontBBox [-174 -228 1114 962] /ItalicAngle -12 /Ascent 718 /Descent -207 "
      "/CapHeight 718 /XHeight 532 /StemV 140",
      false}}};

constexpr Faces Times = {
    {{"Times-Roman",
      "/Flags 34 /FontBBox [-168 -218 1000 898] /ItalicAngle 0 /Ascent 683 /Descent -217 "
      "/CapHeight 662 /XHeight 450 /StemV 84",
      false},
     {"Times-Bold",
      "/Flags 34 /FontBBox [-168 -218 1000 935] /ItalicAngle 0 /Ascent 683 /Descent -217 "
      "/CapHeight 676 /XHeight 461 /StemV 139",
      false},
     {"Times-Italic",
      "/Flags 98 /FontBBox [-169 -217 1010 883] /ItalicAngle -15.5 /Ascent 683 /Descent -217 "
      "/CapHeight 653 /XHeight 441 /StemV 76",
      false},
     {"Times-BoldItalic",
      "/Flags 98 /FontBBox [-200 -218 996 921] /ItalicAngle -15 /Ascent 683 /Descent -217 "
      "/CapHeight 669 /XHeight 462 /StemV 121",
      false}}};

constexpr Faces Courier = {
    {{"Courier",
      "/Flags 35 /FontBBox [-23 -250 715 805] /ItalicAngle 0 /Ascent 629 /Descent -157 "
      "/CapHeight 562 /XHeight 426 /StemV 51",
      false},
     {"Courier-Bold",
      "/Flags 35 /FontBBox [-113 -250 749 801] /ItalicAngle 0 /Ascent 629 /Descent -157 "
      "/CapHeight 562 /XHeight 439 /StemV 106",
      false},
     {"Courier-Oblique",
      "/Flags 99 /FontBBox [-27 -250 849 805] /ItalicAngle -12 /Ascent 629 /Descent -157 "
      "/CapHeight 562 /XHeight 426 /StemV 51",
      false},
     {"Courier-BoldOblique",
      "/Flags 99 /FontBBox [-57 -250 869 801] /ItalicAngle -12 /Ascent 629 /Descent -157 "
      "/CapHeight 562 /XHeight 439 /StemV 106",
      false}}};

// These two publish no heights of letters: their boxes stand in.
constexpr StandardFace Symbol = {
    "Symbol",
    "/Flags 4 /FontBBox [-180 -293 1090 1010] /ItalicAngle 0 /Ascent 1010 /Descent -293 "
    "/CapHeight 1010 /StemV 85",
    true};
constexpr StandardFace ZapfDingbats = {
    "ZapfDingbats",
    "/Flags 4 /FontBBox [-1 -143 981 820] /ItalicAngle 0 /Ascent 820 /Descent -143 "
    "/CapHeight 820 /StemV 90",
    true};

} // namespace

const StandardFace& prStandardFace(Family family, bool bold, bool italic)
{
    const std::size_t face = (bold ? 1U : 0U) + (italic ? 2U : 0U);
    switch (family) {
    case Family::Times:
        return Times[face];
    case Family::Courier:
        return Courier[face];
    case Family::Symbol:
        return Symbol;
    case Family::ZapfDingbats:
        return ZapfDingbats;
    case Family::Arial:
        break;
    }
    return Helvetica[face];
}

} // namespace pdf
