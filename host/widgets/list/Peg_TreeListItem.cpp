#include "widgets/Peg_TreeListItem.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/list/ListLayout.h"
#include "host/widgets/telephony/LinesRow.h"

#include <algorithm>
#include <utility>

using namespace host;

namespace {

constexpr int STEP = 8;        ///< in pixels, by which a level is indented
constexpr int LEAST_TEXT = 96; ///< what the deepest level leaves

int indentOf(int level, int width)
{
    return std::clamp(level * STEP, 0, std::max(0, width - LEAST_TEXT));
}

} // namespace

Peg_TreeListItem::Peg_TreeListItem(PegString text) : KestrelListBoxItem(std::move(text)) {}

Peg_TreeListItem::~Peg_TreeListItem()
{
    setOpen(false);
    for (Peg_TreeListItem* child : mChildren)
        child->mParent = nullptr;
    if (mParent != nullptr)
        mParent->remove(*this);
}

std::weak_ptr<void> Peg_TreeListItem::life()
{
    if (mLife == nullptr)
        mLife = std::make_shared<char>();
    return mLife;
}

void Peg_TreeListItem::append(Peg_TreeListItem& child)
{
    KestrelListBoxItem* const before = mChildren.empty() ? this : mChildren.back()->lastShown();
    child.mParent = this;
    mChildren.push_back(&child);
    if (KestrelListBox* const box = list(); box != nullptr && mOpen) {
        box->insert(&child, before->row() + 1);
        if (child.mOpen)
            child.showChildren();
    }
    updateWayBack();
    if (mChildren.size() == 1)
        changed(); // now there is a mark
}

/// From the back, where those are that go first when a tree is deleted.
void Peg_TreeListItem::remove(const Peg_TreeListItem& child)
{
    const auto found = std::find(mChildren.rbegin(), mChildren.rend(), &child);
    if (found == mChildren.rend())
        return;
    mChildren.erase(std::next(found).base());
    updateWayBack();
    if (mChildren.empty())
        changed();
}

int Peg_TreeListItem::level() const
{
    int level = 0;
    for (const Peg_TreeListItem* above = mParent; above != nullptr; above = above->mParent)
        ++level;
    return level;
}

/// In the order of the list: a child, what is shown below that, the next child, at the end the way back.
template <typename Visit>
void Peg_TreeListItem::forEachShownBelow(Visit visit)
{
    std::vector<std::pair<Peg_TreeListItem*, std::size_t>> path{{this, 0}};
    while (!path.empty()) {
        Peg_TreeListItem& item = *path.back().first;
        std::size_t& next = path.back().second;
        if (next < item.mChildren.size()) {
            Peg_TreeListItem* const child = item.mChildren[next++];
            visit(*child);
            if (child->mOpen)
                path.emplace_back(child, 0);
        } else {
            if (item.mWayBack != nullptr)
                visit(*item.mWayBack);
            path.pop_back();
        }
    }
}

/// Shown or not, a parent before its children.
template <typename Visit>
void Peg_TreeListItem::forEachBelow(Visit visit)
{
    Children rest = mChildren;
    while (!rest.empty()) {
        Peg_TreeListItem* const item = rest.back();
        rest.pop_back();
        visit(*item);
        rest.insert(rest.end(), item->mChildren.begin(), item->mChildren.end());
    }
}

/// The last row of what it shows, which may be itself.
KestrelListBoxItem* Peg_TreeListItem::lastShown()
{
    Peg_TreeListItem* last = this;
    while (last->mWayBack == nullptr && last->showsChildren())
        last = last->mChildren.back();
    return last->mWayBack != nullptr ? last->mWayBack.get() : last;
}

void Peg_TreeListItem::setOpen(bool on)
{
    if (mOpen == on)
        return;
    if (!on)
        hideChildren();
    mOpen = on;
    updateWayBack();
    if (on)
        showChildren();
    changed();
}

void Peg_TreeListItem::setAllOpen(bool on)
{
    setOpen(on);
    forEachBelow([on](Peg_TreeListItem& item) { item.setOpen(on); });
}

void Peg_TreeListItem::showChildren()
{
    KestrelListBox* const box = list();
    if (box == nullptr)
        return;
    int row = this->row();
    forEachShownBelow([&](Peg_TreeListItem& item) { box->insert(&item, ++row); });
}

void Peg_TreeListItem::hideChildren()
{
    KestrelListBox* const box = list();
    if (box == nullptr)
        return;
    const int first = row() + 1;
    const int last = lastShown()->row();
    if (box->currentRow() >= first && box->currentRow() <= last)
        box->setCurrentRow(first - 1);
    for (int row = last; row >= first; --row)
        box->remove(box->itemAt(row));
}

/// It is there while there are children to come back from, and belongs behind them.
void Peg_TreeListItem::updateWayBack()
{
    if (!mHasWayBack || !showsChildren()) {
        mWayBack.reset();
        return;
    }
    if (mWayBack != nullptr)
        return;
    KestrelListBoxItem* const before = lastShown();
    mWayBack = std::make_unique<Peg_TreeListItem>(wayBackText());
    mWayBack->mParent = this;
    mWayBack->mAligned = mAligned;
    KestrelListBox* const box = list();
    if (box != nullptr && before->row() > row())
        box->insert(mWayBack.get(), before->row() + 1);
}

void Peg_TreeListItem::setWayBack(bool on)
{
    mHasWayBack = on;
    updateWayBack();
}

bool Peg_TreeListItem::isWayBack() const
{
    return mParent != nullptr && mParent->mWayBack.get() == this;
}

void Peg_TreeListItem::setInactive(bool on)
{
    mInactive = on;
    changed();
}

void Peg_TreeListItem::setProtected(bool on)
{
    mProtected = on;
    changed();
}

void Peg_TreeListItem::setAligned(bool on)
{
    mAligned = on;
    if (mWayBack != nullptr)
        mWayBack->setAligned(on);
    changed();
}

void Peg_TreeListItem::Draw(PegPainter& painter, const Place& place) const
{
    LinesLook look;
    look.lines.front() = {.text = DataGet(), .indent = mAligned ? 0 : indentOf(level(), widthOf(place.text))};
    if (!mChildren.empty())
        look.lines.front().icon = mOpen ? &icons::OPENED : &icons::CLOSED;
    if (mProtected)
        look.marks = {&icons::PADLOCK};
    look.dimmed = mInactive;
    host::draw(painter, place, look);
}

KestrelListBoxItem::Description Peg_TreeListItem::describe() const
{
    return {"Peg_TreeListItem", {DataGet()}};
}
