// Pages: their objects, labels and annotations, and the point where drawing stands.
//
// A page takes four numbers in a row: itself, its content, the content's length, the array of its
// annotations, which follow it. While it is open nothing else may take a number. Of a conforming
// document it takes the first three, and what it uses takes others meanwhile.

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
    m->PageTurned = Orientation == 1;
    if (m->Conforming) m->PageObject = m->prReserve(3); // with its content and its length
    else m->prWritePage();
    const std::int32_t page = m->PageObject;
    if (m->FirstPage == 0) m->FirstPage = page;
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
    m->KeptForDrawing = 0;
    if (m->Conforming) return m->prWriteConformingPage();
    m->Out.prWriteStreamLength();
    m->prWriteAnnotations(m->Out.prCounter());
} catch (const std::bad_alloc&) {
    m->Out.prGiveUp();
}

void clsPDFCreator::State::prWritePage()
{
    KeptForDrawing = 2; // its content's length, the array of its annotations
    PageObject = Out.prInitObj(0);
    Out.prPrint("<< /Type /Page /Parent 4 0 R /Contents ", PageObject + 1, " 0 R\r",
                PageTurned ? "/Rotate 90\r" : "", "/Annots ", PageObject + 3, " 0 R >>");
    Out.prEndObj();
}

// The page after its content: only now is it known what it uses.
void clsPDFCreator::State::prWriteConformingPage()
{
    Out.prWriteStreamLength(PageObject + 2);
    const std::string annotations = prWriteConformingAnnotations();
    Out.prInitObj(PageObject);
    Out.prPrint("<< /Type /Page /Parent ", +ConformingPageTree, " 0 R",
                PageTurned ? " /Rotate 90" : "", " /Contents ", PageObject + 1, " 0 R /Resources ",
                prResources(), annotations, " >>");
    Out.prEndObj();
    prWriteGradients();
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
        label.append(" /P ").append(prString(prefix));
    }
    const auto first = static_cast<std::uint16_t>(firstValue);
    if (first < fromOne) label.append(" /St ").append(std::to_string(first));
    if (label.empty()) return;
    // The first range has to be that of the first page (ISO 32000-1, 12.4.2).
    if (Conforming && PageLabels.empty() && PageCount > 1) PageLabels = "0 << /S /D >> ";
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

// Returns the entry of the page that names them; nothing where there are none.
std::string clsPDFCreator::State::prWriteConformingAnnotations()
{
    prWriteAppearances();
    if (Annotations.empty()) return "";
    std::string entry = " /Annots [";
    for (const auto& annotation : Annotations) {
        entry.append(std::to_string(Out.prInitObj(0))).append(" 0 R ");
        Out.prWriteRaw(annotation);
        Out.prEndObj();
    }
    entry.back() = ']';
    return entry;
}
