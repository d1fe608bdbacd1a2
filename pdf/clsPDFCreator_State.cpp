// What all concerns of the writer share: room for objects, numbers, the start and end of a drawing.
// It calls none of the other clsPDFCreator_*.cpp, so that they may all call it; _Core.cpp shows how
// a document goes from one to the next.

#include "clsPDFCreator_State.h"
#include "TextString.h"
#include "Windows1252.h"

void clsPDFCreator::State::prRequireObjects(std::int32_t more) const
{
    const bool open = Out.prIsOpen();
    const std::int32_t used = open ? Out.prCounter() : FixedObjects;
    const std::int32_t largest = open ? Out.prLargestNumber() : prFormat().Largest();
    const std::int32_t firstPage = PageCount == 0 ? ObjectsOfPage : 0;
    pdf::prRequireRoom(used + KeptForEnd + KeptForDrawing + firstPage + more - 1, "oggetti",
                       largest);
}

void clsPDFCreator::State::prKeepObjects(std::int32_t more)
{
    prRequireObjects(more);
    KeptForEnd += more;
}

void clsPDFCreator::State::prBeginDrawing()
{
    LineWidth = 1;
    ++DrawingNumber;
    Used = {};
    FillChosen = false;
    OuterTables.clear(); // a table left open on the page before ends none of this one's
}

void clsPDFCreator::State::prEndDrawing()
{
    KeptForDrawing = 0;
    if (Conforming) return prEndNamed();
    Out.prEndStream();
    Out.prWriteStreamLength();
}

std::string clsPDFCreator::State::prString(std::string_view text) const
{
    if (Conforming) return pdf::prTextString(text);
    return "(" + pdf::prPDFString(InWindows1252(text)) + ")";
}
