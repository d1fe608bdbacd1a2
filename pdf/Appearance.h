// How annotations look: the content of their appearance streams (ISO 32000-1, 12.5.5), in points
// from the lower left corner. clsPDFCreator_Appearances.cpp writes them.
//
// Colours are in digits, as prNamedColor gives them; "" stands for none.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pdf {

// What contents call the fonts that they use: plain Helvetica in boxes, bold in stamps.
inline constexpr std::string_view PlainFont = "Helv";
inline constexpr std::string_view BoldFont = "HeBo";

// The letters of a box are as high as it asks for, within what readers draw; 12 points where it
// asks for none or less.
double prLetterSize(double points);

inline constexpr double IconSize = 20; // how large readers draw such icons, too

// The icon of a note, IconSize by IconSize: 0 note, 1 comment, 2 key, 3 help, 4 paragraph, 5 new
// paragraph, 6 insertion; a note for any other. Without a color it is yellow.
std::string prIconContent(std::int32_t icon, std::string_view color);

struct BorderLook
{
    double Width;       // at most half of what it encloses counts; 0 or less: none
    std::int32_t Style; // 0 solid, 1 dashed, 2 beveled, 3 inset, 4 underline; any other as 0
    std::string Color;  // black for none
};

// A border just inside a rectangle of that width and height.
std::string prBorderContent(double width, double height, const BorderLook& border);

struct BoxLook
{
    double Width, Height;
    std::string Text; // Windows-1252; CR LF, CR and LF end a line
    double FontSize;
    std::string TextColor;  // black for none
    std::int32_t Alignment; // 1 centre, 2 right, any other left
    std::string Background;
};

// A box and its border with the text in it: wrapped at blanks, within words where one is wider than
// the box, and cut off at its lower edge.
std::string prBoxContent(const BoxLook& box, const BorderLook& border);

// A frame with the words of a stamp as large as they fit: 0 approved, 1 as is, 2 confidential, 3
// departmental, 4 draft, 5 experimental, 6 expired, 7 final, 8 for comment, 9 for public release,
// 10 not approved, 11 not for public release, 12 sold, 13 top secret; those of a draft for any
// other. Without a color it is dark red.
std::string prStampContent(std::int32_t stamp, double width, double height, std::string_view color);

} // namespace pdf
