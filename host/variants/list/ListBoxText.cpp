#include "host/variants/list/ListBoxText.h"

#include "utilities/ICC.h"
#include "utilities/Rect.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

using DisplayAPIUtils::Rect;

Rect toRect(const PegRect& area)
{
    return {area.left, area.top, area.right - area.left + 1, area.bottom - area.top + 1};
}

bool isVisible(const PegRect& area, const std::vector<Rect>& visible)
{
    return std::any_of(visible.begin(), visible.end(), [&](const Rect& part) { return part.Overlap(toRect(area)); });
}

/// What ends a line of the text may not stand within one.
std::string onOneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return text;
}

std::string captionOf(const KestrelListBox& list)
{
    return list.title().empty() ? std::string() : "caption:" + onOneLine(ICC::fromUNICODEtoUTF8(list.title())) + "\n";
}

std::string subItem(const KestrelListBoxItem& item)
{
    return "subitem:\nname:KestrelListBoxItem\nstring0:" + onOneLine(ICC::fromUNICODEtoUTF8(item.DataGet())) +
           "\nendsubitem:\n";
}

std::string systemWindowOf(const KestrelListBox& list)
{
    std::string text = "subitem:\nname:SystemWindow\n";
    for (int line = 0; line < list.systemWindowLines(); ++line)
        text += "string" + std::to_string(line) + ":" + onOneLine(list.systemWindowText(line)) + "\n";
    return text + "endsubitem:\n";
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
    if (!isVisible(list.Area(), visible))
        return {};
    std::string text = "object:\nname:KestrelListBox\n" + captionOf(list);
    if (isInView(list.systemWindowArea()) && isVisible(list.systemWindowArea(), visible))
        text += systemWindowOf(list);
    for (int row = list.topRow(); isInView(list.rowArea(row)); ++row) {
        if (isVisible(list.rowArea(row), visible))
            text += subItem(*list.itemAt(row));
    }
    return text + "end:\n";
}

} // namespace DisplayAPI
