// Measuring text and breaking it into lines; clsPDFCreator_Text.cpp writes them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pdf {

// What a text adds up to before size, spacing and unit count: whole numbers, so that the sum of a
// line is that of its words and blanks, in whatever order they are added.
struct TextSum
{
    std::int64_t Widths = 0; // thousandths of the size
    std::int64_t Characters = 0;
    std::int64_t Blanks = 0;

    TextSum operator+(const TextSum& other) const
    {
        return {Widths + other.Widths, Characters + other.Characters, Blanks + other.Blanks};
    }
};

// Everything that the width of a text depends on.
struct TextMetrics
{
    const std::array<std::uint16_t, 256>* Widths; // thousandths of the size, by code
    double Size;                                  // points
    double CharSpacing;                           // points, after every character
    double WordSpacing;                           // points, after every blank
    double HorizontalScaling;                     // percent
    double Scale;                                 // points per user unit

    // The sum of Windows-1252 bytes.
    TextSum SumOf(std::string_view text) const;

    // The width of Windows-1252 bytes, or of their sum, in user units.
    double WidthOf(std::string_view text) const { return WidthOf(SumOf(text)); }
    double WidthOf(const TextSum& sum) const;
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
void prNormalizeText(std::string& text);

// Breaks a normalised text at CR LF into paragraphs and these at blanks into lines no wider than
// width; the first line of a paragraph is shorter by indent (user units both). A word that is
// wider stands alone on the line it starts. Widths are compared as 32-bit numbers, so that a
// paragraph always fits the width that it is told to have in such a number. Fills lines, at least
// one; they refer to text.
void prBreakLines(std::string_view text, float width, float indent, const TextMetrics& metrics,
                  std::vector<TextLine>& lines);

// Lays a single word out on a line of its own, which is all that most texts in tables need; lines
// refers to text. False, and lines as it was, for a text that has something to normalise or break.
bool prLayOutWord(std::string_view text, float indent, const TextMetrics& metrics,
                  std::vector<TextLine>& lines);

} // namespace pdf
