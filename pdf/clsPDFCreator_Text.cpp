// Text: single lines, boxes, and the text state (ISO 32000-1, 9). TextLayout.cpp breaks lines,
// _Fonts.cpp chooses what they are written with.

#include "Angle.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <new>

namespace {

enum : std::int32_t
{
    LineAlignment = 7, // the bits that DrawText looks at
    BoxAlignment = 71, // and those of a box, of which exactly one counts
};

} // namespace

void clsPDFCreator::SetWordSpacing(float W)
{
    m->prRequire(W);
    m->WordSpacing = W;
    m->Out.prPrint(W, " Tw");
}

void clsPDFCreator::SetCharSpacing(float W)
{
    m->prRequire(W);
    m->CharSpacing = W;
    m->Out.prPrint(W, " Tc");
}

void clsPDFCreator::SetTextHorizontalScaling(float W)
{
    m->prRequire(W);
    m->HorizontalScaling = W;
    m->Out.prPrint(W, " Tz");
}

void clsPDFCreator::SetTextRenderingMode(std::int32_t W)
{
    m->prRequire();
    m->Out.prPrint(W, " Tr");
}

void clsPDFCreator::DrawText(float X, float Y, std::string_view Text, std::int32_t Options,
                             float Angle)
try {
    m->prRequire(X, Y, Angle);
    m->prRequireFont();
    std::string bytes;
    const std::string_view text = InWindows1252(Text, bytes);
    double x = X;
    const std::int32_t alignment = Options & LineAlignment;
    if (alignment == AlignRight) x -= m->prTextWidth(text);
    if (alignment == AlignCenter) x -= m->prTextWidth(text) / 2;
    const double left = m->prInPoints(x);
    const double baseline = m->prInPoints(Y);
    m->prSetCurrent(left, baseline + m->FontSize);

    m->prWriteText(left, baseline, text, Angle);
    m->prDrawDecorations(left, baseline, text, Angle);
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

std::int16_t clsPDFCreator::DrawTextBox(float X, float Y, float Width, float Height,
                                        std::string_view Text, float LineSpacing, float Indent,
                                        std::int32_t Options, float Angle)
try {
    m->prRequire(X, Y, Width, Height, LineSpacing, Indent, Angle);
    m->prRequireFont();
    std::string bytes;
    const std::string_view text = InWindows1252(Text, bytes);
    auto& lines = m->Lines;
    if (!pdf::prLayOutWord(text, Indent, m->prMetrics(), lines)) {
        bytes = std::string(text);
        pdf::prNormalizeText(bytes);
        pdf::prBreakLines(bytes, Width, Indent, m->prMetrics(), lines);
    }
    pdf::prRequireRoom(
        static_cast<std::int32_t>(std::min<std::size_t>(lines.size() - 1, pdf::LargestCount)),
        "righe in un riquadro di testo");

    auto& out = m->Out;
    const double leading = static_cast<double>(LineSpacing) * m->FontSize;
    out.prPrint("BT\r\n/_FNT_", m->prPresentFont(), " ", m->FontSize, " Tf ", leading,
                " TL\r\n1 0 0 -1 0 ", m->PageHeight, " Tm");
    m->prTextMatrix(m->prInPoints(X), m->prFirstBaseline(Y, Height, leading, lines.size(), Options),
                    Angle);
    out.prPrint("");
    for (const auto& line : lines) m->prWriteLine(line, Width, Indent, Options & BoxAlignment);
    out.prPrint("\r\nET");
    m->prSetCurrent(m->prInPoints(X), m->prInPoints(Y));
    return static_cast<std::int16_t>(lines.size());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

std::int16_t clsPDFCreator::DrawParagraph(float X, float Y, float Width, float Height,
                                          std::string_view Text, float LineSpacing, float Indent,
                                          std::int32_t Options, float Angle)
{
    return DrawTextBox(X, Y, Width, Height, Text, LineSpacing, Indent, Options, Angle);
}

void clsPDFCreator::State::prWriteText(double x, double y, std::string_view text, double angle)
{
    const double size = FontSize;
    Out.prPrint("BT\r\n/_FNT_", prPresentFont(), " ", size, " Tf ", size, " TL");
    prTextMatrix(x, y, angle);
    Out.prPrint(" (", pdf::Escaped{text}, ") Tj\r\nET");
}

// The matrix that puts text at (x, y), without the end of its line. Its last two entries undo the
// page's turning upside down, so that letters stand upright; positive angles turn counterclockwise
// as seen.
void clsPDFCreator::State::prTextMatrix(double x, double y, double angle)
{
    if (angle == 0) return Out.prPart("1 0 0 -1 ", x, " ", y, " Tm");
    const double cosine = std::cos(pdf::prRadians(angle));
    const double sine = std::sin(pdf::prRadians(angle));
    Out.prPart(cosine, " ", -sine, " ", -sine, " ", -cosine, " ", x, " ", y, " Tm");
}

void clsPDFCreator::State::prDrawDecorations(double x, double y, std::string_view text,
                                             double angle)
{
    // Distances from the baseline, downward, and the width of the lines, as parts of the size.
    struct Decoration
    {
        std::int32_t Style;
        double Distance;
    };
    constexpr Decoration decorations[] = {
        {StyleUnderline, 0.125}, {StyleOverline, -0.8}, {StyleStrikeOut, -0.3}};
    constexpr double widthPart = 16;

    if ((FontStyle & (StyleUnderline | StyleOverline | StyleStrikeOut)) == 0) return;
    const double size = FontSize;
    const double length = prInPoints(prTextWidth(text));
    Out.prPrint(size / widthPart, " w ");
    Out.prWriteRaw("q");
    Out.prPrint("1 0 0 1 ", x, " ", y, " cm");
    if (angle != 0) prRotate(-angle);
    for (const auto& [style, distance] : decorations) {
        if ((FontStyle & style) == 0) continue;
        const double line = distance * size;
        Out.prPrint("0 ", line, " m ", length, " ", line, " l S");
    }
    Out.prWriteRaw("Q");
    Out.prPrint(LineWidth, " w"); // the "w" above stands outside the saved state
}

// One line of a box: offset or word spacing, the text, and what undoes the offset or spacing.
void clsPDFCreator::State::prWriteLine(const pdf::TextLine& line, double width, double indent,
                                       std::int32_t alignment)
{
    const double firstIndent = line.FirstOfParagraph ? indent : 0;
    const double room = width - line.Width;
    double offset = firstIndent;
    if (alignment == AlignRight) offset += room;
    if (alignment == AlignCenter) offset += room / 2;
    const bool known = alignment == AlignLeft || alignment == AlignJustified;
    const bool moved =
        alignment == AlignRight || alignment == AlignCenter || (known && firstIndent != 0);
    const bool justified = alignment == AlignJustified && line.Blanks > 0 && !line.LastOfParagraph;

    if (justified) Out.prPart(prInPoints(room) / line.Blanks, " Tw ");
    if (moved) Out.prPart(prInPoints(offset), " 0 Td ");
    Out.prPart("(", pdf::Escaped{line.Text}, ") Tj ");
    if (justified) Out.prPart(WordSpacing, " Tw ");
    if (moved) Out.prPart(prInPoints(-offset), " 0 Td ");
    Out.prPart("T*\r");
}

double clsPDFCreator::State::prFirstBaseline(double y, double height, double leading,
                                             std::size_t lines, std::int32_t options) const
{
    constexpr double thousandths = 1000;
    constexpr double percent = 100;
    const auto count = static_cast<double>(lines);
    const double descent = Fonts[CurrentFont - 1].Metrics.Descent * static_cast<double>(FontSize) /
                           thousandths * HorizontalScaling / percent;
    if ((options & AlignMiddle) != 0) {
        return prInPoints(y + height / 2) + leading / 2 * (2 - count) + descent;
    }
    if ((options & AlignBottom) != 0) {
        return prInPoints(y + height) - leading * (count - 1) + descent;
    }
    return prInPoints(y) + leading + descent;
}
