// Tables: nested frames, each with a coordinate system of its own.

#include "clsPDFCreator_State.h"

void clsPDFCreator::BeginTable(float X, float Y, std::string_view FillColor, float LineWidth,
                               std::string_view LineColor)
{
    m->Require(X, Y, LineWidth);
    const State::Style present = {m->FillChosen ? m->FillColor : State::Paint{},
                                  m->InUnits(m->LineWidth), m->LineColor};
    m->TableStyle = m->StyleOf(FillColor, LineWidth, LineColor, present);
    m->TableOrigin = {X, Y};
    m->RowPosition = m->TableOrigin;
    m->CellWidth = 0;
    m->SetCurrent(m->InPoints(X), m->InPoints(Y));
    m->Out.prWriteRaw("q");
    m->Out.prLine(m->InPoints(m->TableStyle.LineWidth), " w");
}

void clsPDFCreator::BeginRow(float Height, std::string_view FillColor, float LineWidth,
                             std::string_view LineColor)
{
    m->Require(Height, LineWidth);
    m->RowHeight = Height;
    m->RowStyle = m->StyleOf(FillColor, LineWidth, LineColor, m->TableStyle);
    m->OpenSpace(m->RowPosition.X, m->RowPosition.Y);
    // As wide as the cell begun last, not as all of the row's, on purpose.
    m->PaintFrame(m->RowStyle, m->CellWidth, Height);
    m->CellX = 0;
    m->Current = {};
    m->RowOpen = true;
}

void clsPDFCreator::EndRow()
{
    m->Require();
    if (!m->RowOpen) return;
    m->Out.prWriteRaw("Q");
    m->RowPosition.Y = pdf::prFloat(static_cast<double>(m->RowPosition.Y) + m->RowHeight);
    m->RowOpen = false;
}

void clsPDFCreator::BeginColumn(float Width, std::string_view FillColor, float LineWidth,
                                std::string_view LineColor)
{
    m->Require(Width, LineWidth);
    m->CellWidth = Width;
    m->OpenSpace(m->CellX, 0);
    m->PaintFrame(m->StyleOf(FillColor, LineWidth, LineColor, m->RowStyle), Width, m->RowHeight);
    m->Current = {};
    m->CellOpen = true;
}

void clsPDFCreator::EndColumn()
{
    m->Require();
    if (!m->CellOpen) return;
    m->Out.prWriteRaw("Q");
    m->CellX = pdf::prFloat(static_cast<double>(m->CellX) + m->CellWidth);
    m->CellOpen = false;
}

void clsPDFCreator::EndTable()
{
    m->Require();
    m->Out.prWriteRaw("Q");
    m->SetCurrent(m->InPoints(m->TableOrigin.X), m->InPoints(m->TableOrigin.Y));
}

clsPDFCreator::State::Style clsPDFCreator::State::StyleOf(std::string_view fill, float lineWidth,
                                                          std::string_view lineColor,
                                                          const Style& inherited) const
{
    constexpr float keep = -1;
    Style style = inherited;
    if (!fill.empty()) style.Fill = {Resolved(fill), {}};
    if (lineWidth != keep) style.LineWidth = lineWidth;
    if (!lineColor.empty()) style.LineColor = {Resolved(lineColor), {}};
    return style;
}

// Background and frame of a row or cell at the origin. The background keeps half a line away from
// the edge, so that the frame is not covered; fill, line width and line colour are then written as
// they were before.
void clsPDFCreator::State::PaintFrame(const Style& style, double width, double height)
{
    const double line = style.LineWidth;
    if (!style.Fill.Color.empty()) {
        WriteFill(style.Fill);
        Rectangle(line / 2, line / 2, width - line, height - line, 4);
        WriteFill(FillColor);
    }
    if (line != 0) {
        if (line > 0) Out.prLine(InPoints(line), " w");
        Out.prWriteRaw("[ ] 0 d");
        WriteLineColor(style.LineColor);
        Rectangle(0, 0, width, height, 1);
        Out.prLine(LineWidth, " w\r\n[ ] 0 d");
        WriteLineColor(LineColor);
    }
}
