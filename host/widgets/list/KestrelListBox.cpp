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
    const bool isKey = message.wType == PM_KEY || message.wType == PM_KEYRELEASE;
    if (isKey && mImpl->keyTaker && mImpl->keyTaker(message))
        return 0;
    if (message.wType == PM_KEY && mImpl->key(message.iData))
        return 0;
    return PegThing::Message(message);
}

void KestrelListBox::Resize(const PegRect& area)
{
    PegThing::Resize(area);
    mImpl->update();
    mImpl->placeChildren();
}

void KestrelListBox::setMessageTarget(PegThing* target)
{
    mImpl->target = target;
}

void KestrelListBox::setTellsKeypad(bool on)
{
    mImpl->tellsKeypad = on;
}

void KestrelListBox::setTellsLeft(bool on)
{
    mImpl->tellsLeft = on;
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
    if (row >= 0)
        mImpl->removeAt(row);
}

void KestrelListBox::clear()
{
    mImpl->clear();
}

/// A list that changes all its rows asks for each: those out of view cost next to nothing.
void KestrelListBox::itemChanged(const KestrelListBoxItem* item)
{
    if (!StatusIs(PSF_VISIBLE) || mImpl->view().find(item) == nullptr)
        return;
    mImpl->refresh();
    mImpl->repaintItem(item);
}

void KestrelListBox::itemChanged(const KestrelListBoxItem* item, const Part& part)
{
    const RowInView* const row = StatusIs(PSF_VISIBLE) ? mImpl->view().find(item) : nullptr;
    if (row != nullptr)
        Invalidate(intersection(row->area, part(mImpl->layout, mImpl->textOf(*row))));
}

void KestrelListBox::tellItemChanged(const KestrelListBoxItem* item)
{
    if (StatusIs(PSF_VISIBLE) && mImpl->view().find(item) != nullptr)
        mImpl->tell(PM_ROW_CHANGED, rowOf(item));
}

void KestrelListBox::tellRowsChanged()
{
    if (StatusIs(PSF_VISIBLE))
        mImpl->tell(PM_ROW_CHANGED, -1);
}

void KestrelListBox::itemHeightChanged(const KestrelListBoxItem* item)
{
    if (item == nullptr || item->mList != this)
        return;
    mImpl->update();
    itemChanged(item);
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
    const auto& inView = mImpl->view().rows;
    const auto place = static_cast<std::size_t>(row - mImpl->top);
    return row >= mImpl->top && place < inView.size() ? inView[place].area : PegRect{0, 0, -1, -1};
}

void KestrelListBox::setTitle(PegString title)
{
    if (mImpl->title == title)
        return;
    mImpl->title = std::move(title);
    mImpl->update();
    Invalidate();
}

void KestrelListBox::setTitleEnd(PegString text)
{
    if (mImpl->titleEnd == text)
        return;
    mImpl->titleEnd = std::move(text);
    mImpl->update();
    Invalidate(mImpl->view().parts.title);
}

PegRect KestrelListBox::titleArea() const
{
    return isTitleCovered() ? PegRect{0, 0, -1, -1} : mImpl->view().parts.title;
}

bool KestrelListBox::isTitleCovered() const
{
    return mImpl->inStrip != nullptr && mImpl->layout.tickerInTitle;
}

const PegString& KestrelListBox::title() const
{
    return mImpl->title;
}

void KestrelListBox::setTitlePicture(const Picture* picture)
{
    mImpl->titlePicture = picture;
    mImpl->update();
    Invalidate();
}

void KestrelListBox::setSelectionHighlight(bool on)
{
    mImpl->highlight = on;
    mImpl->refresh();
}

void KestrelListBox::setActive(bool on)
{
    mImpl->active = on;
    mImpl->refresh();
}

void KestrelListBox::setBackArrow(bool on)
{
    mImpl->back = on;
    mImpl->update();
    Invalidate();
}

void KestrelListBox::setTickerShown(bool on)
{
    if (mImpl->ticker != on)
        Invalidate();
    mImpl->ticker = on;
    mImpl->update();
    mImpl->placeChildren();
}

void KestrelListBox::setStrip(PegThing* strip)
{
    Add(strip);
    mImpl->setStrip(strip);
}

void KestrelListBox::ChildRemoved(PegThing* child)
{
    if (child == mImpl->inStrip)
        mImpl->setStrip(nullptr);
}

void KestrelListBox::setKeyTaker(KeyTaker taker)
{
    mImpl->keyTaker = std::move(taker);
}

PegRect KestrelListBox::tickerArea() const
{
    return mImpl->view().parts.ticker;
}

void KestrelListBox::setExclusive(bool on)
{
    mImpl->setExclusive(on);
}
