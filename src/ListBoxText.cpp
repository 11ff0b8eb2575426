#include "DisplayAPI/ListBoxText.h"

#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

namespace DisplayAPI {

namespace {

using DisplayAPIUtils::Rect;

std::string captionOf(const KestrelListBox& list)
{
    const bool isShown = !list.title().empty() && !list.isTitleCovered();
    return !isShown ? std::string() : screen::caption(ICC::fromUNICODEtoUTF8(list.title()));
}

std::string subItem(const KestrelListBoxItem& item)
{
    const KestrelListBoxItem::Description described = item.describe();
    std::string lines;
    for (int number = 0; const PegString& text : described.texts)
        lines += screen::textLine(number++, ICC::fromUNICODEtoUTF8(text));
    return screen::subItem(described.name, lines);
}

std::string systemWindowOf(const KestrelListBox& list)
{
    std::string lines;
    for (int line = 0; line < list.systemWindowLines(); ++line)
        lines += screen::textLine(line, list.systemWindowText(line));
    return screen::subItem("SystemWindow", lines);
}

bool isInView(const PegRect& area)
{
    return area.bottom >= area.top;
}

} // namespace

std::string listAsText(const KestrelListBox& list)
{
    return listAsText(list, {toRect(list.Area())});
}

std::string listAsText(const KestrelListBox& list, const std::vector<Rect>& visible)
{
    return isVisible(list.Area(), visible) ? screen::object("KestrelListBox", listContents(list, visible))
                                           : std::string();
}

std::string listContents(const KestrelListBox& list, const std::vector<Rect>& visible)
{
    if (!isVisible(list.Area(), visible))
        return {};
    std::string contents = captionOf(list);
    if (isInView(list.systemWindowArea()) && isVisible(list.systemWindowArea(), visible))
        contents += systemWindowOf(list);
    for (int row = list.topRow(); isInView(list.rowArea(row)); ++row) {
        if (isVisible(list.rowArea(row), visible))
            contents += subItem(*list.itemAt(row));
    }
    return contents;
}

} // namespace DisplayAPI
