// Axes: changes of the coordinate system (ISO 32000-1, 8.3.4). Tables, pictures and decorations of
// text draw in spaces that are opened here.

#include "Angle.h"
#include "clsPDFCreator_State.h"

void clsPDFCreator::MakeAxisTranslation(float DX, float DY)
{
    m->prRequire(DX, DY);
    m->Out.prPrint("1 0 0 1 ", m->prInPoints(DX), " ", m->prInPoints(DY), " cm");
}

void clsPDFCreator::MakeAxisScaling(float ScalingX, float ScalingY)
{
    m->prRequire(ScalingX, ScalingY);
    m->Out.prPrint(ScalingX, " 0 0 ", ScalingY, " 0 0 cm");
}

void clsPDFCreator::MakeAxisRotation(float Angle)
{
    m->prRequire(Angle);
    m->prRotate(Angle);
}

void clsPDFCreator::MakeAxisSkewing(float AngleX, float AngleY)
{
    m->prRequire(AngleX, AngleY);
    m->Out.prPrint("1 ", std::tan(pdf::prRadians(AngleX)), " ", std::tan(pdf::prRadians(AngleY)),
                   " 1 0 0 cm");
}

void clsPDFCreator::BeginGraphicSpace(float X, float Y, float ScalingX, float ScalingY)
{
    m->prRequire(X, Y, ScalingX, ScalingY);
    m->prOpenSpace(X, Y, ScalingX, ScalingY);
}

void clsPDFCreator::EndGraphicSpace()
{
    m->prRequire();
    m->Out.prWriteRaw("Q");
}

// Clockwise as seen, because y grows downward.
void clsPDFCreator::State::prRotate(double angle)
{
    if (std::fmod(std::nearbyint(angle), pdf::FullTurn) == 0) return;
    const double cosine = std::cos(pdf::prRadians(angle));
    const double sine = std::sin(pdf::prRadians(angle));
    Out.prPrint(cosine, " ", sine, " ", -sine, " ", cosine, " 0 0 cm");
}

void clsPDFCreator::State::prOpenSpace(double x, double y, double scalingX, double scalingY)
{
    prSetCurrent(prInPoints(x), prInPoints(y));
    Out.prWriteRaw("q");
    if (x == 0 && y == 0 && scalingX == 1 && scalingY == 1) return;
    Out.prPrint(scalingX, " 0 0 ", scalingY, " ", prInPoints(x), " ", prInPoints(y), " cm");
}
