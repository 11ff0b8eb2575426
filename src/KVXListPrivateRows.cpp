#include "KVXListPrivate.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/TickerPrivateIfc.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBoxItem.h"

#include <cstdio>

/// What a KVX list does as a list: rows, selection, ticker, and the titles that it does not have.
namespace DisplayAPI {

namespace {

KestrelListBoxItem* itemOf(ListItemPrivateIfc* row)
{
    return row != nullptr ? row->getKestrelListItem() : nullptr;
}

} // namespace

template <typename Change>
void KVXListPrivate::change(Change apply)
{
    if (mWidget == nullptr)
        return;
    apply(*mWidget);
    generateDisplayChangedEvent();
}

void KVXListPrivate::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void KVXListPrivate::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void KVXListPrivate::join(DisplayablePrivate* other)
{
    DisplayablePrivate::join(other);
}

void KVXListPrivate::disjoin()
{
    DisplayablePrivate::disjoin();
}

bool KVXListPrivate::hasCaption()
{
    return mWidget != nullptr && !mWidget->title().empty();
}

void KVXListPrivate::setSysWindowSize(int lines)
{
    if (mWidget != nullptr)
        mWidget->setSystemWindowLines(lines);
}

void KVXListPrivate::setSysWindowText(std::string text, int line)
{
    if (mWidget != nullptr)
        mWidget->setSystemWindowText(ICC::fromUTF8toUNICODE(text), line);
}

bool KVXListPrivate::hasSystemWindow()
{
    return true;
}

int KVXListPrivate::size()
{
    return mWidget != nullptr ? mWidget->numItems() : 0;
}

void KVXListPrivate::append(ListItemPrivateIfc* row)
{
    change([=](KestrelListBox& list) { list.append(itemOf(row)); });
}

void KVXListPrivate::clear()
{
    change([](KestrelListBox& list) { list.clear(); });
}

int KVXListPrivate::getSelectedIndex()
{
    return mWidget != nullptr ? mWidget->currentRow() : -1;
}

void KVXListPrivate::setSelectedIndex(int index)
{
    change([=](KestrelListBox& list) { list.setCurrentRow(index); });
}

void KVXListPrivate::setSelected(ListItemPrivateIfc* row)
{
    change([=](KestrelListBox& list) { list.setCurrentRow(list.rowOf(itemOf(row))); });
}

void KVXListPrivate::insertAt(ListItemPrivateIfc* row, int index)
{
    change([=](KestrelListBox& list) { list.insert(itemOf(row), index); });
}

void KVXListPrivate::removeAt(int, ListItemPrivateIfc* row)
{
    remove(row);
}

void KVXListPrivate::remove(ListItemPrivateIfc* row)
{
    change([=](KestrelListBox& list) { list.remove(itemOf(row)); });
}

void KVXListPrivate::setTicker(TickerPrivateIfc* ticker)
{
    if (mTickers.show(mWidget.get(), ticker != nullptr ? ticker->getWidget() : nullptr))
        generateDisplayChangedEvent();
}

void KVXListPrivate::setTitle(const std::string&)
{
    std::puts("void KVXListPrivate::setTitle( Ostring& newTitle ) is NOT impl");
}

void KVXListPrivate::setTitle(TranslationInfo*)
{
    std::puts("void KVXListPrivate::setTitle( TranslationInfo* newTitle ) is NOT impl WP_LO");
}

void KVXListPrivate::setSystemWindowSize(int lines)
{
    setSysWindowSize(lines);
    generateDisplayChangedEvent();
}

void KVXListPrivate::setSystemWindowText(int line, const std::string& text)
{
    setSysWindowText(text, line);
    generateDisplayChangedEvent();
}

Displayable* KVXListPrivate::getParent() const
{
    return mOwner;
}

void KVXListPrivate::hide()
{
    PegThing* const widget = getWidget();
    if (widget == nullptr || widget->Parent() == nullptr)
        return;
    gainOwnership();
    widget->Parent()->Remove(widget);
}

void KVXListPrivate::setSelectionHighlight(bool on)
{
    change([=](KestrelListBox& list) { list.setSelectionHighlight(on); });
}

void KVXListPrivate::showDiallerOnInitialKeyEvent(bool) {}

void KVXListPrivate::setDialler(PopupDialer*) {}

void KVXListPrivate::dismissDialler() {}

} // namespace DisplayAPI
