#pragma once

#include "host/lcd/Fonts.h"
#include "host/widgets/popup/PopupFrame.h"
#include "toolkit/PegThing.h"

namespace host {

/// A part of a popup or a form. It is drawn by itself; keys come from whoever holds it. GUI thread only.
class Field : public PegThing {
public:
    /// The pixels that it needs where it is so wide.
    virtual int heightFor(int width) const = 0;

    /// Handles a PegKey. False where it has no use for it: its holder goes on.
    virtual bool key(int key) = 0;

    /// A key has gone up that has gone down before, here or elsewhere.
    virtual void released(int) {}

    /// Whether the user can work with it. False is for what is only read.
    virtual bool takesFocus() const { return true; }

    bool hasFocus() const { return mFocus; }
    void setFocus(bool on);

    /// Keys that come to the field itself, because it has the toolkit's focus, are its own as well.
    int Message(const PegMessage& message) override;

    /// Whom it tells what the user does. Not owned; null is nobody. The target may delete the field.
    void setMessageTarget(PegThing* target) { mTarget = target; }

    static Font font() { return hasTwoLines() ? Font::FIXED : Font::TEXT; }
    static Font boldFont() { return hasTwoLines() ? Font::FIXED_BOLD : Font::TEXT_BOLD; }
    static int lineHeight() { return hasTwoLines() ? BIG_LINE_HEIGHT : 18; }

protected:
    /// Told after the focus has come or gone.
    virtual void focusChanged() {}

    /// The last thing that a handler does.
    void tell(std::uint16_t type, int data);

private:
    PegThing* mTarget = nullptr;
    bool mFocus = false;
};

} // namespace host
