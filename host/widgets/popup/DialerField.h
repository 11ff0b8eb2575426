#pragma once

#include "host/widgets/edit/EditLine.h"
#include "host/widgets/form/Field.h"

namespace host {

/// What a dialer has in its box: a prefix and an edit line, and below them a second line of text. The left key takes
/// the last character away; where there is none the target is told PM_LEFT. The edit line tells its own target.
class DialerField : public Field {
public:
    DialerField();

    EditLine& line() const { return *mLine; }

    void setPrefix(PegString text);
    const PegString& prefix() const { return mPrefix; }

    /// An empty one takes no room, and neither does one that has none.
    void setSecond(PegString text);
    const PegString& second() const { return mSecond; }
    void setRoomForSecond(bool on);

    /// Empty where it is not shown.
    PegRect secondArea() const;

    /// While on, the keypad types nothing, and a key that is held does nothing more.
    void setIgnoresKeypad(bool on);

    /// Whether the key would put a character into an empty line.
    bool types(int key) const { return !mIgnoresKeypad && mLine->types(key); }

    int heightFor(int width) const override;
    bool key(int key) override;
    void released(int key) override { mLine->released(key); }
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

protected:
    void focusChanged() override { mLine->setFocus(hasFocus()); }

private:
    bool hasSecond() const { return mRoomForSecond && !mSecond.empty(); }
    PegRect prefixArea() const;
    void layOut();

    EditLine* const mLine; ///< a child
    PegString mPrefix;
    PegString mSecond;
    bool mRoomForSecond = true;
    bool mIgnoresKeypad = false;
};

} // namespace host
