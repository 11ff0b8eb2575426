#include "host/widgets/form/ChoicePopup.h"

#include "host/lcd/Geometry.h"

namespace host {

namespace {

constexpr int MARGIN = 2; ///< within the frame

int edge()
{
    return hasTwoLines() ? 0 : FRAME_WIDTH + MARGIN;
}

int mostRows()
{
    return hasTwoLines() ? 2 : 5;
}

} // namespace

ChoicePopup::ChoicePopup(std::vector<CommandColumn::Entry> choices, int current, PegThing* target)
    : mColumn(new CommandColumn)
{
    Add(mColumn, false);
    mColumn->setMostRows(mostRows());
    for (CommandColumn::Entry& choice : choices)
        mColumn->insert(mColumn->count(), std::move(choice));
    mColumn->setCurrent(current);
    mColumn->setFocus(true);
    mColumn->setMessageTarget(target);
    setMessageTarget(target);
}

int ChoicePopup::heightFor(int width) const
{
    return mColumn->heightFor(width - 2 * edge()) + 2 * edge();
}

/// All keys end here: nothing below has a use for them meanwhile.
bool ChoicePopup::key(int key)
{
    if (key == PK_LEFT)
        tell(PM_LEFT, 0);
    else
        mColumn->key(key);
    return true;
}

void ChoicePopup::Resize(const PegRect& area)
{
    Field::Resize(area);
    mColumn->Resize(
        rectAt(area.left + edge(), area.top + edge(), widthOf(area) - 2 * edge(), heightOf(area) - 2 * edge()));
}

/// On two lines the column fills all of it.
void ChoicePopup::Draw(PegPainter& painter)
{
    if (!hasTwoLines())
        drawPopupFrame(painter, Area());
}

} // namespace host
