// Measures texts and breaks them into lines; clsPDFCreator_Text.cpp writes them.

#include "TextLayout.h"

#include "Number.h"

#include <algorithm>

namespace pdf {

namespace {

constexpr std::string_view LineEnd = "\r\n";

// Puts target in place of each pattern, from front to back, each taken once.
std::string Replaced(std::string_view text, std::string_view pattern, std::string_view target)
{
    std::string result;
    for (;;) {
        const auto place = text.find(pattern);
        result.append(text.substr(0, place));
        if (place == std::string_view::npos) return result;
        result.append(target);
        text.remove_prefix(place + pattern.size());
    }
}

// Takes what stands before the separator off the front of text, which ends up empty after the
// last piece; done tells that there was no separator any more.
std::string_view TakePiece(std::string_view& text, std::string_view separator, bool& done)
{
    const auto place = text.find(separator);
    done = place == std::string_view::npos;
    const auto piece = text.substr(0, place);
    text.remove_prefix(done ? text.size() : place + separator.size());
    return piece;
}

class LineBreaker
{
public:
    LineBreaker(float width, float indent, const TextMetrics& metrics, std::vector<TextLine>& lines)
        : m_width(width)
        , m_indent(indent)
        , m_metrics(metrics)
        , m_blankSum(metrics.SumOf(" "))
        , m_blank(metrics.WidthOf(m_blankSum))
        , m_lines(lines)
    {
    }

    void Break(std::string_view paragraph)
    {
        // Asked for the whole first: where negative spacing makes a text narrower as it grows, a
        // part of it may stick out of the box that all of it fits.
        const bool whole = Fits(m_metrics.SumOf(paragraph), m_indent);
        TextLine line = {paragraph.substr(0, 0), m_indent, 0, true, false};
        TextSum sum;
        bool empty = true;
        bool done = false;
        std::string_view rest = paragraph;
        while (!done) {
            const std::string_view word = TakePiece(rest, " ", done);
            const TextSum wordSum = m_metrics.SumOf(word);
            const double wordWidth = m_metrics.WidthOf(wordSum);
            sum = empty ? wordSum : sum + m_blankSum + wordSum;
            if (!empty && !whole && !Fits(sum, line.FirstOfParagraph ? m_indent : 0)) {
                m_lines.push_back(line);
                line = {word, wordWidth, 0, false, false};
                sum = wordSum;
            } else {
                Extend(line, word, wordWidth, empty);
            }
            empty = false;
        }
        line.LastOfParagraph = true;
        m_lines.push_back(line);
    }

private:
    // All as callers know it: they measured in 32 bits and added the indent in 32 bits.
    bool Fits(const TextSum& sum, float indent) const
    {
        return prFloat(double{prFloat(m_metrics.WidthOf(sum))} + indent) <= m_width;
    }

    void Extend(TextLine& line, std::string_view word, double wordWidth, bool empty) const
    {
        const char* start = empty ? word.data() : line.Text.data();
        line.Text = {start, static_cast<std::size_t>(word.data() + word.size() - start)};
        line.Width += wordWidth;
        if (empty) return;
        line.Width += m_blank;
        ++line.Blanks;
    }

    float m_width;
    float m_indent;
    const TextMetrics& m_metrics;
    TextSum m_blankSum;
    double m_blank;
    std::vector<TextLine>& m_lines;
};

} // namespace

TextSum TextMetrics::SumOf(std::string_view text) const
{
    std::int64_t widths = 0;
    for (const char c : text) widths += (*Widths)[static_cast<unsigned char>(c)];
    return {widths, static_cast<std::int64_t>(text.size()),
            std::count(text.begin(), text.end(), ' ')};
}

double TextMetrics::WidthOf(const TextSum& sum) const
{
    constexpr double thousandths = 1000;
    constexpr double percent = 100;
    double points = static_cast<double>(sum.Widths) * Size / thousandths;
    if (CharSpacing != 0) points += CharSpacing * static_cast<double>(sum.Characters);
    if (WordSpacing != 0) points += WordSpacing * static_cast<double>(sum.Blanks);
    points = points * HorizontalScaling / percent;
    return Scale == 0 ? 0 : points / Scale; // without a unit there is no width to speak of
}

void prNormalizeText(std::string& text)
{
    while (text.find("  ") != std::string::npos) text = Replaced(text, "  ", " ");
    while (text.find("\r\n\r\n") != std::string::npos) {
        text = Replaced(text, "\r\n\r\n", "\r\n \r\n");
    }
}

void prBreakLines(std::string_view text, float width, float indent, const TextMetrics& metrics,
                  std::vector<TextLine>& lines)
{
    lines.clear();
    LineBreaker breaker(width, indent, metrics, lines);
    bool done = false;
    while (!done) breaker.Break(TakePiece(text, LineEnd, done));
}

bool prLayOutWord(std::string_view text, float indent, const TextMetrics& metrics,
                  std::vector<TextLine>& lines)
{
    TextSum sum = {0, static_cast<std::int64_t>(text.size()), 0};
    for (const char c : text) {
        if (c == ' ' || c == '\r') return false;
        sum.Widths += (*metrics.Widths)[static_cast<unsigned char>(c)];
    }
    lines.clear();
    lines.push_back({text, indent + metrics.WidthOf(sum), 0, true, true});
    return true;
}

} // namespace pdf
