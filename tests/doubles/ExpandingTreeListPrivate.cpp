#include "variants/tree/ExpandingTreeListPrivate.h"

#include "DisplayAPI/ExpandingTreeList.h"
#include "doubles/Answers.h"
#include "doubles/ListScreen.h"

namespace DisplayAPI {

/// The recording tree list.
struct ExpandingTreeListSide::Impl {
    Screen screen;
};

ExpandingTreeListSide::ExpandingTreeListSide(ExpandingTreeList* owner, bool backItem, Panel panel)
    : mImpl(new Impl{{*this, "ExpandingTreeListPrivate", panel, owner, backItem}})
{
}

ExpandingTreeListSide::~ExpandingTreeListSide() = default;

ExpandingTreeListPrivate::ExpandingTreeListPrivate(ExpandingTreeList* owner)
    : ExpandingTreeListSide(owner, false, Panel::FULL)
{
}

ExpandingTreeListPrivateWP1::ExpandingTreeListPrivateWP1(ExpandingTreeList* owner, bool backItem)
    : ExpandingTreeListSide(owner, backItem, Panel::SMALL)
{
}

ListScreenSide::Screen& ExpandingTreeListSide::screen()
{
    return mImpl->screen;
}

void ExpandingTreeListSide::addCommandListener(CommandListener* listener)
{
    screen().note("addCommandListener", listener);
}

void ExpandingTreeListSide::removeCommandListener(CommandListener* listener)
{
    screen().note("removeCommandListener", listener);
}

void ExpandingTreeListSide::append(ListItemPrivateIfc* row, int level)
{
    screen().note("append", row, level);
}

void ExpandingTreeListSide::clear()
{
    screen().note("clear");
}

int ExpandingTreeListSide::getSelectedIndex()
{
    screen().note("getSelectedIndex");
    return doubles::Answers::instance().selectedIndex;
}

void ExpandingTreeListSide::setTitle(const std::string& title)
{
    screen().note("setTitle", title);
}

void ExpandingTreeListSide::setTitle(TranslationInfo* title)
{
    screen().note("setTitle", title);
}

void ExpandingTreeListSide::align()
{
    screen().note("align");
}

void ExpandingTreeListSide::unalign()
{
    screen().note("unalign");
}

void ExpandingTreeListSide::setReadonly(int index, bool on)
{
    screen().note("setReadonly", index, on);
}

void ExpandingTreeListSide::setRightArrowEqualsOK(bool on)
{
    screen().note("setRightArrowEqualsOK", on);
}

} // namespace DisplayAPI
