// The pictures that annotations of a conforming document bring along (ISO 32000-1, 12.5.5): form
// XObjects, written when their page ends. Appearance.cpp draws them, _Notes.cpp asks for them.

#include "Appearance.h"
#include "clsPDFCreator_State.h"

namespace {

// No line ends within a string: only the operation that begins a text does so.
bool HasWords(std::string_view content)
{
    return content.find("BT\n") != std::string_view::npos;
}

// What is written of a picture besides what all have: the same for pictures that look the same.
std::string EntriesOf(double width, double height, std::string_view fonts)
{
    std::string entries = "/BBox [0 0 ";
    pdf::prAppendNumber(entries, width);
    entries.push_back(' ');
    pdf::prAppendNumber(entries, height);
    return entries.append("] /Resources << ").append(fonts).append(">>");
}

} // namespace

// A document of many like notes has one picture for all of them, as long as it is a small one and
// not too many others come between them.
std::string clsPDFCreator::State::prAppearance(const std::array<double, 4>& rectangle,
                                               const std::string& content, std::int32_t style)
{
    constexpr std::size_t mostKept = 64;
    constexpr std::size_t longestKept = 4096;
    const double width = rectangle[2] - rectangle[0];
    const double height = rectangle[3] - rectangle[1];
    std::string entries =
        EntriesOf(width, height, HasWords(content) ? prAppearanceFont(style) : "");
    std::string key = entries + content;
    const auto known = Appearances.find(key);
    std::int32_t object = known == Appearances.end() ? 0 : known->second;
    if (object == 0) {
        object = prReserve(ObjectsOfStream);
        NewAppearances.push_back({object, std::move(entries), content});
        if (Appearances.size() == mostKept) Appearances.clear();
        if (key.size() <= longestKept) Appearances.emplace(std::move(key), object);
    }
    return "/AP << /N " + std::to_string(object) + " 0 R >>";
}

void clsPDFCreator::State::prWriteAppearances()
{
    for (const NewAppearance& picture : NewAppearances) {
        Out.prInitObj(picture.Object);
        Out.prPrint("<< /Type /XObject /Subtype /Form ", picture.Entries);
        Out.prPrint(Out.prContentFilter(), "/Length ", picture.Object + 1, " 0 R >>");
        Out.prBeginContent();
        Out.prPart(picture.Content);
        Out.prEndStream();
        Out.prWriteStreamLength(picture.Object + 1);
    }
    NewAppearances.clear();
}

// The standard font itself, even where one of the caller's has its name: contents are laid out with
// its widths.
std::string clsPDFCreator::State::prAppearanceFont(std::int32_t style)
{
    const std::string_view name = style == 0 ? pdf::PlainFont : pdf::BoldFont;
    FontRequest& request = prRequestOf("Arial", style);
    const auto shared = BaseFonts.find(request.Standard.BaseFont);
    Font& font =
        Fonts[(shared != BaseFonts.end() ? shared->second : prAddStandardFont(request)) - 1];
    if (font.Object == 0) prNumberFont(font);
    return "/Font << /" + std::string(name) + " " + std::to_string(font.Object) + " 0 R >> ";
}
