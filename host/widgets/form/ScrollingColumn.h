#pragma once

#include "host/widgets/form/Field.h"

#include <functional>
#include <utility>
#include <vector>

namespace host {

/// Fields one below the other, more than fit: up and down move the focus, which stays in sight; every other key is the
/// focused field's. Only fields that fit whole are shown.
/// Cost: a step, an append and the removal of the last field depend on what is in sight, and not on how many there are.
class ScrollingColumn : public Field {
public:
    /// `removed` is called when a field has gone, by whomever.
    explicit ScrollingColumn(std::function<void()> removed = [] {}) : mRemoved(std::move(removed)) {}

    /// The field becomes the column's property. The first one that takes the focus gets it. One that is in the column
    /// goes to its end, with the focus if it has it.
    void append(Field* field);

    /// Deletes the field. Whoever deletes one himself, or takes it out, has the same effect: the focus goes to the next
    /// one that takes it, or to the one before.
    void remove(Field* field);
    void clear();

    int count() const { return static_cast<int>(mFields.size()); }
    Field* at(int index) const;
    const std::vector<Field*>& inSight() const { return mInSight; }

    /// Null where no field takes the focus.
    Field* focused() const { return at(mFocused); }

    /// Ignored where the field is not in the column or does not take the focus.
    void focus(const Field* field);

    int heightFor(int width) const override;
    bool key(int key) override;
    void released(int key) override;
    bool takesFocus() const override { return mFocused >= 0; }
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

    /// The fields have other heights than before.
    void heightsChanged() { place(); }

protected:
    void focusChanged() override;
    void ChildRemoved(PegThing* child) override;

private:
    int indexOf(const PegThing* field) const;
    int nextTakingFocus(int from, int by) const;
    void moveFocusTo(int index);
    int fieldWidth() const;
    int lastShown(int first) const;
    void keepInSight();
    void place();
    std::vector<Field*> placeInSight();
    void markEnds();
    PegRect arrowArea(bool upper) const;
    void takeOut(int index);

    const std::function<void()> mRemoved;
    std::vector<Field*> mFields;
    std::vector<Field*> mInSight;
    int mFocused = -1;
    int mTop = 0; ///< the first field in sight
    bool mHasAbove = false;
    bool mHasBelow = false;
};

} // namespace host
