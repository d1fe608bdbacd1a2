// Colours and the state of lines. ColorText.cpp reads colours, _Patterns.cpp makes what is chosen
// like one.

#include "ColorText.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

namespace {

// The ends of the operations that set a colour, the colour space of a pattern, and a pattern in it.
struct Operators
{
    std::string_view Color;
    std::string_view Space;
    std::string_view Pattern;
};

// Digits are looked at as the caller wrote them.
std::string Resolved(std::string_view color)
{
    if (pdf::prIsPlainColor(color)) return std::string(color);
    return pdf::prNamedColor(InWindows1252(color));
}

// A pattern in the colour space of patterns, or an uncoloured one with its colour; no pattern can
// be coloured with another one.
void UsePattern(std::string& operation, std::string_view name, std::string_view patternColor,
                const Operators& operators)
{
    const std::string color = Resolved(patternColor);
    const bool coloured = pdf::prIsPlainColor(color);
    operation.assign(coloured ? pdf::UncolouredSpace : "/Pattern").append(operators.Space);
    if (coloured) operation.append(" ").append(pdf::prColorNumbers(color));
    operation.append(" /").append(pdf::prName(name)).append(operators.Pattern);
}

void UseColor(std::string& operation, std::string_view digits, const Operators& operators)
{
    operation.clear();
    pdf::prAppendColor(operation, digits);
    operation.append(operators.Color);
}

// Makes operation what sets a colour or a pattern (ISO 32000-1, 8.6.8), without the end of its
// line. In place, because a page of tables chooses colours by the hundred.
void Choose(std::string& operation, std::string_view color, std::string_view patternColor,
            const Operators& operators)
{
    if (pdf::prIsPlainColor(color)) return UseColor(operation, color, operators);
    const std::string resolved = pdf::prNamedColor(InWindows1252(color));
    if (pdf::prIsPlainColor(resolved)) return UseColor(operation, resolved, operators);
    pdf::prRequireName(resolved, pdf::PatternKind);
    UsePattern(operation, resolved, patternColor, operators);
}

} // namespace

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

void clsPDFCreator::State::prChooseFill(std::string& operation, std::string_view color,
                                        std::string_view patternColor)
{
    Choose(operation, color, patternColor, {" rg", " cs", " scn"});
}

void clsPDFCreator::State::prChooseLine(std::string& operation, std::string_view color,
                                        std::string_view patternColor)
{
    Choose(operation, color, patternColor, {" RG", " CS", " SCN"});
}

// A colour whose pattern cannot be used leaves the present one.
void clsPDFCreator::State::prAdopt(std::string& present)
{
    prUseColor(ChosenColor);
    present.swap(ChosenColor);
}

void clsPDFCreator::State::prSetFill(std::string_view color, std::string_view patternColor)
{
    std::string& chosen = Conforming ? ChosenColor : FillColor;
    prChooseFill(chosen, color, patternColor);
    if (Conforming) prAdopt(FillColor);
    Out.prWriteRaw(FillColor);
}

void clsPDFCreator::State::prSetLine(std::string_view color, std::string_view patternColor)
{
    std::string& chosen = Conforming ? ChosenColor : LineColor;
    prChooseLine(chosen, color, patternColor);
    if (Conforming) prAdopt(LineColor);
    Out.prWriteRaw(LineColor);
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
