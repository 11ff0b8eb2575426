#include "host/widgets/form/TextEntryField.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"

namespace host {

TextEntryField::TextEntryField() : mLine(new EditLine)
{
    Add(mLine, false);
    mLine->setMessageTarget(this);
}

void TextEntryField::setText(const PegString& text)
{
    mLine->setText(text);
    Invalidate();
}

void TextEntryField::setMaximum(int characters)
{
    mLine->setMaximum(characters);
    Invalidate();
}

void TextEntryField::setKind(EditKind kind)
{
    mLine->setKind(kind);
    Invalidate();
}

bool TextEntryField::key(int key)
{
    if (isLocked())
        return false;
    return mLine->key(key);
}

void TextEntryField::Resize(const PegRect& area)
{
    FormField::Resize(area);
    fitLine();
}

int TextEntryField::Message(const PegMessage& message)
{
    if (message.pSource != mLine || message.wType != PM_CURRENT_CHANGED)
        return FormField::Message(message);
    tellValueChanged();
    return 0;
}

/// Without the focus there is nothing to see of it.
void TextEntryField::fitLine()
{
    const PegRect area = isEdited() ? valueArea() : rectAt(0, 0, 0, 0);
    if (mLine->Area() != area)
        mLine->Resize(area);
    mLine->setFocus(isEdited());
}

/// The text stands where the edit line has it, so that it stays there when the focus comes.
void TextEntryField::drawValue(PegPainter& painter, const PegRect& cell) const
{
    if (isEdited())
        return;
    const PegRect text =
        rectAt(cell.left + EditLine::INSET, cell.top, widthOf(cell) - 2 * EditLine::INSET, heightOf(cell));
    painter.text(text, value(), {.font = font(), .align = startAlign(), .inverted = hasFocus()});
}

} // namespace host
