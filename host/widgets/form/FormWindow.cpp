#include "host/widgets/form/FormWindow.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Column.h"
#include "host/widgets/form/TitleBar.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int RULE = 1;          ///< between the parts
constexpr int INDENT = 8;        ///< of what lies over the form, from the panel's edges
constexpr int LEAST_HEIGHT = 40; ///< a title and a field
constexpr std::int32_t LONG_OK = 1;
constexpr int LONG_OK_MS = 600;

int barHeight()
{
    return Field::lineHeight() + (hasTwoLines() ? 0 : RULE);
}

} // namespace

FormWindow::FormWindow(int labelShare)
    : PegWindow(FF_NONE), mStatus(new StatusStrip([this] { layOut(); })),
      mColumn(new ScrollingColumn([this] { setPlace(mPlace); })), mBar(new CommandBar), mLabelShare(labelShare)
{
    for (PegThing* part :
         {static_cast<PegThing*>(mStatus), static_cast<PegThing*>(mColumn), static_cast<PegThing*>(mBar)})
        Add(part, false);
    mColumn->setMessageTarget(this);
    mBar->setMessageTarget(this);
    const auto [width, height] = runningPanel();
    Resize(rectAt(0, 0, width, height));
    setPlace(FIELDS);
}

/// While there is a form for its fields to speak to.
FormWindow::~FormWindow()
{
    mColumn->clear();
}

void FormWindow::Resize(const PegRect& area)
{
    PegWindow::Resize(area);
    layOut();
}

void FormWindow::setTitle(PegString title)
{
    mTitle = std::move(title);
    layOut();
    Invalidate(parts().title);
}

void FormWindow::append(FormField* field)
{
    field->setHolder(this);
    field->setLabelShare(mLabelShare);
    field->setFormReadOnly(mReadOnly);
    mColumn->append(field);
    if (field == current())
        setPlace(mPlace);
}

void FormWindow::setCurrent(const FormField* field)
{
    mColumn->focus(field);
    if (field == current())
        setPlace(FIELDS);
}

void FormWindow::setReadOnly(bool on)
{
    mReadOnly = on;
    for (int index = 0; index < mColumn->count(); ++index)
        fieldAt(index)->setFormReadOnly(on);
}

void FormWindow::fitBar()
{
    setPlace(mPlace);
}

void FormWindow::turn()
{
    heightsChanged();
    Invalidate();
}

void FormWindow::heightsChanged()
{
    mColumn->heightsChanged();
    layOut();
}

FormWindow::Place FormWindow::place() const
{
    if (mBar->count() == 0)
        return FIELDS;
    return mColumn->takesFocus() ? mPlace : COMMANDS;
}

void FormWindow::setPlace(Place place)
{
    mPlace = place;
    mVisitsBar = mVisitsBar && place == COMMANDS;
    mColumn->setFocus(this->place() == FIELDS);
    mBar->setFocus(this->place() == COMMANDS);
    layOut();
}

/// The user's own step.
void FormWindow::go(Place place)
{
    setPlace(place);
    lookChanged();
}

bool FormWindow::hasRoomForTitle(int height) const
{
    const int field = current() != nullptr ? current()->heightFor(widthOf(Area())) : Field::lineHeight();
    return !mTitle.empty() && height >= titleBarHeight() + field;
}

FormWindow::Parts FormWindow::parts() const
{
    const bool hasBar = mBar->count() > 0 && (!hasTwoLines() || place() == COMMANDS);
    Column column(Area());
    Parts parts;
    parts.status = column.fromTop(mStatus->height());
    parts.bar = column.fromBottom(hasBar ? barHeight() : 0);
    const bool isCrowded = hasBar && hasTwoLines();
    const bool hasTitle = isCrowded ? !mTitle.empty() : hasRoomForTitle(heightOf(column.rest()));
    parts.title = column.fromTop(hasTitle ? titleBarHeight() : 0);
    parts.fields = column.rest();
    if (mOpened != nullptr)
        parts.opened = openedArea();
    return parts;
}

/// In the middle; on two lines all of it.
PegRect FormWindow::openedArea() const
{
    const int indent = hasTwoLines() ? 0 : INDENT;
    const int width = widthOf(Area()) - 2 * indent;
    const int most = heightOf(Area()) - 2 * indent;
    const int height = hasTwoLines() ? most : std::min(mOpened->heightFor(width), most);
    return rectAt(Area().left + indent, Area().top + (heightOf(Area()) - height) / 2, width, height);
}

void FormWindow::layOut()
{
    mStatus->setRoom(heightOf(Area()) - barHeight() - LEAST_HEIGHT);
    const Parts where = parts();
    if (mStatus->Area() != where.status)
        mStatus->Resize(where.status);
    if (mColumn->Area() != where.fields)
        mColumn->Resize(where.fields);
    if (mOpened != nullptr && mOpened->Area() != where.opened)
        mOpened->Resize(where.opened);
    const PegRect formerTitle = std::exchange(mTitleArea, where.title);
    if (formerTitle != where.title) {
        Invalidate(formerTitle);
        Invalidate(where.title);
    }
    layOutBar(where.bar);
}

void FormWindow::layOutBar(const PegRect& place)
{
    const PegRect bar = isEmpty(place) ? place
                                       : rectAt(place.left, place.bottom + 1 - Field::lineHeight(), widthOf(place),
                                                Field::lineHeight());
    if (mBar->Area() == bar)
        return;
    mBar->Resize(bar);
    Invalidate();
}

int FormWindow::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_KEY: keyDown(message.iData); break;
    case PM_KEYRELEASE: keyUp(message.iData); break;
    case PM_TIMER: visitBar(); break;
    case PM_CURRENT_CHANGED:
        layOut();
        if (message.pSource != mColumn)
            lookChanged();
        else if (mListener != nullptr)
            mListener->currentChanged();
        break;
    case PM_CLICKED: choose(message.iData); break;
    default: return PegWindow::Message(message);
    }
    return 0;
}

void FormWindow::keyDown(int key)
{
    letGo();
    if (this->key(key))
        return;
    if (key == PK_OK && mBar->count() > 0) {
        mHoldsOk = true;
        SetTimer(LONG_OK, LONG_OK_MS, false);
    } else if (mListener != nullptr) {
        mListener->formKey(key);
    }
}

void FormWindow::keyUp(int key)
{
    const bool isOk = key == PK_OK && mHoldsOk;
    letGo();
    if (isOk && mListener != nullptr)
        mListener->formKey(PK_OK);
}

void FormWindow::letGo()
{
    mColumn->released(0);
    mHoldsOk = false;
    KillTimer(LONG_OK);
}

void FormWindow::visitBar()
{
    mHoldsOk = false;
    if (mBar->count() == 0 || mOpened != nullptr)
        return;
    mVisitsBar = true;
    go(COMMANDS);
}

/// Who has come for one command is back in his field by then.
void FormWindow::choose(int command)
{
    if (mVisitsBar)
        setPlace(FIELDS);
    if (mListener != nullptr)
        mListener->commandChosen(command);
}

bool FormWindow::key(int key)
{
    if (mOpened != nullptr)
        return mOpened->key(key);
    if (place() == COMMANDS)
        return keyInBar(key);
    mPlace = FIELDS;
    if (mColumn->key(key))
        return true;
    if ((key != PK_UP && key != PK_DOWN) || mBar->count() == 0)
        return false;
    go(COMMANDS);
    return true;
}

bool FormWindow::keyInBar(int key)
{
    if (mBar->key(key))
        return true;
    const bool leadsBack = key == PK_UP || key == PK_DOWN || (key == PK_LEFT && mVisitsBar);
    if (!leadsBack || !mColumn->takesFocus())
        return false;
    go(FIELDS);
    return true;
}

void FormWindow::valueChanged(FormField& field)
{
    if (mListener != nullptr)
        mListener->valueChanged(field);
}

void FormWindow::choicesShown(FormField& field)
{
    if (mListener != nullptr)
        mListener->choicesShown(field);
}

void FormWindow::chosen(FormField& field, bool isOther)
{
    if (mListener != nullptr)
        mListener->chosen(field, isOther);
}

void FormWindow::lookChanged()
{
    if (mListener != nullptr)
        mListener->lookChanged();
}

void FormWindow::open(Field* choices)
{
    delete std::exchange(mOpened, choices);
    Add(choices);
    layOut();
}

void FormWindow::Draw(PegPainter& painter)
{
    const Parts where = parts();
    painter.fill(Area(), Level::BARE);
    if (!isEmpty(where.bar) && !hasTwoLines())
        painter.fill(rectAt(where.bar.left, where.bar.top, widthOf(where.bar), RULE), Level::MIDDLE);
    if (!isEmpty(where.title))
        drawTitleBar(painter, where.title, mTitle);
}

} // namespace host
