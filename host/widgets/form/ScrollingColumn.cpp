#include "host/widgets/form/ScrollingColumn.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Icons.h"
#include "host/lcd/Painter.h"

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

int ScrollingColumn::indexOf(const Field* field) const
{
    const auto found = std::find(mFields.begin(), mFields.end(), field);
    return found == mFields.end() ? -1 : static_cast<int>(found - mFields.begin());
}

void ScrollingColumn::append(Field* field)
{
    mFields.push_back(field);
    Add(field, false);
    if (mFocused < 0 && field->takesFocus())
        moveFocusTo(count() - 1);
    place();
}

void ScrollingColumn::remove(Field* field)
{
    const int index = indexOf(field);
    if (index < 0)
        return;
    takeOut(index);
    place();
}

void ScrollingColumn::takeOut(int index)
{
    Field* const field = at(index);
    if (index == mFocused) {
        const int next = nextTakingFocus(index, 1);
        moveFocusTo(next >= 0 ? next : nextTakingFocus(index, -1));
    }
    mFields.erase(mFields.begin() + index);
    if (mFocused > index)
        --mFocused;
    if (mTop > index)
        --mTop;
    delete field;
}

void ScrollingColumn::clear()
{
    mFocused = -1;
    mTop = 0;
    for (Field* field : std::exchange(mFields, {}))
        delete field;
    Invalidate();
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

void ScrollingColumn::place()
{
    keepInSight();
    const int last = lastShown(mTop);
    int top = Area().top;
    for (int index = 0; index < count(); ++index) {
        const bool inSight = index >= mTop && index <= last;
        const int height = inSight ? at(index)->heightFor(fieldWidth()) : 0;
        at(index)->Resize(inSight ? rectAt(Area().left, top, fieldWidth(), height) : OUT_OF_SIGHT);
        top += height;
    }
    Invalidate();
}

void ScrollingColumn::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    const int left = Area().right + 1 - SCROLL_WIDTH;
    if (mTop > 0)
        painter.icon(icons::SMALL_ARROW_UP, rectAt(left, Area().top, SCROLL_WIDTH, ARROW_HEIGHT), Level::DARK);
    if (lastShown(mTop) + 1 < count())
        painter.icon(icons::SMALL_ARROW_DOWN,
                     rectAt(left, Area().bottom + 1 - ARROW_HEIGHT, SCROLL_WIDTH, ARROW_HEIGHT), Level::DARK);
}

} // namespace host
