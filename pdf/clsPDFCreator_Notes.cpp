// Annotations: notes and links (ISO 32000-1, 12.5). They count y upward from the bottom of the
// page.

#include "Appearance.h"
#include "ColorText.h"
#include "DateText.h"
#include "TextString.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <algorithm>
#include <array>
#include <new>

namespace {

using Rectangle = std::array<double, 4>; // left, bottom, right, top

// In points; no page reaches so far (ISO 32000-1, annex C).
constexpr double Farthest = 32767;

// The name that a choice stands for; none for an unknown one.
template <std::size_t Count>
std::string_view Choice(const std::array<std::string_view, Count>& names, std::int32_t choice)
{
    return choice >= 0 && static_cast<std::size_t>(choice) < Count
               ? names[static_cast<std::size_t>(choice)]
               : std::string_view();
}

constexpr std::array<std::string_view, 7> NoteIcons = {
    " /Name /Note",      " /Name /Comment",      " /Name /Key",   " /Name /Help",
    " /Name /Paragraph", " /Name /NewParagraph", " /Name /Insert"};

constexpr std::array<std::string_view, 14> Stamps = {
    " /Name /Approved",     " /Name /AsIs",
    " /Name /Confidential", " /Name /Departmental",
    " /Name /Draft",        " /Name /Experimental",
    " /Name /Expired",      " /Name /Final",
    " /Name /ForComment",   " /Name /ForPublicRelease",
    " /Name /NotApproved",  " /Name /NotForPublicRelease",
    " /Name /Sold",         " /Name /TopSecret"};

constexpr std::array<std::string_view, 4> Highlights = {" /H /N", " /H /I", " /H /O", " /H /P"};

constexpr std::array<std::string_view, 5> BorderStyles = {" /S /S", " /S /D /D [ 3 ]", " /S /B",
                                                          " /S /I", " /S /U"};

// The colour in digits; "" for none and for a pattern.
std::string PlainColor(std::string_view color)
{
    std::string resolved = pdf::prNamedColor(InWindows1252(color));
    return pdf::prIsPlainColor(resolved) ? resolved : std::string();
}

// An address in ASCII, as a literal string: other bytes, blanks among them, as "%" and two digits.
std::string Uri(std::string_view utf8)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string ascii;
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (c > ' ' && c <= '~') {
            ascii.push_back(c);
        } else {
            ascii.append({'%', digits[byte / 16], digits[byte % 16]});
        }
    }
    return "(" + pdf::prPDFString(ascii) + ")";
}

// The lines of an annotation, joined by CR. Texts are UTF-8 and stand in it as its kind of document
// has them.
class Annotation
{
public:
    Annotation(std::string_view subtype, bool conforming)
        : m_conforming(conforming)
        , m_text("<< /Type /Annot")
    {
        Line("/Subtype /" + std::string(subtype));
    }

    void Line(std::string_view line) { m_text.append("\r").append(line); }

    // A line only for a choice that means something.
    void Known(std::string_view line)
    {
        if (!line.empty()) Line(line);
    }

    void Rect(const Rectangle& rectangle) { Line("/Rect [" + Joined(rectangle) + "]"); }

    void String(std::string_view key, std::string_view text)
    {
        Line("/" + std::string(key) + " " + (m_conforming ? pdf::prTextString(text) : Bytes(text)));
    }

    void Link(std::string_view address)
    {
        Line("/A << /S /URI /URI " + (m_conforming ? Uri(address) : Bytes(address)) + " >>");
    }

    // How a note's text is written: operands before their operators.
    void Letters(std::string_view font, double size, std::string_view color)
    {
        std::string operators = "/DA (/" + std::string(font) + " ";
        pdf::prAppendNumber(operators, m_conforming ? pdf::prLetterSize(size) : size);
        operators.append(" Tf ");
        const std::string resolved = pdf::prNamedColor(InWindows1252(color));
        pdf::prAppendColor(operators, m_conforming ? PlainColor(color) : resolved);
        Line(operators + " rg)");
    }

    void Border(double width, std::int32_t style)
    {
        std::string border = "/BS << /Type /Border /W ";
        pdf::prAppendNumber(border, m_conforming ? std::clamp(width, 0.0, Farthest) : width);
        Line(border.append(Choice(BorderStyles, style)).append(" >>"));
    }

    void OldBorder(double width)
    {
        std::string border = "/Border [ 0 0 ";
        pdf::prAppendNumber(border, width);
        Line(border + "]");
    }

    // What every annotation may have. An empty title or colour is left out, and so is a pattern.
    void Common(std::string_view contents, std::int32_t flags, std::string_view title,
                std::string_view color)
    {
        String("Contents", contents);
        Line("/F " + std::to_string(flags));
        if (!title.empty()) String("T", title);
        const std::string plain = PlainColor(color);
        if (!plain.empty()) Line("/C [ " + pdf::prColorNumbers(plain) + " ]");
    }

    std::string Lines() { return std::move(m_text); }

private:
    static std::string Bytes(std::string_view text)
    {
        return "(" + pdf::prPDFString(InWindows1252(text)) + ")";
    }

    template <std::size_t Count>
    static std::string Joined(const std::array<double, Count>& numbers)
    {
        std::string text;
        for (const double number : numbers) {
            if (!text.empty()) text.push_back(' ');
            pdf::prAppendNumber(text, number);
        }
        return text;
    }

    bool m_conforming;
    std::string m_text;
};

// Upright, and with numbers that every reader takes.
Rectangle Readable(const Rectangle& rectangle)
{
    const auto [left, bottom, right, top] = rectangle;
    Rectangle readable = {std::min(left, right), std::min(bottom, top), std::max(left, right),
                          std::max(bottom, top)};
    for (double& number : readable) number = std::clamp(number, -Farthest, Farthest);
    return readable;
}

double WidthOf(const Rectangle& rectangle)
{
    return rectangle[2] - rectangle[0];
}

double HeightOf(const Rectangle& rectangle)
{
    return rectangle[3] - rectangle[1];
}

// The border of a link once more: one widespread reader shows no picture of a link, but does of
// this kind, which nobody can click (ISO 32000-1, 12.5.6.22). The link lies above it.
std::string LinkBorder(const Rectangle& rectangle, std::string_view appearance)
{
    constexpr std::int32_t printedAndKept = 4 + 64;
    Annotation border("Watermark", true);
    border.Rect(rectangle);
    border.Line("/F " + std::to_string(printedAndKept));
    border.Line(appearance);
    return border.Lines();
}

} // namespace

void clsPDFCreator::AddNoteIcon(std::string_view Text, std::int32_t Icon, float X, float Y,
                                bool Open, std::string_view Color, std::string_view Title,
                                std::int32_t Flags)
try {
    m->prRequireAnnotation(X, Y);
    Annotation note("Text", m->Conforming);
    const double left = m->prInPoints(X);
    const double top = m->prFromBottom(Y);
    const auto rect = m->prReadable({left, top - pdf::IconSize, left + pdf::IconSize, top});
    note.Rect(rect);
    note.Common(Text, Flags, Title, Color);
    note.Line((Open ? "/Open true" : "/Open false") + std::string(Choice(NoteIcons, Icon)));
    if (m->Conforming) {
        note.Line(m->prAppearance(rect, pdf::prIconContent(Icon, PlainColor(Color))));
    }
    m->prAddAnnotation(note.Lines());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::AddNoteBox(std::string_view Text, float X, float Y, float Width, float Height,
                               float FontSize, std::string_view TextColor, std::int32_t Align,
                               float BorderWidth, std::int32_t BorderStyle, std::string_view Color,
                               std::string_view Title, std::int32_t Flags)
try {
    m->prRequireAnnotation(X, Y, Width, Height, FontSize, BorderWidth);
    const std::string font = m->prBoxFont();
    Annotation note("FreeText", m->Conforming);
    const auto rect = m->prAnnotationRect(X, Y, Width, Height);
    note.Rect(rect);
    note.Common(Text, Flags, Title.empty() ? State::DefaultAuthor : Title, Color);
    note.Letters(font, FontSize, TextColor);
    if (Align == 1 || Align == 2) note.Line("/Q " + std::to_string(Align));
    note.Border(BorderWidth, BorderStyle);
    if (m->Conforming) {
        const pdf::BoxLook box = {WidthOf(rect),    HeightOf(rect),        InWindows1252(Text),
                                  FontSize,         PlainColor(TextColor), Align,
                                  PlainColor(Color)};
        const pdf::BorderLook border = {BorderWidth, BorderStyle, box.TextColor};
        note.Line(m->prAppearance(rect, pdf::prBoxContent(box, border)));
    }
    m->prAddAnnotation(note.Lines());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::AddNoteStamp(std::string_view Text, float X, float Y, float Width, float Height,
                                 std::int32_t Stamp, std::string_view Title, std::string_view Color,
                                 std::int32_t Flags)
try {
    m->prRequireAnnotation(X, Y, Width, Height);
    Annotation stamp("Stamp", m->Conforming);
    const auto rect = m->prAnnotationRect(X, Y, Width, Height);
    stamp.Rect(rect);
    stamp.Common(Text, Flags, Title, Color);
    stamp.Known(Choice(Stamps, Stamp));
    if (m->Conforming) {
        constexpr std::int32_t bold = 1;
        const std::string content =
            pdf::prStampContent(Stamp, WidthOf(rect), HeightOf(rect), PlainColor(Color));
        stamp.Line(m->prAppearance(rect, content, bold));
    }
    m->prAddAnnotation(stamp.Lines());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::AddWebLink(std::string_view URL, float X, float Y, float Width, float Height,
                               std::int32_t Highlight, float Border)
try {
    constexpr std::int32_t printed = 4;
    m->prRequireAnnotation(X, Y, Width, Height, Border);
    Annotation link("Link", m->Conforming);
    const auto rect = m->prAnnotationRect(X, Y, Width, Height);
    link.Rect(rect);
    link.Common(URL, printed, "", "");
    link.Known(Choice(Highlights, Highlight));
    if (m->Conforming) {
        const double width = WidthOf(rect);
        const double height = HeightOf(rect);
        const std::string look =
            m->prAppearance(rect, pdf::prBorderContent(width, height, {Border, 0, ""}));
        if (Border > 0) m->prAddAnnotation(LinkBorder(rect, look));
        link.Line("/Border [0 0 0]"); // some readers would draw theirs besides the picture
        link.Line(look);
    } else {
        link.OldBorder(Border);
    }
    link.Link(URL);
    m->prAddAnnotation(link.Lines());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

// The font of the box's text, which may still be edited: in a conforming document that of its
// picture, which readers know by that name.
std::string clsPDFCreator::State::prBoxFont()
{
    if (Conforming) return std::string(pdf::PlainFont);
    auto& request = prRequestOf("Arial", 0);
    const std::size_t found = prFindFont(request);
    prRequireObjects(found != 0 ? 1 : 2); // both or none
    return "_FNT_" + std::to_string(found != 0 ? found : prAddStandardFont(request));
}

// Those of a conforming document say what page they are on, when they were made and what they are
// called: readers that gather them keep them apart.
void clsPDFCreator::State::prAddAnnotation(std::string lines)
{
    if (Conforming) {
        lines.append("\r/P " + std::to_string(PageObject) + " 0 R\r/M (");
        lines.append(pdf::prDateWithOffset(Created) + ")\r/NM (" + std::to_string(PageCount));
        lines.append("-" + std::to_string(Annotations.size() + 1) + ")");
    }
    Annotations.push_back(std::move(lines) + "\r>>");
    ++KeptForDrawing;
}

std::array<double, 4> clsPDFCreator::State::prReadable(const std::array<double, 4>& rectangle) const
{
    return Conforming ? Readable(rectangle) : rectangle;
}

std::array<double, 4> clsPDFCreator::State::prAnnotationRect(double x, double y, double width,
                                                             double height) const
{
    return prReadable(
        {prInPoints(x), prFromBottom(y + height), prInPoints(x + width), prFromBottom(y)});
}
