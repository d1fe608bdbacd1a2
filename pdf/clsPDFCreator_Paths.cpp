// Paths: straight lines, rectangles and curves (ISO 32000-1, 8.5); _Colors.cpp says what they are
// painted with.

#include "Angle.h"
#include "clsPDFCreator_State.h"

#include <algorithm>
#include <numbers>

void clsPDFCreator::MoveTo(float X, float Y)
{
    m->prRequire(X, Y);
    m->prMove(X, Y);
}

void clsPDFCreator::DrawLineTo(float X, float Y, std::int32_t Options)
{
    m->prRequire(X, Y);
    m->prLineTo(X, Y, Options);
}

void clsPDFCreator::DrawLine(float X1, float Y1, float X2, float Y2, std::int32_t Options)
{
    m->prRequire(X1, Y1, X2, Y2);
    const auto points = [this](float units) { return m->prInPoints(units); };
    // The start on purpose, unlike DrawLineTo: lines of their own leave the point where they began.
    m->prSetCurrent(points(X1), points(Y1));
    m->Out.prPrint(points(X1), " ", points(Y1), " m ", points(X2), " ", points(Y2), " l");
    m->prPaintOp(Options);
}

void clsPDFCreator::DrawRect(float X, float Y, float Width, float Height, std::int32_t Options,
                             float Radius)
{
    m->prRequire(X, Y, Width, Height, Radius);
    if (Radius > 0) m->prRoundRectangle(X, Y, Width, Height, Radius, Options);
    else m->prRectangle(X, Y, Width, Height, Options);
}

void clsPDFCreator::DrawCurveA(float X1, float Y1, float X2, float Y2, float X3, float Y3,
                               std::int32_t Options)
{
    m->prRequire(X1, Y1, X2, Y2, X3, Y3);
    m->prCurve(X1, Y1, X2, Y2, X3, Y3, Options);
}

void clsPDFCreator::DrawCurveB(float X2, float Y2, float X3, float Y3, std::int32_t Options)
{
    m->prRequire(X2, Y2, X3, Y3);
    m->prShortCurve(X2, Y2, X3, Y3, " v", Options);
}

void clsPDFCreator::DrawCurveC(float X1, float Y1, float X3, float Y3, std::int32_t Options)
{
    m->prRequire(X1, Y1, X3, Y3);
    m->prShortCurve(X1, Y1, X3, Y3, " y", Options);
}

void clsPDFCreator::DrawCircle(float X, float Y, float Ray, std::int32_t Options)
{
    DrawEllipse(X, Y, Ray, Ray, Options);
}

void clsPDFCreator::DrawEllipse(float X, float Y, float RayX, float RayY, std::int32_t Options)
{
    m->prRequire(X, Y, RayX, RayY);
    m->prEllipse(X, Y, RayX, RayY, Options);
}

void clsPDFCreator::DrawArc(float X, float Y, float Ray, float StartAngle, float EndAngle,
                            std::int32_t Options)
{
    m->prRequire(X, Y, Ray, StartAngle, EndAngle);
    m->prArc(X, Y, Ray, StartAngle, EndAngle, Options);
}

void clsPDFCreator::State::prPaintOp(std::int32_t options)
{
    switch (options & (StrokePath | ClosePath | FillPath)) {
    case StrokePath | ClosePath | FillPath:
        return Out.prWriteRaw("b");
    case ClosePath | FillPath:
    case FillPath:
        return Out.prWriteRaw("f"); // filling closes the path itself
    case StrokePath | FillPath:
        return Out.prWriteRaw("B");
    case StrokePath | ClosePath:
        Out.prWriteRaw("h");
        return Out.prWriteRaw("S");
    case ClosePath:
        return Out.prWriteRaw("h");
    case StrokePath:
        return Out.prWriteRaw("S");
    default:
        return;
    }
}

void clsPDFCreator::State::prMove(double x, double y)
{
    prSetCurrent(prInPoints(x), prInPoints(y));
    Out.prPrint(prInPoints(x), " ", prInPoints(y), " m");
}

void clsPDFCreator::State::prLineTo(double x, double y, std::int32_t options)
{
    prSetCurrent(prInPoints(x), prInPoints(y));
    Out.prPrint(prInPoints(x), " ", prInPoints(y), " l");
    prPaintOp(options);
}

void clsPDFCreator::State::prCurve(double x1, double y1, double x2, double y2, double x3, double y3,
                                   std::int32_t options)
{
    prSetCurrent(prInPoints(x3), prInPoints(y3));
    Out.prPrint(prInPoints(x1), " ", prInPoints(y1), " ", prInPoints(x2), " ", prInPoints(y2), " ",
                prInPoints(x3), " ", prInPoints(y3), " c");
    prPaintOp(options);
}

void clsPDFCreator::State::prShortCurve(double x1, double y1, double x3, double y3,
                                        std::string_view operation, std::int32_t options)
{
    prSetCurrent(prInPoints(x3), prInPoints(y3));
    Out.prPrint(prInPoints(x1), " ", prInPoints(y1), " ", prInPoints(x3), " ", prInPoints(y3),
                operation);
    prPaintOp(options);
}

void clsPDFCreator::State::prRectangle(double x, double y, double width, double height,
                                       std::int32_t options)
{
    Out.prPrint("n\r\n", prInPoints(x), " ", prInPoints(y), " ", prInPoints(width), " ",
                prInPoints(height), " re");
    prPaintOp(options);
}

void clsPDFCreator::State::prRoundRectangle(double x, double y, double width, double height,
                                            double radius, std::int32_t options)
{
    // 0.5523 would come nearer to a circle. Not so on purpose: round corners keep the numbers that
    // they have in documents made before.
    constexpr double towardsCorner = 0.55;
    const double r = std::min({radius, width / 2, height / 2});
    const double c = towardsCorner * r;
    const double right = x + width;
    const double bottom = y + height;
    Out.prWriteRaw("n");
    prMove(x + r, y);
    prLineTo(right - r, y, OpenPath);
    prCurve(right - r + c, y, right, y + r - c, right, y + r, OpenPath);
    prLineTo(right, bottom - r, OpenPath);
    prCurve(right, bottom - r + c, right - r + c, bottom, right - r, bottom, OpenPath);
    prLineTo(x + r, bottom, OpenPath);
    prCurve(x + r - c, bottom, x, bottom - r + c, x, bottom - r, OpenPath);
    prLineTo(x, y + r, OpenPath);
    prCurve(x, y + r - c, x + r - c, y, x + r, y, OpenPath);
    prPaintOp(options);
}

// Four quarters from the right end by the lower one, each with its control points on the tangents.
void clsPDFCreator::State::prEllipse(double x, double y, double rayX, double rayY,
                                     std::int32_t options)
{
    constexpr double k = 4 * (std::numbers::sqrt2 - 1) / 3;
    const double kx = k * rayX;
    const double ky = k * rayY;
    prMove(x + rayX, y);
    prCurve(x + rayX, y + ky, x + kx, y + rayY, x, y + rayY, OpenPath);
    prCurve(x - kx, y + rayY, x - rayX, y + ky, x - rayX, y, OpenPath);
    prCurve(x - rayX, y - ky, x - kx, y - rayY, x, y - rayY, OpenPath);
    prCurve(x + kx, y - rayY, x + rayX, y - ky, x + rayX, y, OpenPath);
    prPaintOp(options);
}

// Equal pieces of at most a quarter of a circle.
void clsPDFCreator::State::prArc(double x, double y, double ray, double start, double end,
                                 std::int32_t options)
{
    constexpr double quarter = pdf::FullTurn / 4;
    if (end < start) end += pdf::FullTurn * std::ceil((start - end) / pdf::FullTurn);
    const double pieces = std::max(1.0, std::ceil((end - start) / quarter));
    const double step = pdf::prRadians((end - start) / pieces);
    const double k = 4.0 / 3 * std::tan(step / 4) * ray;
    const auto onCircle = [&](double angle) {
        return std::pair{x + ray * std::cos(angle), y - ray * std::sin(angle)};
    };
    // As many turns as asked for would draw the same circle again; no more than fill the page.
    const auto count = static_cast<std::int64_t>(std::min(pieces, MostArcPieces));
    const double first = pdf::prRadians(start);
    double angle = first;
    auto [fromX, fromY] = onCircle(angle);
    prMove(fromX, fromY);
    for (std::int64_t i = 1; i <= count; ++i) {
        const double next = first + step * static_cast<double>(i);
        const auto [toX, toY] = onCircle(next);
        prCurve(fromX - k * std::sin(angle), fromY - k * std::cos(angle), toX + k * std::sin(next),
                toY + k * std::cos(next), toX, toY, OpenPath);
        angle = next;
        fromX = toX;
        fromY = toY;
    }
    prPaintOp(options);
}
