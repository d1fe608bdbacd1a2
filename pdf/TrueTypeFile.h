// TrueType fonts: measured for text, described for the PDF file.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace pdf {

// What the writer needs to know of a font. Lengths are thousandths of the font size, rounded to
// whole numbers (exact halves to the even one).
struct TrueTypeFont
{
    // /BaseFont: the font's PostScript name, else its full name (name ID 6, else 4), made of
    // visible ASCII characters without PDF delimiters and "#"; never empty.
    std::string Name;
    // Advance widths of the codes 0 to 255 of Windows-1252; for a symbolic font, of its own codes.
    // A code without a glyph has the width of the font's sign for missing glyphs.
    std::array<float, 256> Widths{};
    float Descent = 0;     // at most 0: below the base line
    bool Symbolic = false; // its codes are its own
    // The body of the font descriptor from /Flags to /AvgWidth (ISO 32000-1, 9.8).
    std::string Descriptor;
    // Whether the font's own licence bits (OS/2, fsType) let its outlines stand in a document.
    bool MayEmbed = true;
};

// Reads a TrueType font file. bytes: the whole file; fileName: named in errors.
//
// Characters are found by the first of these maps that the file has in a form of format 0, 4, 6
// or 12: Windows Unicode, other Unicode, Windows symbol, Macintosh Roman. Only a font that has
// nothing better than the symbol map is symbolic; its codes are looked up from F000 on.
//
// Cap and x height come from the OS/2 table, or from the tops of "H" and "x" where it is missing,
// too old or tells nothing. Without OS/2 the weight is the one of the style bits, the average
// width that of all widths, and embedding is allowed; without "post" the font is upright and
// proportional.
//
// Error: ErroreInputOutput with reason and file for collections, fonts with PostScript outlines
// and all other files, for a missing table, and when anything read lies outside its table.
TrueTypeFont prReadTrueType(std::string_view bytes, const std::string& fileName);

} // namespace pdf
