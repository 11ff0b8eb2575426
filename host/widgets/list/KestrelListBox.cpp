#include "widgets/KestrelListBox.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/list/ListBoxImpl.h"
#include "widgets/KestrelListBoxItem.h"

#include <algorithm>
#include <utility>

using namespace host;

KestrelListBox::KestrelListBox(std::uint8_t type, const Layout& layout) : mImpl(std::make_unique<Impl>(*this, layout))
{
    Type(type);
    PegThing::Resize(layout.panel);
}

KestrelListBox::~KestrelListBox()
{
    clear();
}

int KestrelListBox::Message(const PegMessage& message)
{
    if (message.wType == PM_APPLICATION_CHANGED)
        mImpl->languageChanged();
    if (message.wType == PM_KEY && mImpl->key(message.iData))
        return 0;
    return PegThing::Message(message);
}

void KestrelListBox::Resize(const PegRect& area)
{
    PegThing::Resize(area);
    mImpl->scrollToCurrent();
    mImpl->placeTicker();
}

void KestrelListBox::setMessageTarget(PegThing* target)
{
    mImpl->target = target;
}

int KestrelListBox::numItems() const
{
    return mImpl->rows.size();
}

KestrelListBoxItem* KestrelListBox::itemAt(int row) const
{
    return mImpl->rows.at(row);
}

int KestrelListBox::rowOf(const KestrelListBoxItem* item) const
{
    return item != nullptr && item->mList == this ? mImpl->rows.find(item) : -1;
}

void KestrelListBox::append(KestrelListBoxItem* item)
{
    insert(item, numItems());
}

void KestrelListBox::insert(KestrelListBoxItem* item, int row)
{
    if (item == nullptr)
        return;
    if (item->mList != nullptr)
        item->mList->remove(item);
    item->mList = this;
    mImpl->insert(item, std::clamp(row, 0, numItems()));
}

void KestrelListBox::remove(const KestrelListBoxItem* item)
{
    const int row = rowOf(item);
    if (row < 0)
        return;
    itemAt(row)->mList = nullptr;
    mImpl->removeAt(row);
}

void KestrelListBox::clear()
{
    for (int row = 0; row < numItems(); ++row) {
        itemAt(row)->mList = nullptr;
        itemAt(row)->setMarked(false);
    }
    mImpl->rows.clear();
    mImpl->current = -1;
    mImpl->top = 0;
    Invalidate();
}

void KestrelListBox::itemChanged(const KestrelListBoxItem* item)
{
    mImpl->repaintItem(item);
}

int KestrelListBox::currentRow() const
{
    return mImpl->current;
}

void KestrelListBox::setCurrentRow(int row)
{
    if (row >= 0 && row < numItems())
        mImpl->makeCurrent(row);
}

int KestrelListBox::topRow() const
{
    return mImpl->top;
}

PegRect KestrelListBox::rowArea(int row) const
{
    const ListGeometry parts = mImpl->geometry();
    const int slot = row - mImpl->top;
    const bool visible = row >= 0 && row < numItems() && slot >= 0 && slot < parts.visibleRows;
    return visible ? parts.row(slot) : PegRect{0, 0, -1, -1};
}

void KestrelListBox::setTitle(PegString title)
{
    if (mImpl->title == title)
        return;
    mImpl->title = std::move(title);
    mImpl->scrollToCurrent();
    Invalidate();
}

const PegString& KestrelListBox::title() const
{
    return mImpl->title;
}

void KestrelListBox::setSelectionHighlight(bool on)
{
    mImpl->highlight = on;
    mImpl->repaintRow(mImpl->current);
}

void KestrelListBox::setBackArrow(bool on)
{
    mImpl->back = on;
    mImpl->scrollToCurrent();
    Invalidate();
}

void KestrelListBox::setTickerShown(bool on)
{
    if (mImpl->ticker != on)
        Invalidate();
    mImpl->ticker = on;
    mImpl->scrollToCurrent();
    mImpl->placeTicker();
}

PegRect KestrelListBox::tickerArea() const
{
    return mImpl->geometry().ticker;
}

void KestrelListBox::setExclusive(bool on)
{
    mImpl->exclusive = on;
    mImpl->moveMark(nullptr);
    Invalidate();
}
