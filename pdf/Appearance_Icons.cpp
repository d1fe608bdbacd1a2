// Draws the icons of notes, each on a square of 20 points; Appearance.cpp draws all else.

#include "Appearance.h"
#include "ColorText.h"

#include <array>

namespace pdf {

namespace {

struct Icon
{
    std::string_view Body;  // a path, filled with the note's colour
    std::string_view Signs; // operations, drawn over it
};

constexpr std::string_view Sheet = "2.5 1.5 15 17 re\n";

constexpr std::array<Icon, 7> Icons = {{
    // A sheet with its corner turned down
    {"3.5 1.5 m 16.5 1.5 l 16.5 13.5 l 11.5 18.5 l 3.5 18.5 l h\n",
     "11.5 18.5 m 11.5 13.5 l 16.5 13.5 l\n"
     "6 10.5 m 14 10.5 l 6 7.5 m 14 7.5 l 6 4.5 m 11 4.5 l S\n"},
    // A speech bubble
    {"1.5 8.5 m 1.5 15 l 1.5 17 2.5 18 4.5 18 c 15.5 18 l 17.5 18 18.5 17 18.5 15 c\n"
     "18.5 8.5 l 18.5 6.5 17.5 5.5 15.5 5.5 c 9.5 5.5 l 5 1.5 l 5.5 5.5 l 4.5 5.5 l\n"
     "2.5 5.5 1.5 6.5 1.5 8.5 c h\n",
     "5 14.5 m 15 14.5 l 5 11.75 m 15 11.75 l 5 9 m 11 9 l S\n"},
    // A key with a hole in its ring
    {"10.323 11.25 m 18.5 11.25 l 18.5 6 l 16.5 6 l 16.5 8.75 l 15 8.75 l 15 6.75 l 13 6.75 l\n"
     "13 8.75 l 10.323 8.75 l 9.766 6.825 8.004 5.5 6 5.5 c 3.515 5.5 1.5 7.515 1.5 10 c\n"
     "1.5 12.485 3.515 14.5 6 14.5 c 8.004 14.5 9.766 13.175 10.323 11.25 c h\n"
     "6.25 10 m 6.25 10.828 5.578 11.5 4.75 11.5 c 3.922 11.5 3.25 10.828 3.25 10 c\n"
     "3.25 9.172 3.922 8.5 4.75 8.5 c 5.578 8.5 6.25 9.172 6.25 10 c h\n",
     ""},
    // A question mark in a circle
    {"18.5 10 m 18.5 14.694 14.694 18.5 10 18.5 c 5.306 18.5 1.5 14.694 1.5 10 c\n"
     "1.5 5.306 5.306 1.5 10 1.5 c 14.694 1.5 18.5 5.306 18.5 10 c h\n",
     "1.8 w 7 12.75 m 7 14.5 8.3 15.6 10 15.6 c 11.7 15.6 13 14.5 13 12.9 c\n"
     "13 10.7 10 10.6 10 8 c 10 5 m 10 4.9 l S\n"},
    // A pilcrow
    {Sheet, "10.5 16 m 7.7 16 5.5 15 5.5 12.5 c 5.5 10 7.7 9 10.5 9 c h f\n"
            "1.2 w 10.5 4 m 10.5 16 l 14.5 16 l 13 16 m 13 4 l S\n"},
    // An arrow to the start of the next line
    {Sheet, "1.5 w 14.5 14.5 m 14.5 8 l 5.5 8 l 8.5 11 m 5.5 8 l 8.5 5 l S\n"},
    // A caret
    {"10 18 m 18 2.5 l 13.5 2.5 l 10 9.5 l 6.5 2.5 l 2 2.5 l h\n", ""},
}};

// Dark on a light ground, white on a dark one.
std::string_view InkOn(std::string_view color)
{
    const auto [red, green, blue] = prColorComponents(color);
    const bool light = 30 * red + 59 * green + 11 * blue > 100 * 110;
    return light ? "0.2 g 0.2 G\n" : "1 g 1 G\n";
}

} // namespace

std::string prIconContent(std::int32_t icon, std::string_view color)
{
    constexpr std::string_view yellow = "#FFD94D";
    if (color.empty()) color = yellow;
    const bool known = icon >= 0 && static_cast<std::size_t>(icon) < Icons.size();
    const Icon& drawn = Icons[known ? static_cast<std::size_t>(icon) : 0];
    std::string content = "1 j 1 J 1 w 0.2 G\n";
    prAppendColor(content, color);
    content.append(" rg\n").append(drawn.Body).append("B*\n");
    return content.append(InkOn(color)).append(drawn.Signs);
}

} // namespace pdf
