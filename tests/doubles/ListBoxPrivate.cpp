#include "variants/list/ListBoxPrivate.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording list box. Its widget is a real one, so that a display can show the list.
struct ListBoxSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    const ListBoxSide* self;
    Displayable* owner;
    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

ListBoxSide::ListBoxSide(List* owner, bool backItem, Panel panel)
    : mImpl(new Impl{this, owner, panel == Panel::FULL ? "ListBoxPrivate" : "ListBoxPrivateWP1"})
{
    doubles::Recorder::instance().note(this, mImpl->name, owner, backItem);
}

ListBoxSide::~ListBoxSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

ListBoxPrivate::ListBoxPrivate(List* owner, bool backItem) : ListBoxSide(owner, backItem, Panel::FULL) {}

ListBoxPrivateWP1::ListBoxPrivateWP1(List* owner, bool backItem) : ListBoxSide(owner, backItem, Panel::SMALL) {}

PegThing* ListBoxSide::getWidget()
{
    return mImpl->widget;
}

void ListBoxSide::releaseOwnership()
{
    mImpl->note("releaseOwnership");
    mImpl->ownership.releaseOwnership();
}

void ListBoxSide::gainOwnership()
{
    mImpl->note("gainOwnership");
    mImpl->ownership.gainOwnership();
}

void ListBoxSide::show()
{
    mImpl->note("show");
}

void ListBoxSide::lostFocus()
{
    mImpl->note("lostFocus");
}

std::string ListBoxSide::serialise()
{
    mImpl->note("serialise");
    return DisplayablePrivate::serialise();
}

std::string ListBoxSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    mImpl->note("serialiseVisible");
    return DisplayablePrivate::serialise(visible);
}

void ListBoxSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
    DisplayablePrivate::addCommandListener(listener);
}

void ListBoxSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
    DisplayablePrivate::removeCommandListener(listener);
}

void ListBoxSide::join(DisplayablePrivate* other)
{
    mImpl->note("join", other);
}

void ListBoxSide::disjoin()
{
    mImpl->note("disjoin");
}

bool ListBoxSide::hasCaption()
{
    mImpl->note("hasCaption");
    return false;
}

void ListBoxSide::setSysWindowSize(int lines)
{
    mImpl->note("setSysWindowSize", lines);
}

void ListBoxSide::setSysWindowText(std::string text, int line)
{
    mImpl->note("setSysWindowText", text, line);
}

bool ListBoxSide::hasSystemWindow()
{
    mImpl->note("hasSystemWindow");
    return false;
}

int ListBoxSide::size()
{
    mImpl->note("size");
    return doubles::Answers::instance().size;
}

void ListBoxSide::append(ListItemPrivateIfc* row)
{
    mImpl->note("append", row);
}

void ListBoxSide::clear()
{
    mImpl->note("clear");
}

int ListBoxSide::getSelectedIndex()
{
    mImpl->note("getSelectedIndex");
    return doubles::Answers::instance().selectedIndex;
}

void ListBoxSide::setSelectedIndex(int index)
{
    mImpl->note("setSelectedIndex", index);
}

void ListBoxSide::setSelected(ListItemPrivateIfc* row)
{
    mImpl->note("setSelected", row);
}

void ListBoxSide::insertAt(ListItemPrivateIfc* row, int index)
{
    mImpl->note("insertAt", row, index);
}

void ListBoxSide::removeAt(int index, ListItemPrivateIfc* row)
{
    mImpl->note("removeAt", index, row);
}

void ListBoxSide::remove(ListItemPrivateIfc* row)
{
    mImpl->note("remove", row);
}

void ListBoxSide::setTicker(TickerPrivateIfc* ticker)
{
    mImpl->note("setTicker", ticker);
}

void ListBoxSide::setTitle(const std::string& title)
{
    mImpl->note("setTitle", title);
}

void ListBoxSide::setTitle(TranslationInfo* title)
{
    mImpl->note("setTitle", title);
}

void ListBoxSide::setSystemWindowSize(int lines)
{
    mImpl->note("setSystemWindowSize", lines);
}

void ListBoxSide::setSystemWindowText(int line, const std::string& text)
{
    mImpl->note("setSystemWindowText", line, text);
}

Displayable* ListBoxSide::getParent() const
{
    mImpl->note("getParent");
    return mImpl->owner;
}

void ListBoxSide::hide()
{
    mImpl->note("hide");
}

void ListBoxSide::showDiallerOnInitialKeyEvent(bool on)
{
    mImpl->note("showDiallerOnInitialKeyEvent", on);
}

void ListBoxSide::setDialler(PopupDialer* dialler)
{
    mImpl->note("setDialler", dialler);
}

void ListBoxSide::dismissDialler()
{
    mImpl->note("dismissDialler");
}

void ListBoxSide::setSelectionHighlight(bool on)
{
    mImpl->note("setSelectionHighlight", on);
}

} // namespace DisplayAPI
