#pragma once

#include "host/widgets/edit/EditLine.h"
#include "host/widgets/form/FormField.h"

namespace host {

/// A text that the user types. While it has the focus an edit line stands in the place of its value: cursor, candidate
/// and input mode; left and right move in it, and are the form's at its ends. The cursor stays where it is while the
/// focus is elsewhere.
class TextEntryField : public FormField {
public:
    TextEntryField();

    /// As for EditLine.
    void setText(const PegString& text);
    PegString text() const { return mLine->text(); }
    void setMaximum(int characters);
    void setKind(EditKind kind);

    /// A password's character that is being chosen can be seen in the edit line alone.
    PegString value() const override { return mLine->masked(); }
    bool key(int key) override;
    void released(int key) override { mLine->released(key); }
    void Resize(const PegRect& area) override;
    int Message(const PegMessage& message) override;

protected:
    void drawValue(PegPainter& painter, const PegRect& cell) const override;
    void focusChanged() override { fitLine(); }
    void lockChanged() override { fitLine(); }
    void valueMoved() override { fitLine(); }

private:
    bool isEdited() const { return hasFocus() && !isLocked(); }
    void fitLine();

    EditLine* const mLine; ///< a child
};

} // namespace host
