// Patterns: tilings and gradients (ISO 32000-1, 8.7), chosen like colours by their names.

#include "ColorText.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <new>

namespace {

void AppendNumbers(std::string& text, std::initializer_list<double> numbers)
{
    for (const double number : numbers) {
        if (text.back() != '[') text.push_back(' ');
        pdf::prAppendNumber(text, number);
    }
}

std::string Components(std::string_view color)
{
    return "[" + pdf::prColorNumbers(pdf::prNamedColor(InWindows1252(color))) + " ]";
}

} // namespace

void clsPDFCreator::BeginTiling(std::string_view Name, float X1, float Y1, float X2, float Y2,
                                float XStep, float YStep, std::int32_t PaintKind)
try {
    constexpr std::int32_t uncoloured = 2;
    auto& out = m->Out;
    m->prRequire(X1, Y1, X2, Y2, XStep, YStep);
    m->prRequireObjects(State::ObjectsOfDrawing);
    const std::string name = InWindows1252(Name);
    pdf::prRequireName(name, pdf::PatternKind);
    const auto points = [this](double units) { return m->prInPoints(units); };

    const std::int32_t tile = m->Conforming ? m->prBeginConformingTile(pdf::prName(name))
                                            : m->prBeginTile(pdf::prName(name));
    out.prPrint("<< /Type /Pattern /PatternType 1 /PaintType ", PaintKind == uncoloured ? 2 : 1);
    out.prWriteRaw("/TilingType 1");
    out.prPrint("/BBox [", points(X1), " ", points(Y1), " ", points(X2), " ", points(Y2), "]");
    out.prPrint("/XStep ", points(XStep), " /YStep ", points(YStep));
    if (m->Conforming) {
        out.prPrint("/Resources ", m->DrawingResources, " 0 R");
    } else {
        // The resources without patterns: a pattern never refers to itself.
        out.prWriteRaw("/Resources 5 0 R");
        out.prWriteRaw("/Matrix [1 0 0 1 0 0]");
    }
    out.prPrint(out.prContentFilter(), "/Length ",
                m->Conforming ? m->DrawingResources + 1 : tile + 1, " 0 R >>");
    out.prBeginContent();
    m->prBeginDrawing();
    if (X1 != 0 || Y1 != 0) out.prPrint("1 0 0 1 ", points(X1), " ", points(Y1), " cm");
    out.prPrint("1 0 0 -1 0 ", points(static_cast<double>(Y2) - Y1), " cm");
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

std::int32_t clsPDFCreator::State::prBeginTile(const std::string& name)
{
    const std::int32_t tile = Out.prInitObj(0);
    KeptForDrawing = 1; // its length
    PatternResources.append("/" + name + " " + std::to_string(tile) + " 0 R \r");
    return tile;
}

std::int32_t clsPDFCreator::State::prBeginConformingTile(const std::string& name)
{
    prRequireTilingName(name);
    return Out.prInitObj(prBeginNamed(Patterns, name));
}

void clsPDFCreator::EndTiling()
try {
    m->prRequire();
    m->prEndDrawing();
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::SetLinearFill(const std::vector<std::string>& Colors, float X0, float Y0,
                                  float X1, float Y1, bool ExtendStart, bool ExtendEnd)
try {
    m->prRequire(X0, Y0, X1, Y1);
    const auto points = [this](double units) { return m->prInPoints(units); };
    m->prUseGradient({"2", "1"}, {points(X0), points(Y0), points(X1), points(Y1)}, Colors,
                     ExtendStart, ExtendEnd);
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::SetRadialFill(const std::vector<std::string>& Colors, float X0, float Y0,
                                  float R0, float X1, float Y1, float R1, bool ExtendStart,
                                  bool ExtendEnd)
try {
    m->prRequire(X0, Y0, R0, X1, Y1, R1);
    const auto points = [this](double units) { return m->prInPoints(units); };
    m->prUseGradient({"3", "1.000"},
                     {points(X0), points(Y0), points(R0), points(X1), points(Y1), points(R1)},
                     Colors, ExtendStart, ExtendEnd);
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

// A blend of the first and the last colour, kept for EndDoc and chosen as the fill at once. Its
// space is turned upside down like the page's.
void clsPDFCreator::State::prUseGradient(const GradientKind& kind,
                                         std::initializer_list<double> coordinates,
                                         const std::vector<std::string>& colors, bool extendStart,
                                         bool extendEnd)
{
    if (colors.empty()) {
        pdf::prInvalidCall("una sfumatura vuole dei colori");
    }
    if (!Conforming) prKeepObjects(1);
    const std::string name = "SHAD_" + std::to_string(GradientCount + 1) + "_ING";
    const std::int32_t object = Conforming ? prNameGradient(name) : 0;
    const GradientEnds ends = {coordinates, colors.front(), colors.back(), extendStart, extendEnd};
    Gradients.push_back(
        {Conforming ? prConformingGradient(kind, ends) : prGradient(kind, ends), object});
    ++GradientCount;
    prSetFill(name);
    FillChosen = true;
}

std::string clsPDFCreator::State::prGradient(const GradientKind& kind,
                                             const GradientEnds& ends) const
{
    std::string text = "<<\r/Type /Pattern\r/PatternType 2\r/Matrix [ 1 0 0 -1 0";
    AppendNumbers(text, {PageHeight});
    text.append("]\r/Shading <<\r/ShadingType ").append(kind.ShadingType);
    text.append("\r/ColorSpace /DeviceRGB\r/Coords [");
    AppendNumbers(text, ends.Coordinates);
    text.append("]\r/Extend [").append(ends.ExtendStart ? "true " : "false ");
    text.append(ends.ExtendEnd ? "true] \r" : "false] \r");
    text.append("/Function << /FunctionType 3 \r/Domain [0.000 1.000] \r"
                "/Functions [<< /FunctionType 2 \r/Domain [0.000 1.000]\r/C0 ");
    text.append(Components(ends.First)).append("\r/C1 ").append(Components(ends.Last));
    text.append("\r/N ").append(kind.Exponent);
    return text + " >>]\r/Bounds [] /Encode [0 1 ]\r>>\r>>\r>>";
}

std::string clsPDFCreator::State::prConformingGradient(const GradientKind& kind,
                                                       const GradientEnds& ends) const
{
    std::string text = "<< /Type /Pattern /PatternType 2 /Matrix [1 0 0 -1 0";
    AppendNumbers(text, {PageHeight});
    text.append("] /Shading << /ShadingType ").append(kind.ShadingType);
    text.append(" /ColorSpace /DeviceRGB /Coords [");
    AppendNumbers(text, ends.Coordinates);
    text.append("] /Extend [").append(ends.ExtendStart ? "true " : "false ");
    text.append(ends.ExtendEnd ? "true]" : "false]");
    text.append(" /Function << /FunctionType 2 /Domain [0 1] /C0 ").append(Components(ends.First));
    text.append(" /C1 ").append(Components(ends.Last));
    return text + " /N 1 >> >> >>";
}

// The number of the gradient of that name, which somebody may have chosen before it is made.
std::int32_t clsPDFCreator::State::prNameGradient(const std::string& name)
{
    Drawing& gradient = Patterns[name];
    if (gradient.Object == 0) gradient.Object = prReserve(1);
    gradient.Made = true;
    return gradient.Object;
}

// Those that are not in the file yet. A classic document writes them at its end, a conforming one
// after each drawing.
void clsPDFCreator::State::prWriteGradients()
{
    std::size_t number = 0;
    for (const auto& [text, known] : Gradients) {
        const std::int32_t object = Out.prInitObj(known);
        Out.prWriteRaw(text);
        Out.prEndObj();
        if (Conforming) continue;
        PatternResources.append("/SHAD_" + std::to_string(++number) + "_ING ");
        PatternResources.append(std::to_string(object) + " 0 R \r");
    }
    Gradients.clear();
}
