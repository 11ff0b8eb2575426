#include "host/widgets/form/ChoiceField.h"

#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"
#include "host/widgets/form/ChoicePopup.h"

#include <utility>

namespace host {

namespace {

constexpr int ARROW_WIDTH = 8;

} // namespace

ChoiceField::~ChoiceField()
{
    close();
}

void ChoiceField::append(CommandColumn::Entry choice)
{
    close();
    mChoices.push_back(std::move(choice));
    Invalidate();
}

void ChoiceField::setText(int choice, PegString text)
{
    close();
    mChoices.at(static_cast<std::size_t>(choice)).text = std::move(text);
    Invalidate();
}

void ChoiceField::clear()
{
    close();
    mChoices.clear();
    mSelected = -1;
    Invalidate();
}

void ChoiceField::select(int choice)
{
    if (choice < -1 || choice >= count())
        return;
    mSelected = choice;
    Invalidate();
}

void ChoiceField::setContents(PegString contents)
{
    mContents = std::move(contents);
    Invalidate();
}

void ChoiceField::setShowsSelection(bool on)
{
    mShowsSelection = on;
    Invalidate();
}

PegString ChoiceField::value() const
{
    return mShowsSelection && mSelected >= 0 ? mChoices[static_cast<std::size_t>(mSelected)].text : mContents;
}

int ChoiceField::highlighted() const
{
    return mPopup != nullptr ? mPopup->column().current() : -1;
}

/// Left and right also at an end: who holds the key does not leave the form by it.
bool ChoiceField::key(int key)
{
    if (isLocked() || count() == 0)
        return false;
    if (key == PK_OK)
        return open();
    return (key == PK_LEFT || key == PK_RIGHT) && step((key == PK_RIGHT) != isReadFromTheRight());
}

bool ChoiceField::step(bool forward)
{
    const int next = mSelected < 0 ? 0 : mSelected + (forward ? 1 : -1);
    if (next < 0 || next >= count())
        return true;
    select(next);
    tellValueChanged();
    return true;
}

bool ChoiceField::open()
{
    if (holder() == nullptr)
        return false;
    std::vector<CommandColumn::Entry> choices = mChoices;
    if (mSelected >= 0)
        choices[static_cast<std::size_t>(mSelected)].mark = &icons::CHECK;
    mPopup = new ChoicePopup(std::move(choices), mSelected, this);
    holder()->open(mPopup);
    holder()->choicesShown(*this);
    return true;
}

void ChoiceField::close()
{
    if (std::exchange(mPopup, nullptr) != nullptr)
        holder()->open(nullptr);
}

void ChoiceField::lockChanged()
{
    if (isLocked())
        close();
}

/// The keys are another field's now, or the bar's.
void ChoiceField::focusChanged()
{
    if (!hasFocus())
        close();
}

/// What the choices tell.
int ChoiceField::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CLICKED: choose(message.iData); break;
    case PM_LEFT:
        close();
        holder()->lookChanged();
        break;
    case PM_CURRENT_CHANGED: holder()->lookChanged(); break;
    default: return FormField::Message(message);
    }
    return 0;
}

void ChoiceField::choose(int choice)
{
    close();
    const bool isOther = choice != mSelected;
    select(choice);
    holder()->chosen(*this, isOther);
}

void ChoiceField::drawValue(PegPainter& painter, const PegRect& cell) const
{
    Strip strip(cell);
    const PegRect arrow = strip.fromEnd(ARROW_WIDTH);
    painter.text(strip.rest(), value(), valueLook());
    if (!isLocked() && count() > 0)
        painter.icon(isReadFromTheRight() ? icons::SMALL_ARROW_LEFT : icons::SMALL_ARROW_RIGHT, arrow, ink());
}

} // namespace host
