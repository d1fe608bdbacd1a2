// Reusable objects: form XObjects (ISO 32000-1, 8.10) that pages play by name; some play by
// themselves where _Pages.cpp begins and ends a page.

#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <new>

namespace {

constexpr std::string_view FormKind = "un modulo";

} // namespace

void clsPDFCreator::BeginObject(std::string_view Name, std::int32_t Flags)
try {
    auto& out = m->Out;
    m->prRequire();
    m->prRequireObjects(State::ObjectsOfDrawing);
    const std::string name = InWindows1252(Name);
    pdf::prRequireName(name, FormKind);
    if (m->Conforming) m->prBeginConformingForm(name);
    else m->prBeginForm(name);
    m->AutoObjects.push_back({name, Flags});
    m->prBeginDrawing();
    out.prWriteRaw("q");
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::EndObject()
try {
    m->prRequire();
    m->Out.prWriteRaw("Q");
    m->prEndDrawing();
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::State::prBeginForm(const std::string& name)
{
    const std::int32_t number = Out.prInitObj(0);
    KeptForDrawing = 1; // its length
    Out.prPrint("<< /Type /XObject /Subtype /Form /FormType 1 /Name /", pdf::Name{name});
    Out.prPrint("/BBox ", prBox(PageMargin)); // what readers show of a page
    Out.prWriteRaw("/Matrix [1 0 0 1 0 0]");
    Out.prPrint(Out.prContentFilter(), "/Length ", number + 1, " 0 R >>");
    Out.prBeginContent();
    FormResources.append("/").append(pdf::prName(name)).append(" ");
    FormResources.append(std::to_string(number)).append(" 0 R \r");
}

void clsPDFCreator::State::prBeginConformingForm(const std::string& name)
{
    const std::string known = pdf::prName(name);
    prRequireObjectName(known);
    Out.prInitObj(prBeginNamed(Forms, known));
    Out.prPrint("<< /Type /XObject /Subtype /Form /BBox ", prBox(PageMargin), " /Resources ",
                DrawingResources, " 0 R ", Out.prContentFilter(), "/Length ", DrawingResources + 1,
                " 0 R >>");
    Out.prBeginContent();
}

void clsPDFCreator::PlayObject(std::string_view Name)
try {
    m->prRequire();
    const std::string name = InWindows1252(Name);
    pdf::prRequireName(name, FormKind);
    m->prPlayObject(name);
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::State::prPlayObject(std::string_view name)
{
    if (Conforming) prUseObject(pdf::prName(name));
    Out.prPrint("/", pdf::Name{name}, " Do");
}

// Bit 1 alone selects nothing, and with all of 1, 2 and 4 bit 8 has no effect. On purpose: 7 means
// every page whatever is added, and its bits mean nothing else by themselves but 2 and 4.
void clsPDFCreator::State::prPlayAutoObjects(bool atEnd)
{
    enum : std::int32_t
    {
        Even = 2,
        Odd = 4,
        Every = 7,
        NotFirst = 8,
        AtEnd = 16,
    };
    const bool even = PageCount % 2 == 0;
    for (const auto& [name, flags] : AutoObjects) {
        const auto has = [flags = flags](std::int32_t bits) { return (flags & bits) == bits; };
        const bool odd = !even && has(Odd) && !(has(NotFirst) && PageCount == 1);
        const bool thisPage = has(Every) || (even && has(Even)) || odd;
        if (thisPage && has(AtEnd) == atEnd) prPlayObject(name);
    }
}
