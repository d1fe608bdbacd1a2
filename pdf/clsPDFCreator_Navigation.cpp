// Bookmarks (ISO 32000-1, 12.3.3). They count y upward from the bottom of the page; notes and links
// are in _Notes.cpp.

#include "clsPDFCreator_State.h"

#include <algorithm>

void clsPDFCreator::AddBookmark(std::string_view Title, std::int32_t Level, std::int32_t FitMode,
                                float Left, float Top, float Right, float Bottom, float Zoom)
{
    m->Out.prRequireIdle();
    State::prRequireFinite(Left, Top, Right, Bottom, Zoom);
    auto& bookmarks = m->Bookmarks;
    m->prKeepObjects(bookmarks.empty() ? 3 : 1); // the first one with the root and the title
    const std::int32_t deepest = bookmarks.empty() ? 1 : bookmarks.back().Level + 1;
    bookmarks.push_back({std::string(Title), std::clamp(Level, 1, deepest),
                         m->prDestination(FitMode, Left, Top, Right, Bottom, Zoom)});
}

double clsPDFCreator::State::prFromBottom(double y) const
{
    return PageHeight - prInPoints(y);
}

// Nothing while there is no page to lead to, or for an unknown mode.
std::string clsPDFCreator::State::prDestination(std::int32_t fitMode, double left, double top,
                                                double right, double bottom, double zoom) const
{
    if (PageObject == 0) return "";
    std::string text = "[" + std::to_string(PageObject) + " 0 R";
    const auto append = [&text](std::string_view name, std::initializer_list<double> numbers) {
        text.append(name);
        for (const double number : numbers) {
            text.push_back(' ');
            pdf::prAppendNumber(text, number);
        }
        return text + "]";
    };
    const double x = prInPoints(left);
    const double y = prFromBottom(top);
    switch (fitMode) {
    case 0:
        return append(" /FitB", {});
    case 1:
        return append(" /FitV", {x});
    case 2:
        return append(" /FitH", {y});
    case 3:
        return append(" /FitR", {x, prFromBottom(bottom), prInPoints(right), y});
    case 4:
        return append(" /XYZ", {x, y, zoom});
    default:
        return "";
    }
}

// The tree that the levels describe: an entry belongs to the nearest earlier one of a smaller
// level. Entry 0 is the title, the parent of all.
std::vector<clsPDFCreator::State::OutlineItem> clsPDFCreator::State::prOutlineTree() const
{
    // In a classic document the title leads nowhere, on which one reader remarks.
    const bool leads = Conforming && FirstPage != 0;
    const std::string start = leads ? "[" + std::to_string(FirstPage) + " 0 R /Fit]" : "";
    std::vector<OutlineItem> items = {{DocProperties.Title, start, 0, {}}};
    std::vector<std::size_t> open = {0}; // the last entry of each level
    for (const Bookmark& bookmark : Bookmarks) {
        open.resize(static_cast<std::size_t>(bookmark.Level));
        items[open.back()].Children.push_back(items.size());
        items.push_back({bookmark.Title, bookmark.Destination, open.back(), {}});
        open.push_back(items.size() - 1);
    }
    return items;
}

// Returns the number of the outline's root object.
std::int32_t clsPDFCreator::State::prWriteOutlines()
{
    const auto items = prOutlineTree();
    // One number more than entries, in a row; AddBookmark has kept them back.
    const std::int32_t root = Out.prReserve(1 + static_cast<std::int32_t>(items.size()));
    const auto object = [root](std::size_t item) {
        return root + 1 + static_cast<std::int32_t>(item);
    };
    Out.prInitObj(root);
    Out.prPrint(Conforming ? "<< /Type /Outlines" : "<<", " /Count ", prVisibleItems(items),
                " /First ", object(0), " 0 R /Last ", object(0), " 0 R >>");
    Out.prEndObj();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const OutlineItem& item = items[i];
        Out.prInitObj(object(i));
        Out.prPrint("<< /Title ", prString(item.Title));
        Out.prPrint("/Parent ", i == 0 ? root : object(item.Parent), " 0 R");
        if (!item.Children.empty()) {
            Out.prPrint("/First ", object(item.Children.front()), " 0 R");
            Out.prPrint("/Last ", object(item.Children.back()), " 0 R");
        }
        if (i != 0) prWriteSiblings(items[item.Parent].Children, i, root + 1);
        // The title stands open and shows its children, which stand closed.
        const auto children = static_cast<std::int32_t>(item.Children.size());
        if (i == 0) Out.prPrint("/Count ", children);
        else if (Conforming && children != 0) Out.prPrint("/Count ", -children);
        if (!item.Destination.empty()) Out.prPrint("/Dest ", item.Destination);
        Out.prWriteRaw(">>");
        Out.prEndObj();
    }
    return root;
}

// The title and its children; a classic document counts the title alone, which readers forgive.
std::int32_t clsPDFCreator::State::prVisibleItems(const std::vector<OutlineItem>& items) const
{
    return Conforming ? 1 + static_cast<std::int32_t>(items.front().Children.size()) : 1;
}

void clsPDFCreator::State::prWriteSiblings(const std::vector<std::size_t>& children,
                                           std::size_t item, std::int32_t firstObject)
{
    const auto place = std::lower_bound(children.begin(), children.end(), item);
    const auto object = [firstObject](std::size_t other) {
        return firstObject + static_cast<std::int32_t>(other);
    };
    if (place != children.begin()) Out.prPrint("/Prev ", object(*std::prev(place)), " 0 R");
    const auto next = std::next(place);
    if (next != children.end()) Out.prPrint("/Next ", object(*next), " 0 R");
}
