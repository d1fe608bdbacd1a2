#include "TextLayout.h"

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

// Whether there is anything to break or to normalise: most texts are single words.
bool SingleWord(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\r'; });
}

class LineBreaker
{
public:
    LineBreaker(double width, double indent, const TextMetrics& metrics,
                std::vector<TextLine>& lines)
        : m_width(width)
        , m_indent(indent)
        , m_metrics(metrics)
        , m_blank(metrics.WidthOf(" "))
        , m_lines(lines)
    {
    }

    void Break(std::string_view paragraph)
    {
        TextLine line = {paragraph.substr(0, 0), m_indent, 0, true, false};
        bool empty = true;
        bool done = false;
        std::string_view rest = paragraph;
        while (!done) {
            const std::string_view word = TakePiece(rest, " ", done);
            const double wordWidth = m_metrics.WidthOf(word);
            if (!empty && line.Width + m_blank + wordWidth > m_width) {
                m_lines.push_back(line);
                line = {word, wordWidth, 0, false, false};
            } else {
                Extend(line, word, wordWidth, empty);
            }
            empty = false;
        }
        line.LastOfParagraph = true;
        m_lines.push_back(line);
    }

private:
    void Extend(TextLine& line, std::string_view word, double wordWidth, bool empty) const
    {
        const char* start = empty ? word.data() : line.Text.data();
        line.Text = {start, static_cast<std::size_t>(word.data() + word.size() - start)};
        line.Width += wordWidth;
        if (empty) return;
        line.Width += m_blank;
        ++line.Blanks;
    }

    double m_width;
    double m_indent;
    const TextMetrics& m_metrics;
    double m_blank;
    std::vector<TextLine>& m_lines;
};

} // namespace

double TextMetrics::WidthOf(std::string_view text) const
{
    constexpr double thousandths = 1000;
    constexpr double percent = 100;
    std::int64_t sum = 0;
    for (const char c : text) sum += (*Widths)[static_cast<unsigned char>(c)];
    double points = static_cast<double>(sum) * Size / thousandths;
    if (CharSpacing != 0) points += CharSpacing * static_cast<double>(text.size());
    if (WordSpacing != 0) {
        points += WordSpacing * static_cast<double>(std::count(text.begin(), text.end(), ' '));
    }
    points = points * HorizontalScaling / percent;
    return Scale == 0 ? 0 : points / Scale; // without a unit there is no width to speak of
}

void NormalizeText(std::string& text)
{
    if (SingleWord(text)) return;
    while (text.find("  ") != std::string::npos) text = Replaced(text, "  ", " ");
    while (text.find("\r\n\r\n") != std::string::npos) {
        text = Replaced(text, "\r\n\r\n", "\r\n \r\n");
    }
}

void BreakLines(std::string_view text, double width, double indent, const TextMetrics& metrics,
                std::vector<TextLine>& lines)
{
    lines.clear();
    if (SingleWord(text)) {
        lines.push_back({text, indent + metrics.WidthOf(text), 0, true, true});
        return;
    }
    LineBreaker breaker(width, indent, metrics, lines);
    bool done = false;
    while (!done) breaker.Break(TakePiece(text, LineEnd, done));
}

} // namespace pdf
