#include "host/widgets/form/ScrollingColumn.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Icons.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Strip.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int SCROLL_WIDTH = 8; ///< the place of the arrows
constexpr int ARROW_HEIGHT = 8;
constexpr PegRect OUT_OF_SIGHT = rectAt(0, 0, 0, 0);

} // namespace

Field* ScrollingColumn::at(int index) const
{
    return index >= 0 && index < count() ? mFields[static_cast<std::size_t>(index)] : nullptr;
}

/// From the end: a form takes its items out from there.
int ScrollingColumn::indexOf(const PegThing* field) const
{
    const auto found = std::find(mFields.rbegin(), mFields.rend(), field);
    return static_cast<int>(mFields.rend() - found) - 1;
}

void ScrollingColumn::append(Field* field)
{
    const bool keepsFocus = field->Parent() == this && field == focused();
    if (field->Parent() != nullptr)
        field->Parent()->Remove(field);
    if (!keepsFocus)
        field->setFocus(false);
    field->Resize(OUT_OF_SIGHT);
    mFields.push_back(field);
    Add(field, false);
    if (keepsFocus || (mFocused < 0 && field->takesFocus()))
        moveFocusTo(count() - 1);
    place();
}

void ScrollingColumn::remove(Field* field)
{
    if (field->Parent() == this)
        delete field;
}

/// The field may be in its destructor: nothing of it is touched.
void ScrollingColumn::ChildRemoved(PegThing* child)
{
    const int index = indexOf(child);
    if (index < 0)
        return;
    takeOut(index);
    place();
    mRemoved();
}

void ScrollingColumn::takeOut(int index)
{
    std::erase(mInSight, mFields[static_cast<std::size_t>(index)]);
    if (index == mFocused) {
        const int next = nextTakingFocus(index, 1);
        mFocused = next >= 0 ? next : nextTakingFocus(index, -1);
        focusChanged();
    }
    mFields.erase(mFields.begin() + index);
    if (mFocused > index)
        --mFocused;
    if (mTop > index)
        --mTop;
    Invalidate();
}

void ScrollingColumn::clear()
{
    mFocused = -1;
    mTop = 0;
    mInSight.clear();
    for (Field* field : std::exchange(mFields, {}))
        delete field;
    place();
    mRemoved();
}

int ScrollingColumn::nextTakingFocus(int from, int by) const
{
    for (int index = from + by; at(index) != nullptr; index += by)
        if (at(index)->takesFocus())
            return index;
    return -1;
}

void ScrollingColumn::focus(const Field* field)
{
    const int index = indexOf(field);
    if (index < 0 || !field->takesFocus())
        return;
    moveFocusTo(index);
    place();
}

void ScrollingColumn::moveFocusTo(int index)
{
    if (Field* const before = focused())
        before->setFocus(false);
    mFocused = index;
    focusChanged();
}

void ScrollingColumn::focusChanged()
{
    if (Field* const field = focused())
        field->setFocus(hasFocus());
}

int ScrollingColumn::heightFor(int width) const
{
    int height = 0;
    for (const Field* field : mFields)
        height += field->heightFor(width - SCROLL_WIDTH);
    return height;
}

bool ScrollingColumn::key(int key)
{
    if (focused() != nullptr && focused()->key(key))
        return true;
    if (key != PK_UP && key != PK_DOWN)
        return false;
    const int next = nextTakingFocus(mFocused, key == PK_UP ? -1 : 1);
    if (next < 0)
        return false;
    moveFocusTo(next);
    place();
    tell(PM_CURRENT_CHANGED, next);
    return true;
}

void ScrollingColumn::released(int key)
{
    if (Field* const field = focused())
        field->released(key);
}

void ScrollingColumn::Resize(const PegRect& area)
{
    Field::Resize(area);
    place();
}

int ScrollingColumn::fieldWidth() const
{
    return widthOf(Area()) - SCROLL_WIDTH;
}

/// The last field that is in sight where `first` is the first.
int ScrollingColumn::lastShown(int first) const
{
    int rest = heightOf(Area());
    int index = first;
    while (at(index) != nullptr && (rest -= at(index)->heightFor(fieldWidth())) >= 0)
        ++index;
    return index - 1;
}

/// What stands before the first field that can have the focus is shown with it: it is mostly its heading.
void ScrollingColumn::keepInSight()
{
    const int wanted = nextTakingFocus(-1, 1) == mFocused ? 0 : mFocused;
    mTop = std::clamp(mTop, 0, std::max(0, wanted));
    while (mTop < mFocused && lastShown(mTop) < mFocused)
        ++mTop;
}

/// Moves no more than what comes into sight and what leaves it.
void ScrollingColumn::place()
{
    keepInSight();
    const std::vector<Field*> before = std::exchange(mInSight, placeInSight());
    for (Field* field : before)
        if (std::ranges::find(mInSight, field) == mInSight.end())
            field->Resize(OUT_OF_SIGHT);
    markEnds();
}

std::vector<Field*> ScrollingColumn::placeInSight()
{
    std::vector<Field*> shown;
    const int last = lastShown(mTop);
    Strip whole(Area());
    whole.fromEnd(SCROLL_WIDTH);
    int top = Area().top;
    for (int index = mTop; index <= last; ++index) {
        Field* const field = at(index);
        const PegRect area = rectAt(whole.rest().left, top, fieldWidth(), field->heightFor(fieldWidth()));
        if (field->Area() != area)
            field->Resize(area);
        top += heightOf(area);
        shown.push_back(field);
    }
    return shown;
}

void ScrollingColumn::markEnds()
{
    const bool above = mTop > 0;
    const bool below = mTop + static_cast<int>(mInSight.size()) < count();
    if (std::exchange(mHasAbove, above) != above)
        Invalidate(arrowArea(true));
    if (std::exchange(mHasBelow, below) != below)
        Invalidate(arrowArea(false));
}

PegRect ScrollingColumn::arrowArea(bool upper) const
{
    const PegRect scroll = Strip(Area()).fromEnd(SCROLL_WIDTH);
    return rectAt(scroll.left, upper ? scroll.top : scroll.bottom + 1 - ARROW_HEIGHT, SCROLL_WIDTH, ARROW_HEIGHT);
}

void ScrollingColumn::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    if (mHasAbove)
        painter.icon(icons::SMALL_ARROW_UP, arrowArea(true), Level::DARK);
    if (mHasBelow)
        painter.icon(icons::SMALL_ARROW_DOWN, arrowArea(false), Level::DARK);
}

} // namespace host
