// Colours and the state of lines.

#include "ColorText.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

void clsPDFCreator::SetColorFill(std::string_view Color, std::string_view PatternColor)
{
    m->Require();
    if (Color.empty()) return;
    m->SetFill(Color, PatternColor);
    m->FillChosen = true;
}

void clsPDFCreator::SetColorLine(std::string_view Color, std::string_view PatternColor)
{
    m->Require();
    if (Color.empty()) return;
    m->SetLine(Color, PatternColor);
}

std::string clsPDFCreator::ColorOf(const float* values, std::size_t count)
{
    return pdf::ColorOfValues({values, count});
}

void clsPDFCreator::SetLineStyle(float Width, std::int32_t Cap, std::int32_t Join, float Miter,
                                 float DashOn, float DashOff)
{
    m->Require(Width, Miter, DashOn, DashOff);
    if (Width >= 0) m->SetLineWidth(Width);
    if (Cap >= 0) m->Out.prLine(Cap, " J");
    if (Join >= 0) m->Out.prLine(Join, " j");
    if (Miter >= 1) m->Out.prLine(std::floor(static_cast<double>(Miter)), " M");
    m->SetDash(DashOn, DashOff);
}

// In digits or the name of a pattern, which is escaped only where it is written: "#" at the front
// means digits.
std::string clsPDFCreator::State::Resolved(std::string_view color)
{
    if (color.empty() || pdf::IsDigits(color)) return std::string(color); // nearly every one
    std::string resolved = pdf::prNamedColor(InWindows1252(color));
    if (!pdf::IsDigits(resolved)) pdf::prRequireName(resolved, PatternKind);
    return resolved;
}

// In digits; nothing for a pattern, which no pattern can be coloured with.
std::string clsPDFCreator::State::Ink(std::string_view patternColor)
{
    if (patternColor.empty() || pdf::IsDigits(patternColor)) return std::string(patternColor);
    std::string ink = pdf::prNamedColor(InWindows1252(patternColor));
    if (!pdf::IsDigits(ink)) ink.clear();
    return ink;
}

void clsPDFCreator::State::SetFill(std::string_view color, std::string_view patternColor)
{
    FillColor = {Resolved(color), Ink(patternColor)};
    WriteFill(FillColor);
}

void clsPDFCreator::State::SetLine(std::string_view color, std::string_view patternColor)
{
    LineColor = {Resolved(color), Ink(patternColor)};
    WriteLineColor(LineColor);
}

// Red, green and blue, or a pattern in the colour space of patterns, or an uncoloured pattern with
// its colour (ISO 32000-1, 8.6.8).
void clsPDFCreator::State::WriteFill(const Paint& paint)
{
    if (pdf::IsDigits(paint.Color)) return Out.prLine(pdf::Components{paint.Color}, " rg");
    WritePattern(" cs", " scn", paint);
}

void clsPDFCreator::State::WriteLineColor(const Paint& paint)
{
    if (pdf::IsDigits(paint.Color)) return Out.prLine(pdf::Components{paint.Color}, " RG");
    WritePattern(" CS", " SCN", paint);
}

void clsPDFCreator::State::WritePattern(std::string_view space, std::string_view use,
                                        const Paint& paint)
{
    const auto& [name, ink] = paint;
    if (!pdf::IsDigits(ink)) return Out.prLine("/Pattern", space, " /", pdf::Name{name}, use);
    Out.prLine("/xxCSxx", space, " ", pdf::Components{ink}, " /", pdf::Name{name}, use);
}

void clsPDFCreator::State::SetLineWidth(double width)
{
    LineWidth = pdf::prFloat(InPoints(width));
    Out.prLine(InPoints(width), " w");
}

void clsPDFCreator::State::SetDash(double on, double off)
{
    if (on != 0 || off != 0) Out.prLine("[", InPoints(on), " ", InPoints(off), "] 0 d");
    else Out.prWriteRaw("[ ] 0 d");
}
