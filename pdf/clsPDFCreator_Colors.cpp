// Colours and the state of lines.

#include "ColorText.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

void clsPDFCreator::SetColorFill(std::string_view Color, std::string_view PatternColor)
{
    m->Require();
    if (Color.empty()) return;
    m->SetFill(InWindows1252(Color), InWindows1252(PatternColor));
    m->FillChosen = true;
}

void clsPDFCreator::SetColorLine(std::string_view Color, std::string_view PatternColor)
{
    m->Require();
    if (Color.empty()) return;
    m->SetLine(InWindows1252(Color), InWindows1252(PatternColor));
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

void clsPDFCreator::State::SetFill(std::string_view color, std::string_view patternColor)
{
    FillColor = pdf::prNamedColor(color);
    WriteFill(FillColor, patternColor);
}

void clsPDFCreator::State::SetLine(std::string_view color, std::string_view patternColor)
{
    LineColor = pdf::prNamedColor(color);
    WriteLineColor(LineColor, patternColor);
}

void clsPDFCreator::State::WriteFill(std::string_view resolved, std::string_view patternColor)
{
    WriteColor({" rg", " cs", " scn"}, resolved, patternColor);
}

void clsPDFCreator::State::WriteLineColor(std::string_view resolved, std::string_view patternColor)
{
    WriteColor({" RG", " CS", " SCN"}, resolved, patternColor);
}

// Red, green and blue from 0 to 1.
const std::string& clsPDFCreator::State::ComponentsOf(std::string_view digits)
{
    constexpr std::size_t mostKept = 16;
    constexpr double largest = 255;
    for (const auto& known : ColorTexts) {
        if (known.Digits == digits) return known.Components;
    }
    std::string components;
    for (const int component : pdf::ColorComponents(digits)) {
        if (!components.empty()) components.push_back(' ');
        pdf::prAppendNumber(components, component / largest);
    }
    if (ColorTexts.size() == mostKept) ColorTexts.clear();
    return ColorTexts.emplace_back(ColorText{std::string(digits), components}).Components;
}

// The operators of ISO 32000-1, 8.6.8: a colour, or a pattern in the colour space of patterns, or
// an uncoloured pattern with its colour.
void clsPDFCreator::State::WriteColor(const ColorOperators& operators, std::string_view color,
                                      std::string_view patternColor)
{
    if (pdf::IsDigits(color)) return Out.prLine(ComponentsOf(color), operators.Color);
    const std::string resolved = pdf::prNamedColor(patternColor);
    if (!pdf::IsDigits(resolved)) {
        return Out.prLine("/Pattern", operators.Space, " /", color, operators.Pattern);
    }
    Out.prLine("/xxCSxx", operators.Space, " ", ComponentsOf(resolved), " /", color,
               operators.Pattern);
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
