// Pages: their objects, labels and annotations, and the point where drawing stands.
//
// A page takes four numbers in a row: itself, its content, the content's length, the array of its
// annotations, which follow it. While it is open nothing else may take a number.

#include "Windows1252.h"
#include "clsPDFCreator_State.h"

#include <new>

std::int16_t clsPDFCreator::BeginPage(std::int32_t Orientation, std::int32_t PageLabel,
                                      std::string_view LabelPrefix, std::int32_t FirstValue)
try {
    auto& out = m->Out;
    m->prRequire();
    pdf::prRequireRoom(m->PageCount, "pagine");
    m->prRequireObjects(m->PageCount == 0 ? 0 : State::ObjectsOfPage); // the first one is kept back
    ++m->PageCount;
    m->Annotations.clear();
    m->KeptForDrawing = 2; // its content's length, the array of its annotations

    const std::int32_t page = out.prInitObj(0);
    m->PageObject = page;
    out.prPrint("<< /Type /Page /Parent 4 0 R /Contents ", page + 1, " 0 R\r",
                Orientation == 1 ? "/Rotate 90\r" : "", "/Annots ", page + 3, " 0 R >>");
    out.prEndObj();
    m->Kids.append(std::to_string(page)).append(" 0 R ");
    m->prAppendPageLabel(PageLabel, LabelPrefix, FirstValue);

    out.prInitObj(page + 1);
    out.prPrint("<< ", out.prContentFilter(), "/Length ", page + 2, " 0 R >>");
    out.prBeginContent();
    out.prPrint("1 0 0 -1 0 ", m->PageHeight, " cm "); // from here y grows downward
    m->prSetFill("Black");
    m->prSetLine("Black");
    m->prBeginDrawing();
    m->prPlayAutoObjects(false);
    m->CharSpacing = 0;
    m->WordSpacing = 0;
    m->HorizontalScaling = 100;
    m->Current = {};
    return m->PageCount;
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::EndPage()
try {
    m->prRequire();
    m->prPlayAutoObjects(true);
    m->Out.prEndStream();
    m->Out.prWriteStreamLength();
    m->prWriteAnnotations(m->Out.prCounter());
    m->KeptForDrawing = 0;
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

float clsPDFCreator::GetX() const
{
    return pdf::prFloat(m->prInUnits(m->Current.X));
}

float clsPDFCreator::GetY() const
{
    return pdf::prFloat(m->prInUnits(m->Current.Y));
}

// With the defaults each page starts a range of its own. On purpose: readers then show 1 for each,
// and only who asks for labels gets others.
void clsPDFCreator::State::prAppendPageLabel(std::int32_t style, std::string_view prefix,
                                             std::int32_t firstValue)
{
    constexpr std::string_view styles[] = {" /S /D", " /S /R", " /S /r", " /S /A", " /S /a"};
    constexpr std::uint16_t fromOne = 65535;
    std::string label;
    if (style >= 0 && style < static_cast<std::int32_t>(std::size(styles))) label = styles[style];
    if (!prefix.empty()) {
        label.append(" /P (").append(pdf::prPDFString(InWindows1252(prefix))).append(")");
    }
    const auto first = static_cast<std::uint16_t>(firstValue);
    if (first < fromOne) label.append(" /St ").append(std::to_string(first));
    if (label.empty()) return;
    PageLabels.append(std::to_string(PageCount - 1)).append(" <<").append(label).append(" >> ");
}

// lengthObject: the number of the content's length; the array of the annotations comes after it,
// and after that they themselves, which are written first.
void clsPDFCreator::State::prWriteAnnotations(std::int32_t lengthObject)
{
    std::string references;
    std::int32_t number = lengthObject + 1;
    for (const auto& annotation : Annotations) {
        references.append(std::to_string(++number)).append(" 0 R ");
        Out.prInitObj(number);
        Out.prWriteRaw(annotation);
        Out.prEndObj();
    }
    Out.prInitObj(lengthObject + 1);
    Out.prPrint("[ ", references, " ]");
    Out.prEndObj();
}
