// Tables: nested frames, each with a coordinate system of its own, opened in _Axes.cpp.

#include "clsPDFCreator_State.h"

#include <new>
#include <utility>

void clsPDFCreator::BeginTable(float X, float Y, std::string_view FillColor, float LineWidth,
                               std::string_view LineColor)
try {
    m->prRequire(X, Y, LineWidth);
    const State::Style present = {m->FillChosen ? m->FillColor : "",
                                  pdf::prFloat(m->prInUnits(m->LineWidth)),
                                  m->LineColor,
                                  {}};
    auto style =
        State::prStyleOf(FillColor, LineWidth, LineColor, std::make_shared<State::Style>(present));
    auto& table = m->Table;
    if (table.CellOpen) {
        // The table around that cell waits for the end of this one, which starts anew.
        m->OuterTables.push_back(table);
        table = {};
    }
    table.OwnStyle = std::move(style);
    table.Origin = {X, Y};
    table.RowPosition = table.Origin;
    table.CellWidth = 0;
    m->prSetCurrent(m->prInPoints(X), m->prInPoints(Y));
    m->Out.prWriteRaw("q");
    m->Out.prPrint(m->prInPoints(table.OwnStyle->LineWidth), " w");
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::BeginRow(float Height, std::string_view FillColor, float LineWidth,
                             std::string_view LineColor)
try {
    m->prRequire(Height, LineWidth);
    auto& table = m->Table;
    table.RowStyle = State::prStyleOf(FillColor, LineWidth, LineColor, table.OwnStyle);
    table.RowHeight = Height;
    m->prOpenSpace(table.RowPosition.X, table.RowPosition.Y);
    // As wide as the cell begun last, not as all of the row's, on purpose: how wide they will be is
    // not known yet, and they paint themselves over it.
    m->prPaintFrame(*table.RowStyle, table.CellWidth, Height);
    table.CellX = 0;
    m->Current = {};
    table.RowOpen = true;
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::EndRow()
try {
    m->prRequire();
    auto& table = m->Table;
    if (!table.RowOpen) return;
    m->Out.prWriteRaw("Q");
    table.RowPosition.Y = pdf::prFloat(static_cast<double>(table.RowPosition.Y) + table.RowHeight);
    table.RowOpen = false;
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::BeginColumn(float Width, std::string_view FillColor, float LineWidth,
                                std::string_view LineColor)
try {
    m->prRequire(Width, LineWidth);
    auto& table = m->Table;
    const auto style = State::prStyleOf(FillColor, LineWidth, LineColor, table.RowStyle);
    table.CellWidth = Width;
    m->prOpenSpace(table.CellX, 0);
    m->prPaintFrame(*style, Width, table.RowHeight);
    m->Current = {};
    table.CellOpen = true;
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::EndColumn()
try {
    m->prRequire();
    auto& table = m->Table;
    if (!table.CellOpen) return;
    m->Out.prWriteRaw("Q");
    table.CellX = pdf::prFloat(static_cast<double>(table.CellX) + table.CellWidth);
    table.CellOpen = false;
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::EndTable()
try {
    m->prRequire();
    m->Out.prWriteRaw("Q");
    m->prSetCurrent(m->prInPoints(m->Table.Origin.X), m->prInPoints(m->Table.Origin.Y));
    if (m->OuterTables.empty()) return;
    m->Table = std::move(m->OuterTables.back());
    m->OuterTables.pop_back();
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

// The inherited style itself where a call names nothing of its own, as most do.
clsPDFCreator::State::SharedStyle clsPDFCreator::State::prStyleOf(std::string_view fill,
                                                                  float lineWidth,
                                                                  std::string_view lineColor,
                                                                  const SharedStyle& inherited)
{
    constexpr float keep = -1;
    if (fill.empty() && lineWidth == keep && lineColor.empty()) return inherited;
    auto style = std::make_shared<Style>(*inherited);
    style->Frames.clear();
    if (!fill.empty()) prChooseFill(style->Fill, fill);
    if (lineWidth != keep) style->LineWidth = lineWidth;
    if (!lineColor.empty()) prChooseLine(style->LineColor, lineColor);
    return style;
}

// The frame of that size, new where there is none yet. The few widths of a table's columns come
// again in every row; a table of ever other sizes begins to remember anew now and then.
clsPDFCreator::State::Frame& clsPDFCreator::State::prFrameOf(Style& style, double width,
                                                             double height) const
{
    constexpr std::size_t mostKept = 16;
    auto& frames = style.Frames;
    for (auto& frame : frames) {
        if (frame.Width == width && frame.Height == height && frame.Scale == Scale) return frame;
    }
    if (frames.size() == mostKept) frames.clear();
    return frames.emplace_back(Frame{width, height, Scale, {}, {}});
}

// Background and frame of a row or cell at the origin. The background keeps half a line away from
// the edge, so that the frame is not covered; fill, line width and line colour are then written as
// they were before.
void clsPDFCreator::State::prPaintFrame(Style& style, double width, double height)
{
    const double line = style.LineWidth;
    Frame& frame = prFrameOf(style, width, height);
    if (Conforming) prUseFrameColors(style);
    if (!style.Fill.empty()) {
        Out.prRepeat(frame.Background, [&] {
            Out.prWriteRaw(style.Fill);
            prRectangle(line / 2, line / 2, width - line, height - line, FillPath);
        });
        Out.prWriteRaw(FillColor);
    }
    if (line != 0) {
        Out.prRepeat(frame.Edge, [&] {
            if (line > 0) Out.prPrint(prInPoints(line), " w");
            Out.prWriteRaw("[ ] 0 d");
            Out.prWriteRaw(style.LineColor);
            prRectangle(0, 0, width, height, StrokePath);
        });
        Out.prPrint(LineWidth, " w\r\n[ ] 0 d\r\n", LineColor);
    }
}

// Before the first byte: a colour that is refused paints nothing.
void clsPDFCreator::State::prUseFrameColors(const Style& style)
{
    if (!Conforming) return;
    if (!style.Fill.empty()) {
        prUseColor(style.Fill);
        prUseColor(FillColor);
    }
    if (style.LineWidth != 0) {
        prUseColor(style.LineColor);
        prUseColor(LineColor);
    }
}
