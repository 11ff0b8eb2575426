#include "host/widgets/list/ListBoxImpl.h"

#include "widgets/KestrelListBoxItem.h"

void KestrelListBox::Impl::insert(KestrelListBoxItem* item, int row)
{
    if (current >= 0 && row > current)
        return insertBelowCurrent(item, row);
    markCurrent(false);
    rows.insert(item, row);
    if (row < top)
        ++top;
    if (row <= current || current < 0)
        ++current;
    markCurrent(true);
    update();
}

/// A row that is being destroyed is asked for nothing any more.
void KestrelListBox::Impl::removeAt(int row)
{
    KestrelListBoxItem* const item = rows.erase(row);
    item->mList = nullptr;
    item->setMarked(false);
    if (row < top)
        --top;
    if (row < current || current == rows.size())
        --current;
    markCurrent(true);
    update();
}

void KestrelListBox::Impl::clear()
{
    rows.forEach([](KestrelListBoxItem* item) {
        item->mList = nullptr;
        item->setMarked(false);
    });
    rows.clear();
    current = -1;
    update();
}

void KestrelListBox::Impl::makeCurrent(int row)
{
    markCurrent(false);
    current = row;
    markCurrent(true);
    update();
}

void KestrelListBox::Impl::setExclusive(bool on)
{
    markCurrent(false);
    exclusive = on;
    markCurrent(true);
    refresh();
}

/// In an exclusive list the current row carries the mark, and no other does.
void KestrelListBox::Impl::markCurrent(bool on)
{
    if (KestrelListBoxItem* const item = exclusive ? rows.at(current) : nullptr)
        item->setMarked(on);
}

/// Texts may begin at the other side now.
void KestrelListBox::Impl::languageChanged()
{
    mIsLaidOut = false;
    placeChildren();
    box.Invalidate();
}

void KestrelListBox::Impl::setStrip(PegThing* shown)
{
    inStrip = shown;
    update();
    placeChildren();
    box.Invalidate();
}

void KestrelListBox::Impl::placeChildren()
{
    if (inStrip != nullptr)
        inStrip->Resize(view().parts.strip);
    for (PegThing* child = box.First(); child != nullptr; child = child->NextSibling())
        if (child->Type() == TYPE_TICKER)
            child->Resize(view().parts.ticker);
}

bool KestrelListBox::Impl::key(int key)
{
    KestrelListBoxItem* const item = rows.at(current);
    if (item != nullptr && item->key(key))
        return true;
    switch (key) {
    case PK_UP: return step(-1);
    case PK_DOWN: return step(1);
    case PK_LEFT: return tellLeft();
    case PK_RIGHT: return tellIfRow(PM_RIGHT);
    case PK_OK: return tellIfRow(PM_CLICKED);
    default: return tellIfTyped(key);
    }
}

bool KestrelListBox::Impl::tellIfTyped(int key)
{
    if (!tellsKeypad || !isOfKeypad(key))
        return false;
    tell(PM_KEY, key);
    return true;
}

/// At the ends the key is somebody else's: above a list in a tab stands the tab bar.
bool KestrelListBox::Impl::step(int by)
{
    const int row = current + by;
    if (rows.at(row) == nullptr)
        return false;
    makeCurrent(row);
    tell(PM_CURRENT_CHANGED, row);
    return true;
}

bool KestrelListBox::Impl::tellLeft()
{
    const bool isTold = tellsLeft; // the target may delete the list
    if (isTold)
        tell(PM_LEFT, current);
    return isTold;
}

bool KestrelListBox::Impl::tellIfRow(std::uint16_t type)
{
    const bool isTold = current >= 0;
    if (isTold)
        tell(type, current);
    return isTold;
}

/// The last thing that a handler does: the target may delete the list.
void KestrelListBox::Impl::tell(std::uint16_t type, int data)
{
    if (target == nullptr)
        return;
    PegMessage message;
    message.wType = type;
    message.iData = data;
    message.pTarget = target;
    message.pSource = &box;
    target->Message(message);
}
