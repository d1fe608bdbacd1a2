// What the drawings of a conforming document use: each page, reusable object and tiling names its
// own fonts, pictures, objects and patterns (ISO 32000-1, 7.8.3), under the numbers that these get
// when they are used or begun for the first time.

#include "clsPDFCreator_State.h"

#include <algorithm>
#include <unordered_set>

namespace {

[[noreturn]] void Refuse(const std::string& name, std::string_view reason)
{
    pdf::prInvalidCall("il nome \"" + name + "\" " + std::string(reason));
}

// Whether the name is one that the writer gives itself: a number between these two.
bool IsNumbered(std::string_view name, std::string_view before, std::string_view after)
{
    if (!name.starts_with(before) || !name.ends_with(after)) return false;
    if (name.size() <= before.size() + after.size()) return false;
    name.remove_prefix(before.size());
    name.remove_suffix(after.size());
    return std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

std::int32_t clsPDFCreator::State::prReserve(std::int32_t count)
{
    prRequireObjects(count);
    return Out.prReserve(count);
}

void clsPDFCreator::State::prRequireObjectName(const std::string& name)
{
    if (IsNumbered(name, "_IMG_", "")) Refuse(name, "è di una figura");
}

void clsPDFCreator::State::prRequireTilingName(const std::string& name)
{
    if (IsNumbered(name, "SHAD_", "_ING")) Refuse(name, "è di una sfumatura");
}

void clsPDFCreator::State::prUseObject(const std::string& name)
{
    prRequireObjectName(name);
    prUseNamed(Forms[name], name, Used.XObjects);
}

// The name is the last operand of what chooses a pattern; anything else begins with a number.
void clsPDFCreator::State::prUseColor(std::string_view operation)
{
    if (!Conforming || operation.empty() || operation.front() != '/') return;
    const std::size_t at = operation.rfind('/') + 1;
    const std::string name(operation.substr(at, operation.rfind(' ') - at));
    Drawing& pattern = Patterns[name];
    prUseNamed(pattern, name, Used.Patterns);
    if (!operation.starts_with(pdf::UncolouredSpace)) return;
    Used.Uncoloured = true;
    pattern.Uncoloured = true;
}

// list: of the resources, where the name shall stand.
void clsPDFCreator::State::prUseNamed(Drawing& used, const std::string& name, std::string& list)
{
    if (used.UsedIn == DrawingNumber) return;
    if (OpenDrawing != nullptr) prRequireNoCircle(used, name);
    if (used.Object == 0) used.Object = prReserve(1);
    if (OpenDrawing != nullptr) {
        OpenDrawing->Contents.push_back(&used);
        used.Contained = true;
    }
    list.append("/" + name + " " + std::to_string(used.Object) + " 0 R ");
    used.UsedIn = DrawingNumber; // last: without memory for the entry it is not used yet
}

// Only a drawing that others contain can be found again in what it uses: most are begun before
// anything names them, and need no search.
void clsPDFCreator::State::prRequireNoCircle(const Drawing& used, const std::string& name) const
{
    const bool circle =
        &used == OpenDrawing || (OpenDrawing->Contained && prHolds(used, *OpenDrawing));
    if (circle) Refuse(name, "porta in cerchio: un disegno non può contenere se stesso");
}

bool clsPDFCreator::State::prHolds(const Drawing& outer, const Drawing& inner)
{
    std::vector<const Drawing*> toSee = {&outer};
    std::unordered_set<const Drawing*> seen;
    while (!toSee.empty()) {
        const Drawing* const drawing = toSee.back();
        toSee.pop_back();
        if (drawing == &inner) return true;
        if (!seen.insert(drawing).second) continue;
        toSee.insert(toSee.end(), drawing->Contents.begin(), drawing->Contents.end());
    }
    return false;
}

// Returns its number; two more follow those given out, for its resources and its length.
std::int32_t clsPDFCreator::State::prBeginNamed(Drawings& drawings, const std::string& name)
{
    Drawing& drawing = drawings[name];
    if (drawing.Made) Refuse(name, "è già di un altro disegno");
    const std::int32_t first = prReserve(drawing.Object == 0 ? 3 : 2);
    if (drawing.Object == 0) drawing.Object = first;
    drawing.Made = true;
    OpenDrawing = &drawing;
    DrawingResources = Out.prCounter() - 1;
    return drawing.Object;
}

void clsPDFCreator::State::prEndNamed()
{
    Out.prEndStream();
    Out.prWriteStreamLength(DrawingResources + 1);
    prWriteDictionary(DrawingResources, prResources());
    OpenDrawing = nullptr;
    prWriteGradients();
}

std::string clsPDFCreator::State::prResources() const
{
    std::string text = "<<";
    const auto add = [&text](std::string_view key, const std::string& entries) {
        if (entries.empty()) return;
        text.append(" /").append(key).append(" << ").append(entries).append(">>");
    };
    add("Font", Used.Fonts);
    add("XObject", Used.XObjects);
    if (Used.Uncoloured) add("ColorSpace", "/xxCSxx [/Pattern /DeviceRGB] ");
    add("Pattern", Used.Patterns);
    return text + " >>";
}

// What was used and never made stands there empty: readers miss nothing, and draw nothing.
void clsPDFCreator::State::prWriteUnmade()
{
    const auto write = [this](const Drawing& drawing, std::string_view kind) {
        if (drawing.Made || drawing.Object == 0) return;
        Out.prInitObj(drawing.Object);
        Out.prPrint("<< /Type ", kind, " /BBox [0 0 1 1] /Resources << >> /Length 0 >>");
        Out.prBeginStream();
        Out.prEndStream();
    };
    for (const auto& [name, form] : Forms) write(form, "/XObject /Subtype /Form");
    for (const auto& [name, pattern] : Patterns) {
        write(pattern,
              pattern.Uncoloured
                  ? "/Pattern /PatternType 1 /PaintType 2 /TilingType 1 /XStep 1 /YStep 1"
                  : "/Pattern /PatternType 1 /PaintType 1 /TilingType 1 /XStep 1 /YStep 1");
    }
}
