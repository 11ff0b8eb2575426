#pragma once

#include "host/widgets/form/Field.h"

#include <vector>

namespace host {

/// Fields one below the other, more than fit: up and down move the focus, which stays in sight; every other key is the
/// focused field's. Only fields that fit whole are shown.
class ScrollingColumn : public Field {
public:
    /// The field becomes the column's property. The first one that takes the focus gets it.
    void append(Field* field);

    /// Deletes the field. The focus goes to the next one that takes it, or to the one before.
    void remove(Field* field);
    void clear();

    int count() const { return static_cast<int>(mFields.size()); }
    Field* at(int index) const;

    /// Null where no field takes the focus.
    Field* focused() const { return at(mFocused); }

    /// Ignored where the field is not in the column or does not take the focus.
    void focus(const Field* field);

    int heightFor(int width) const override;
    bool key(int key) override;
    bool takesFocus() const override { return mFocused >= 0; }
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

protected:
    void focusChanged() override;

private:
    int indexOf(const Field* field) const;
    int nextTakingFocus(int from, int by) const;
    void moveFocusTo(int index);
    int fieldWidth() const;
    int lastShown(int first) const;
    void keepInSight();
    void place();
    void takeOut(int index);

    std::vector<Field*> mFields;
    int mFocused = -1;
    int mTop = 0; ///< the first field in sight
};

} // namespace host
