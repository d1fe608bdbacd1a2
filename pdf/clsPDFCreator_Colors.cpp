// Colours and the state of lines.

#include "ColorText.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

void clsPDFCreator::SetColorFill(std::string_view Color, std::string_view PatternColor)
{
    m->prRequire();
    if (Color.empty()) return;
    m->prSetFill(Color, PatternColor);
    m->FillChosen = true;
}

void clsPDFCreator::SetColorLine(std::string_view Color, std::string_view PatternColor)
{
    m->prRequire();
    if (Color.empty()) return;
    m->prSetLine(Color, PatternColor);
}

std::string clsPDFCreator::ColorOf(const float* values, std::size_t count)
{
    return pdf::prColorOfValues({values, count});
}

void clsPDFCreator::SetLineStyle(float Width, std::int32_t Cap, std::int32_t Join, float Miter,
                                 float DashOn, float DashOff)
{
    m->prRequire(Width, Miter, DashOn, DashOff);
    if (Width >= 0) m->prSetLineWidth(Width);
    if (Cap >= 0) m->Out.prPrint(Cap, " J");
    if (Join >= 0) m->Out.prPrint(Join, " j");
    if (Miter >= 1) m->Out.prPrint(std::floor(static_cast<double>(Miter)), " M");
    m->prSetDash(DashOn, DashOff);
}

// In digits or the name of a pattern, which is escaped only where it is written: "#" at the front
// means digits.
std::string clsPDFCreator::State::prResolved(std::string_view color)
{
    if (color.empty() || pdf::prIsPlainColor(color)) return std::string(color); // nearly every one
    std::string resolved = pdf::prNamedColor(InWindows1252(color));
    if (!pdf::prIsPlainColor(resolved)) pdf::prRequireName(resolved, PatternKind);
    return resolved;
}

// In digits; nothing for a pattern, which no pattern can be coloured with.
std::string clsPDFCreator::State::prInk(std::string_view patternColor)
{
    if (patternColor.empty() || pdf::prIsPlainColor(patternColor)) return std::string(patternColor);
    std::string ink = pdf::prNamedColor(InWindows1252(patternColor));
    if (!pdf::prIsPlainColor(ink)) ink.clear();
    return ink;
}

void clsPDFCreator::State::prSetFill(std::string_view color, std::string_view patternColor)
{
    FillColor = {prResolved(color), prInk(patternColor)};
    prWriteFill(FillColor);
}

void clsPDFCreator::State::prSetLine(std::string_view color, std::string_view patternColor)
{
    LineColor = {prResolved(color), prInk(patternColor)};
    prWriteLineColor(LineColor);
}

// Red, green and blue, or a pattern in the colour space of patterns, or an uncoloured pattern with
// its colour (ISO 32000-1, 8.6.8).
void clsPDFCreator::State::prWriteFill(const Paint& paint)
{
    if (pdf::prIsPlainColor(paint.Color)) return Out.prPrint(pdf::Components{paint.Color}, " rg");
    prWritePattern(" cs", " scn", paint);
}

void clsPDFCreator::State::prWriteLineColor(const Paint& paint)
{
    if (pdf::prIsPlainColor(paint.Color)) return Out.prPrint(pdf::Components{paint.Color}, " RG");
    prWritePattern(" CS", " SCN", paint);
}

void clsPDFCreator::State::prWritePattern(std::string_view space, std::string_view use,
                                          const Paint& paint)
{
    const auto& [name, ink] = paint;
    if (!pdf::prIsPlainColor(ink))
        return Out.prPrint("/Pattern", space, " /", pdf::Name{name}, use);
    Out.prPrint("/xxCSxx", space, " ", pdf::Components{ink}, " /", pdf::Name{name}, use);
}

void clsPDFCreator::State::prSetLineWidth(double width)
{
    LineWidth = pdf::prFloat(prInPoints(width));
    Out.prPrint(prInPoints(width), " w");
}

void clsPDFCreator::State::prSetDash(double on, double off)
{
    if (on != 0 || off != 0) Out.prPrint("[", prInPoints(on), " ", prInPoints(off), "] 0 d");
    else Out.prWriteRaw("[ ] 0 d");
}
