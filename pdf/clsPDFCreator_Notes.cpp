// Annotations: notes and links (ISO 32000-1, 12.5). They count y upward from the bottom of the
// page.

#include "ColorText.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <array>
#include <new>

namespace {

using Rectangle = std::array<double, 4>; // left, bottom, right, top

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

// The lines of an annotation, joined by CR.
class Annotation
{
public:
    explicit Annotation(std::string_view subtype)
        : m_text("<< /Type /Annot")
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
        Line("/" + std::string(key) + " (" + pdf::prPDFString(text) + ")");
    }

    // What every annotation may have. An empty title or colour is left out, and so is a pattern.
    void Common(std::string_view contents, std::int32_t flags, std::string_view title,
                std::string_view color)
    {
        String("Contents", contents);
        Line("/F " + std::to_string(flags));
        if (!title.empty()) String("T", title);
        const std::string resolved = pdf::prNamedColor(color);
        if (pdf::prIsPlainColor(resolved)) Line("/C [ " + pdf::prColorNumbers(resolved) + " ]");
    }

    std::string Finished()
    {
        Line(">>");
        return std::move(m_text);
    }

private:
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

    std::string m_text;
};

// The appearance of a note's text: operands before their operators.
std::string Appearance(std::int32_t font, double size, std::string_view color)
{
    std::string text = "/_FNT_" + std::to_string(font) + " ";
    pdf::prAppendNumber(text, size);
    return text + " Tf " + pdf::prColorNumbers(color) + " rg";
}

} // namespace

void clsPDFCreator::AddNoteIcon(std::string_view Text, std::int32_t Icon, float X, float Y,
                                bool Open, std::string_view Color, std::string_view Title,
                                std::int32_t Flags)
try {
    constexpr double size = 20; // points: how large readers draw such icons
    m->prRequireAnnotation(X, Y);
    Annotation note("Text");
    const double left = m->prInPoints(X);
    const double top = m->prFromBottom(Y);
    note.Rect({left, top - size, left + size, top});
    note.Common(InWindows1252(Text), Flags, InWindows1252(Title), InWindows1252(Color));
    note.Line((Open ? "/Open true" : "/Open false") + std::string(Choice(NoteIcons, Icon)));
    m->prAddAnnotation(note.Finished());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::AddNoteBox(std::string_view Text, float X, float Y, float Width, float Height,
                               float FontSize, std::string_view TextColor, std::int32_t Align,
                               float BorderWidth, std::int32_t BorderStyle, std::string_view Color,
                               std::string_view Title, std::int32_t Flags)
try {
    m->prRequireAnnotation(X, Y, Width, Height, FontSize, BorderWidth);
    auto& request = m->prRequestOf("Arial", 0);
    const std::size_t found = m->prFindFont(request);
    m->prRequireObjects(found != 0 ? 1 : 2); // both or none
    const auto font = static_cast<std::int32_t>(found != 0 ? found : m->prAddStandardFont(request));

    Annotation note("FreeText");
    note.Rect(m->prAnnotationRect(X, Y, Width, Height));
    note.Common(InWindows1252(Text), Flags,
                Title.empty() ? std::string(State::DefaultAuthor) : InWindows1252(Title),
                InWindows1252(Color));
    note.String("DA", Appearance(font, FontSize, pdf::prNamedColor(InWindows1252(TextColor))));
    if (Align == 1 || Align == 2) note.Line("/Q " + std::to_string(Align));
    std::string border = "/BS << /Type /Border /W ";
    pdf::prAppendNumber(border, BorderWidth);
    note.Line(border + std::string(Choice(BorderStyles, BorderStyle)) + " >>");
    m->prAddAnnotation(note.Finished());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::AddNoteStamp(std::string_view Text, float X, float Y, float Width, float Height,
                                 std::int32_t Stamp, std::string_view Title, std::string_view Color,
                                 std::int32_t Flags)
try {
    m->prRequireAnnotation(X, Y, Width, Height);
    Annotation stamp("Stamp");
    stamp.Rect(m->prAnnotationRect(X, Y, Width, Height));
    stamp.Common(InWindows1252(Text), Flags, InWindows1252(Title), InWindows1252(Color));
    stamp.Known(Choice(Stamps, Stamp));
    m->prAddAnnotation(stamp.Finished());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::AddWebLink(std::string_view URL, float X, float Y, float Width, float Height,
                               std::int32_t Highlight, float Border)
try {
    constexpr std::int32_t printed = 4;
    m->prRequireAnnotation(X, Y, Width, Height, Border);
    const std::string address = InWindows1252(URL);
    Annotation link("Link");
    link.Rect(m->prAnnotationRect(X, Y, Width, Height));
    link.Common(address, printed, "", "");
    link.Known(Choice(Highlights, Highlight));
    std::string border = "/Border [ 0 0 ";
    pdf::prAppendNumber(border, Border);
    link.Line(border + "]");
    link.Line("/A << /S /URI /URI (" + pdf::prPDFString(address) + ") >>");
    m->prAddAnnotation(link.Finished());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::State::prAddAnnotation(std::string annotation)
{
    Annotations.push_back(std::move(annotation));
    ++KeptForDrawing;
}

std::array<double, 4> clsPDFCreator::State::prAnnotationRect(double x, double y, double width,
                                                             double height) const
{
    return {prInPoints(x), prFromBottom(y + height), prInPoints(x + width), prFromBottom(y)};
}
