#include "variants/list/ListBoxPrivate.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxCore.h"
#include "DisplayAPI/ListBoxText.h"
#include "DisplayAPI/TickerPlace.h"
#include "DisplayAPI/TickerPrivateIfc.h"
#include "host/variants/list/PanelBox.h"
#include "host/variants/popup/InitialKey.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

using Back = ListBoxCore::Back;

constexpr ListBoxCore::Commands COMMANDS{&List::SELECT_COMMAND, &List::RIGHT_COMMAND, &List::BACK_COMMAND};

Back wayBack(bool wanted, Panel panel)
{
    if (!wanted)
        return Back::NONE;
    return panel == Panel::FULL ? Back::KEY : Back::KEY_AND_ROW;
}

} // namespace

struct ListBoxSide::Impl {
    /// The box of the full panel draws the status lines itself; null for the other.
    KestrelListBoxWithTitle* statusBox() const { return dynamic_cast<KestrelListBoxWithTitle*>(core.box()); }

    ListBoxCore core;
    TickerPlace tickers = {};
    PopupDialer* dialler = nullptr; ///< not owned
};

ListBoxSide::ListBoxSide(List* owner, bool backItem, Panel panel)
    : mImpl(new Impl{
          {*this, owner, makeBox(panel), wayBack(backItem, panel), COMMANDS, [owner](const std::string& locale) {
               if (owner != nullptr)
                   owner->localeChanged(locale);
           }}})
{
    mImpl->core.setTyped([this](int key) { openWithInitialKey(mImpl->dialler, key, *this); });
}

ListBoxSide::~ListBoxSide() = default;

ListBoxPrivate::ListBoxPrivate(List* owner, bool backItem) : ListBoxSide(owner, backItem, Panel::FULL) {}

ListBoxPrivateWP1::ListBoxPrivateWP1(List* owner, bool backItem) : ListBoxSide(owner, backItem, Panel::SMALL) {}

PegThing* ListBoxSide::getWidget()
{
    return mImpl->core.box();
}

void ListBoxSide::releaseOwnership()
{
    mImpl->core.followLanguage();
    mImpl->core.ownership().releaseOwnership();
}

void ListBoxSide::gainOwnership()
{
    mImpl->core.ownership().gainOwnership();
}

/// Also when what lay above has gone: an observer learns of it here.
void ListBoxSide::show()
{
    generateDisplayChangedEvent();
}

void ListBoxSide::lostFocus() {}

std::string ListBoxSide::serialise()
{
    const KestrelListBox* const box = mImpl->core.box();
    return box != nullptr ? listAsText(*box) : std::string();
}

std::string ListBoxSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    const KestrelListBox* const box = mImpl->core.box();
    return box != nullptr ? listAsText(*box, visible) : std::string();
}

void ListBoxSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void ListBoxSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void ListBoxSide::join(DisplayablePrivate* other)
{
    DisplayablePrivate::join(other);
}

void ListBoxSide::disjoin()
{
    DisplayablePrivate::disjoin();
}

bool ListBoxSide::hasCaption()
{
    return mImpl->core.hasTitle();
}

void ListBoxSide::setSysWindowSize(int lines)
{
    if (KestrelListBoxWithTitle* const box = mImpl->statusBox())
        box->setSystemWindowLines(lines);
}

void ListBoxSide::setSysWindowText(std::string text, int line)
{
    if (KestrelListBoxWithTitle* const box = mImpl->statusBox())
        box->setSystemWindowText(ICC::fromUTF8toUNICODE(text), line);
}

/// Two lines have no room for status lines above the title: there the system window pops up above the list, and setting
/// the list's own lines has no effect.
bool ListBoxSide::hasSystemWindow()
{
    return mImpl->statusBox() != nullptr;
}

int ListBoxSide::size()
{
    return mImpl->core.size();
}

void ListBoxSide::append(ListItemPrivateIfc* row)
{
    insertAt(row, size());
}

void ListBoxSide::clear()
{
    mImpl->core.clear();
}

int ListBoxSide::getSelectedIndex()
{
    return mImpl->core.selectedIndex();
}

void ListBoxSide::setSelectedIndex(int index)
{
    mImpl->core.select(index);
}

void ListBoxSide::setSelected(ListItemPrivateIfc* row)
{
    mImpl->core.select(row);
}

void ListBoxSide::insertAt(ListItemPrivateIfc* row, int index)
{
    mImpl->core.insert(row, index);
}

void ListBoxSide::removeAt(int, ListItemPrivateIfc* row)
{
    remove(row);
}

void ListBoxSide::remove(ListItemPrivateIfc* row)
{
    mImpl->core.remove(row);
}

void ListBoxSide::setTicker(TickerPrivateIfc* ticker)
{
    if (mImpl->tickers.show(mImpl->core.box(), ticker != nullptr ? ticker->getWidget() : nullptr))
        mImpl->core.changed();
}

void ListBoxSide::setTitle(const std::string& title)
{
    mImpl->core.setTitle(TranslatedText(title));
}

void ListBoxSide::setTitle(TranslationInfo* title)
{
    mImpl->core.setTitle(TranslatedText(title));
}

void ListBoxSide::setSystemWindowSize(int lines)
{
    setSysWindowSize(lines);
    mImpl->core.changed();
}

void ListBoxSide::setSystemWindowText(int line, const std::string& text)
{
    setSysWindowText(text, line);
    mImpl->core.changed();
}

Displayable* ListBoxSide::getParent() const
{
    return mImpl->core.owner();
}

void ListBoxSide::hide()
{
    PegThing* const box = getWidget();
    if (box == nullptr || box->Parent() == nullptr)
        return;
    gainOwnership();
    box->Parent()->Remove(box);
}

void ListBoxSide::showDiallerOnInitialKeyEvent(bool on)
{
    if (KestrelListBox* const box = mImpl->core.box())
        box->setTellsKeypad(on);
}

void ListBoxSide::setDialler(PopupDialer* dialler)
{
    mImpl->dialler = dialler;
}

void ListBoxSide::dismissDialler()
{
    if (mImpl->dialler != nullptr)
        mImpl->dialler->dismiss();
}

void ListBoxSide::setSelectionHighlight(bool on)
{
    mImpl->core.change([=](KestrelListBox& box) { box.setSelectionHighlight(on); });
}

} // namespace DisplayAPI
