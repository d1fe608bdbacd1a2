// Measuring text and breaking it into lines.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pdf {

// Everything that the width of a text depends on.
struct TextMetrics
{
    const std::array<std::uint16_t, 256>* Widths; // thousandths of the size, by code
    double Size;                                  // points
    double CharSpacing;                           // points, after every character
    double WordSpacing;                           // points, after every blank
    double HorizontalScaling;                     // percent
    double Scale;                                 // points per user unit

    // The width of Windows-1252 bytes in user units.
    double WidthOf(std::string_view text) const;
};

struct TextLine
{
    std::string_view Text; // words with one blank between them
    double Width;          // user units, the indent of a first line included
    int Blanks;
    bool FirstOfParagraph;
    bool LastOfParagraph;
};

// Makes runs of blanks one blank, and puts a blank into each empty line between CR LF pairs, so
// that it stays a line.
void NormalizeText(std::string& text);

// Breaks a normalised text at CR LF into paragraphs and these at blanks into lines no wider than
// width; the first line of a paragraph is shorter by indent (user units both). A word that is
// wider stands alone on the line it starts. Fills lines, at least one; they refer to text.
void BreakLines(std::string_view text, double width, double indent, const TextMetrics& metrics,
                std::vector<TextLine>& lines);

} // namespace pdf
