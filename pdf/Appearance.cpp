// Draws borders, boxes and stamps for annotations; Appearance_Icons.cpp draws the icons.

#include "Appearance.h"

#include "ColorText.h"
#include "FontWidths.h"
#include "Number.h"
#include "Template.h"
#include "TextLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace pdf {

namespace {

constexpr double CapHeight = 0.718; // of both fonts, in their size

void AppendOperation(std::string& content, std::string_view operation,
                     std::initializer_list<double> operands)
{
    for (const double operand : operands) {
        prAppendNumber(content, operand);
        content.push_back(' ');
    }
    content.append(operation).push_back('\n');
}

void AppendColor(std::string& content, std::string_view color, std::string_view operation)
{
    prAppendColor(content, color); // "" reads as black
    content.append(" ").append(operation).push_back('\n');
}

void AppendFont(std::string& content, std::string_view font, double size)
{
    content.append("/").append(font).push_back(' ');
    AppendOperation(content, "Tf", {size});
}

TextMetrics MetricsOf(bool bold, double size)
{
    return {prMetricsOf(Family::Arial, bold, false).Widths, size, 0, 0, 100, 1};
}

// ---- Borders -----------------------------------------------------------------------------------

enum BorderStyle : std::int32_t
{
    Dashed = 1,
    Beveled = 2,
    Inset = 3,
    Underline = 4,
};

bool HasDepth(const BorderLook& border)
{
    return border.Style == Beveled || border.Style == Inset;
}

// The width that is drawn.
double WidthOf(const BorderLook& border, double width, double height)
{
    return std::clamp(border.Width, 0.0, std::min(width, height) / 2);
}

// A second edge as wide within the first, lit from the upper left: one corner to the other and back
// along the inner side.
void AppendEdge(std::string& content, double grey, double line, double width, double height,
                bool upper)
{
    const double right = width - line;
    const double top = height - line;
    AppendOperation(content, "g", {grey});
    AppendOperation(content, "m", {line, line});
    AppendOperation(content, "l", {upper ? line : right, upper ? top : line});
    AppendOperation(content, "l", {right, top});
    AppendOperation(content, "l", {right - line, top - line});
    AppendOperation(content, "l", {upper ? 2 * line : right - line, upper ? top - line : 2 * line});
    AppendOperation(content, "l", {2 * line, 2 * line});
    AppendOperation(content, "f", {});
}

void AppendBorder(std::string& content, double width, double height, const BorderLook& border)
{
    const double line = WidthOf(border, width, height);
    if (line == 0) return;
    if (HasDepth(border) && 4 * line < std::min(width, height)) {
        const bool beveled = border.Style == Beveled;
        AppendEdge(content, beveled ? 1 : 0.5, line, width, height, true);
        AppendEdge(content, beveled ? 0.5 : 0.75, line, width, height, false);
    }
    AppendColor(content, border.Color, "RG");
    AppendOperation(content, "w", {line});
    if (border.Style == Underline) {
        AppendOperation(content, "m", {0, line / 2});
        AppendOperation(content, "l", {width, line / 2});
    } else {
        if (border.Style == Dashed) content.append("[3] 0 d\n");
        AppendOperation(content, "re", {line / 2, line / 2, width - line, height - line});
    }
    AppendOperation(content, "S", {});
}

// ---- Text --------------------------------------------------------------------------------------

// What WinAnsiEncoding has no letter for (ISO 32000-1, D.2).
bool IsNoLetter(char c)
{
    constexpr std::string_view undefined = "\x7F\x81\x8D\x8F\x90\x9D";
    constexpr unsigned char firstLetter = 0x20;
    return static_cast<unsigned char>(c) < firstLetter || undefined.find(c) != std::string::npos;
}

// The text with CR LF as the end of every line.
std::string Printable(std::string_view text)
{
    std::string printable;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            printable.append("\r\n");
            if (text.substr(i, 2) == "\r\n") ++i;
        } else if (c == '\t') {
            printable.push_back(' ');
        } else {
            printable.push_back(IsNoLetter(c) ? '?' : c);
        }
    }
    prNormalizeText(printable);
    return printable;
}

// How many characters at the front of a text fit, at least one.
std::size_t Fitting(std::string_view text, double width, const TextMetrics& metrics)
{
    constexpr double rounding = 0.01; // lines were measured in 32 bits
    double room = width + rounding;
    for (std::size_t i = 0; i < text.size(); ++i) {
        room -= metrics.WidthOf(text.substr(i, 1));
        if (room < 0) return std::max<std::size_t>(i, 1);
    }
    return text.size();
}

// The first lines of a printable text, as many as most.
std::vector<std::string_view> LinesOf(std::string_view text, double width, std::size_t most,
                                      const TextMetrics& metrics)
{
    std::vector<TextLine> broken;
    prBreakLines(text, prFloat(width), 0, metrics, broken);
    std::vector<std::string_view> lines;
    for (const TextLine& line : broken) {
        std::string_view rest = line.Text;
        do {
            if (lines.size() == most) return lines;
            lines.push_back(rest.substr(0, Fitting(rest, width, metrics)));
            rest.remove_prefix(lines.back().size());
        } while (!rest.empty());
    }
    return lines;
}

double IndentOf(std::string_view line, double width, std::int32_t alignment,
                const TextMetrics& metrics)
{
    const double room = width - metrics.WidthOf(line);
    if (alignment == 1) return room / 2;
    return alignment == 2 ? room : 0;
}

// edge: how much of each side the border takes.
void AppendText(std::string& content, const BoxLook& box, double edge)
{
    constexpr double margin = 2;
    constexpr double ascent = 0.85; // from the upper margin to the first baseline
    constexpr double spacing = 1.15;
    const double inset = edge + margin;
    const double width = box.Width - 2 * inset;
    const double height = box.Height - 2 * inset;
    if (width <= 0 || height <= 0) return;
    const double size = prLetterSize(box.FontSize);
    const TextMetrics metrics = MetricsOf(false, size);
    const std::string text = Printable(box.Text);
    const auto most = static_cast<std::size_t>(std::ceil(height / (spacing * size)));

    AppendOperation(content, "re", {edge, edge, box.Width - 2 * edge, box.Height - 2 * edge});
    content.append("W n\nBT\n");
    AppendColor(content, box.TextColor, "rg");
    AppendFont(content, PlainFont, size);
    double baseline = box.Height - inset - ascent * size;
    for (const std::string_view line : LinesOf(text, width, most, metrics)) {
        const double left = inset + IndentOf(line, width, box.Alignment, metrics);
        AppendOperation(content, "Tm", {1, 0, 0, 1, left, baseline});
        content.append("(").append(prPDFString(line)).append(") Tj\n");
        baseline -= spacing * size;
    }
    content.append("ET\n");
}

// ---- Stamps ------------------------------------------------------------------------------------

constexpr std::array<std::string_view, 14> StampWords = {"APPROVED",     "AS IS",
                                                         "CONFIDENTIAL", "DEPARTMENTAL",
                                                         "DRAFT",        "EXPERIMENTAL",
                                                         "EXPIRED",      "FINAL",
                                                         "FOR COMMENT",  "FOR PUBLIC RELEASE",
                                                         "NOT APPROVED", "NOT FOR PUBLIC RELEASE",
                                                         "SOLD",         "TOP SECRET"};

// A stamp of an unknown number is a draft for readers, too (ISO 32000-1, 12.5.6.12).
std::string_view WordsOf(std::int32_t stamp)
{
    constexpr std::size_t draft = 4;
    const bool known = stamp >= 0 && static_cast<std::size_t>(stamp) < StampWords.size();
    return StampWords[known ? static_cast<std::size_t>(stamp) : draft];
}

void AppendRoundRectangle(std::string& content, double left, double bottom, double right,
                          double top, double radius)
{
    const double pull = 0.5523 * radius; // of the control points, for a quarter of a circle
    const double rest = radius - pull;
    AppendOperation(content, "m", {left + radius, bottom});
    AppendOperation(content, "l", {right - radius, bottom});
    AppendOperation(content, "c",
                    {right - rest, bottom, right, bottom + rest, right, bottom + radius});
    AppendOperation(content, "l", {right, top - radius});
    AppendOperation(content, "c", {right, top - rest, right - rest, top, right - radius, top});
    AppendOperation(content, "l", {left + radius, top});
    AppendOperation(content, "c", {left + rest, top, left, top - rest, left, top - radius});
    AppendOperation(content, "l", {left, bottom + radius});
    AppendOperation(content, "c",
                    {left, bottom + rest, left + rest, bottom, left + radius, bottom});
    AppendOperation(content, "h", {});
}

void AppendWords(std::string& content, std::string_view words, double width, double height,
                 double margin)
{
    constexpr double smallest = 0.1; // readable at no zoom
    const double wide = MetricsOf(true, 1).WidthOf(words);
    const double size = std::min((width - 2 * margin) / wide, (height - 2 * margin) / CapHeight);
    if (size < smallest) return;
    content.append("BT\n");
    AppendFont(content, BoldFont, size);
    AppendOperation(content, "Td", {(width - wide * size) / 2, (height - CapHeight * size) / 2});
    content.append("(").append(words).append(") Tj\nET\n");
}

} // namespace

double prLetterSize(double points)
{
    constexpr double usual = 12;
    constexpr double smallest = 0.1;
    constexpr double largest = 14400; // the largest page (ISO 32000-1, Annex C)
    return points > 0 ? std::clamp(points, smallest, largest) : usual;
}

std::string prBorderContent(double width, double height, const BorderLook& border)
{
    std::string content;
    AppendBorder(content, width, height, border);
    return content;
}

std::string prBoxContent(const BoxLook& box, const BorderLook& border)
{
    std::string content;
    if (!box.Background.empty()) {
        AppendColor(content, box.Background, "rg");
        AppendOperation(content, "re", {0, 0, box.Width, box.Height});
        AppendOperation(content, "f", {});
    }
    AppendBorder(content, box.Width, box.Height, border);
    const double line = WidthOf(border, box.Width, box.Height);
    AppendText(content, box, HasDepth(border) ? 2 * line : line);
    return content;
}

std::string prStampContent(std::int32_t stamp, double width, double height, std::string_view color)
{
    constexpr std::string_view darkRed = "#B01818";
    const double side = std::min(width, height);
    const double line = side * 0.06;
    const double radius = side * 0.15;
    std::string content;
    AppendColor(content, color.empty() ? darkRed : color, "RG");
    AppendColor(content, color.empty() ? darkRed : color, "rg");
    AppendOperation(content, "w", {line});
    AppendRoundRectangle(content, line / 2, line / 2, width - line / 2, height - line / 2, radius);
    AppendOperation(content, "S", {});
    AppendWords(content, WordsOf(stamp), width, height, side * 0.18);
    return content;
}

} // namespace pdf
