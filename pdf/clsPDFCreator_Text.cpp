// Text: single lines, boxes, and the text state (ISO 32000-1, 9).

#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <numbers>

namespace {

enum : std::int32_t
{
    AlignLeft = 1,
    AlignRight = 2,
    AlignCentre = 4,
    AlignBottom = 16,
    AlignMiddle = 32,
    AlignJustified = 64,

    LineAlignment = 7, // the bits that DrawText looks at
    BoxAlignment = 71, // and those of a box, of which exactly one counts

    Underline = 4,
    Overline = 8,
    StrikeOut = 16,
};

double Radians(double degrees)
{
    constexpr double straight = 180;
    return degrees * std::numbers::pi / straight;
}

} // namespace

void clsPDFCreator::SetWordSpacing(float W)
{
    m->Require(W);
    m->WordSpacing = W;
    m->Out.prLine(W, " Tw");
}

void clsPDFCreator::SetCharSpacing(float W)
{
    m->Require(W);
    m->CharSpacing = W;
    m->Out.prLine(W, " Tc");
}

void clsPDFCreator::SetTextHorizontalScaling(float W)
{
    m->Require(W);
    m->HorizontalScaling = W;
    m->Out.prLine(W, " Tz");
}

void clsPDFCreator::SetTextRenderingMode(std::int32_t W)
{
    m->Require();
    m->Out.prLine(W, " Tr");
}

void clsPDFCreator::DrawText(float X, float Y, std::string_view Text, std::int32_t Options,
                             float Angle)
{
    m->Require(X, Y, Angle);
    m->RequireFont();
    const std::string text = InWindows1252(Text);
    double x = X;
    const std::int32_t alignment = Options & LineAlignment;
    if (alignment == AlignRight) x -= m->TextWidth(text);
    if (alignment == AlignCentre) x -= m->TextWidth(text) / 2;
    const double left = m->InPoints(x);
    const double baseline = m->InPoints(Y);
    m->SetCurrent(left, baseline + m->FontSize);

    auto& out = m->Out;
    const double size = m->FontSize;
    out.prLine("BT\r\n/_FNT_", m->FontNumber(), " ", size, " Tf ", size, " TL");
    m->WriteTextMatrix(left, baseline, Angle);
    out.prLine(" (", pdf::Escaped{text}, ") Tj\r\nET");
    m->DrawDecorations(left, baseline, text, Angle);
}

std::int16_t clsPDFCreator::DrawTextBox(float X, float Y, float Width, float Height,
                                        std::string_view Text, float LineSpacing, float Indent,
                                        std::int32_t Options, float Angle)
{
    m->Require(X, Y, Width, Height, LineSpacing, Indent, Angle);
    m->RequireFont();
    std::string text = InWindows1252(Text);
    pdf::NormalizeText(text);
    auto& lines = m->Lines;
    pdf::BreakLines(text, Width, Indent, m->Metrics(), lines);
    pdf::prRequireRoom(
        static_cast<std::int32_t>(std::min<std::size_t>(lines.size() - 1, pdf::LargestCount)),
        "righe in un riquadro di testo");

    auto& out = m->Out;
    const double leading = static_cast<double>(LineSpacing) * m->FontSize;
    out.prLine("BT\r\n/_FNT_", m->FontNumber(), " ", m->FontSize, " Tf ", leading,
               " TL\r\n1 0 0 -1 0 ", m->PageHeight, " Tm");
    m->WriteTextMatrix(m->InPoints(X), m->FirstBaseline(Y, Height, leading, lines.size(), Options),
                       Angle);
    out.prLine("");
    for (const auto& line : lines) m->WriteLine(line, Width, Indent, Options & BoxAlignment);
    out.prLine("\r\nET");
    m->SetCurrent(m->InPoints(X), m->InPoints(Y));
    return static_cast<std::int16_t>(lines.size());
}

std::int16_t clsPDFCreator::DrawParagraph(float X, float Y, float Width, float Height,
                                          std::string_view Text, float LineSpacing, float Indent,
                                          std::int32_t Options, float Angle)
{
    return DrawTextBox(X, Y, Width, Height, Text, LineSpacing, Indent, Options, Angle);
}

// The matrix that puts text at (x, y), without the end of its line. Its last two entries undo the
// page's turning upside down, so that letters stand upright; positive angles turn counterclockwise
// as seen.
void clsPDFCreator::State::WriteTextMatrix(double x, double y, double angle)
{
    if (angle == 0) return Out.prPart("1 0 0 -1 ", x, " ", y, " Tm");
    const double cosine = std::cos(Radians(angle));
    const double sine = std::sin(Radians(angle));
    Out.prPart(cosine, " ", -sine, " ", -sine, " ", -cosine, " ", x, " ", y, " Tm");
}

void clsPDFCreator::State::DrawDecorations(double x, double y, std::string_view text, double angle)
{
    // Distances from the baseline, downward, and the width of the lines, as parts of the size.
    struct Decoration
    {
        std::int32_t Style;
        double Distance;
    };
    constexpr Decoration decorations[] = {{Underline, 0.125}, {Overline, -0.8}, {StrikeOut, -0.3}};
    constexpr double widthPart = 16;

    if ((FontStyle & (Underline | Overline | StrikeOut)) == 0) return;
    const double size = FontSize;
    const double length = InPoints(TextWidth(text));
    Out.prLine(size / widthPart, " w ");
    Out.prWriteRaw("q");
    Out.prLine("1 0 0 1 ", x, " ", y, " cm");
    if (angle != 0) Rotate(-angle);
    for (const auto& [style, distance] : decorations) {
        if ((FontStyle & style) == 0) continue;
        const double line = distance * size;
        Out.prLine("0 ", line, " m ", length, " ", line, " l S");
    }
    Out.prWriteRaw("Q");
    Out.prLine(LineWidth, " w"); // the "w" above stands outside the saved state
}

// One line of a box: offset or word spacing, the text, and what undoes the offset or spacing.
void clsPDFCreator::State::WriteLine(const pdf::TextLine& line, double width, double indent,
                                     std::int32_t alignment)
{
    const double firstIndent = line.FirstOfParagraph ? indent : 0;
    const double room = width - line.Width;
    double offset = firstIndent;
    if (alignment == AlignRight) offset += room;
    if (alignment == AlignCentre) offset += room / 2;
    const bool known = alignment == AlignLeft || alignment == AlignJustified;
    const bool moved =
        alignment == AlignRight || alignment == AlignCentre || (known && firstIndent != 0);
    const bool justified = alignment == AlignJustified && line.Blanks > 0 && !line.LastOfParagraph;

    if (justified) Out.prPart(InPoints(room) / line.Blanks, " Tw ");
    if (moved) Out.prPart(InPoints(offset), " 0 Td ");
    Out.prPart("(", pdf::Escaped{line.Text}, ") Tj ");
    if (justified) Out.prPart(WordSpacing, " Tw ");
    if (moved) Out.prPart(InPoints(-offset), " 0 Td ");
    Out.prPart("T*\r");
}

double clsPDFCreator::State::FirstBaseline(double y, double height, double leading,
                                           std::size_t lines, std::int32_t options) const
{
    constexpr double thousandths = 1000;
    constexpr double percent = 100;
    const auto count = static_cast<double>(lines);
    const double descent = Fonts[CurrentFont - 1].Metrics.Descent * static_cast<double>(FontSize) /
                           thousandths * HorizontalScaling / percent;
    if ((options & AlignMiddle) != 0) {
        return InPoints(y + height / 2) + leading / 2 * (2 - count) + descent;
    }
    if ((options & AlignBottom) != 0) {
        return InPoints(y + height) - leading * (count - 1) + descent;
    }
    return InPoints(y) + leading + descent;
}
