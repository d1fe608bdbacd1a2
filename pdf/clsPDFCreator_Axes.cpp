// Axes: changes of the coordinate system (ISO 32000-1, 8.3.4).

#include "clsPDFCreator_State.h"

#include <numbers>

namespace {

constexpr double Degree = std::numbers::pi / 180;

} // namespace

void clsPDFCreator::MakeAxisTranslation(float DX, float DY)
{
    m->Require(DX, DY);
    m->Out.prLine("1 0 0 1 ", m->InPoints(DX), " ", m->InPoints(DY), " cm");
}

void clsPDFCreator::MakeAxisScaling(float ScalingX, float ScalingY)
{
    m->Require(ScalingX, ScalingY);
    m->Out.prLine(ScalingX, " 0 0 ", ScalingY, " 0 0 cm");
}

void clsPDFCreator::MakeAxisRotation(float Angle)
{
    m->Require(Angle);
    m->Rotate(Angle);
}

void clsPDFCreator::MakeAxisSkewing(float AngleX, float AngleY)
{
    m->Require(AngleX, AngleY);
    m->Out.prLine("1 ", std::tan(AngleX * Degree), " ", std::tan(AngleY * Degree), " 1 0 0 cm");
}

void clsPDFCreator::BeginGraphicSpace(float X, float Y, float ScalingX, float ScalingY)
{
    m->Require(X, Y, ScalingX, ScalingY);
    m->OpenSpace(X, Y, ScalingX, ScalingY);
}

void clsPDFCreator::EndGraphicSpace()
{
    m->Require();
    m->Out.prWriteRaw("Q");
}

// Clockwise as seen, because y grows downward.
void clsPDFCreator::State::Rotate(double angle)
{
    constexpr double turn = 360;
    if (std::fmod(std::nearbyint(angle), turn) == 0) return;
    const double cosine = std::cos(angle * Degree);
    const double sine = std::sin(angle * Degree);
    Out.prLine(cosine, " ", sine, " ", -sine, " ", cosine, " 0 0 cm");
}

void clsPDFCreator::State::OpenSpace(double x, double y, double scalingX, double scalingY)
{
    SetCurrent(InPoints(x), InPoints(y));
    Out.prWriteRaw("q");
    if (x == 0 && y == 0 && scalingX == 1 && scalingY == 1) return;
    Out.prLine(scalingX, " 0 0 ", scalingY, " ", InPoints(x), " ", InPoints(y), " cm");
}
