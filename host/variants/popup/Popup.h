#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/widgets/popup/PopupBox.h"
#include "variants/popup/PopupSide.h"
#include "widgets/ApplicationWatch.h"

#include <memory>
#include <vector>

namespace DisplayAPI {

class Command;

/// The data of a popup: its box, its time on screen, and what hears both and the language. Each kind of popup derives
/// its own from it.
struct PopupSide::Popup : public PegThing {
    /// `hidden` is raised when the popup has taken itself off a display; null is nothing.
    Popup(PopupSide& side, Displayable* facade, Command* hidden);
    ~Popup() override;

    int Message(const PegMessage& message) override;

    bool isOnScreen() const { return box != nullptr && box->StatusIs(PSF_VISIBLE); }

    /// Puts it on top of its display, or else of the one made last; where it is there already its time begins anew.
    void comeUp();

    /// The display has connected it, or let go of it; and it has shown it.
    void connected(bool isUp);
    virtual void arrived();

    /// Whether it is there still, for those by whose calls it may go.
    std::weak_ptr<void> life() const { return mLife; }

    /// Raises a command; false where the popup has gone by that.
    bool raise(Command* command);

    /// Takes it off its display. Ends with the popup gone, perhaps.
    void leave();

    /// The milliseconds without a key after which it leaves; 0 and less is never.
    void setTimeout(int milliseconds);

    /// Tells the display when a popup on screen looks different.
    void changed();

    virtual void setStatusLines(int lines);

    /// Asked while there is a box, and it can be seen.
    virtual std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const = 0;

    WatchedWidget<host::PopupBox> box{std::in_place_type<host::PopupBox>};
    OwnershipDelegate<host::PopupBox> ownership{box.slot(), true};

protected:
    /// Before it comes to the screen, and when it is about to leave it by itself.
    virtual void opened() {}
    virtual void leaving() {}

    /// What the box, and what is in it, tells. May end with the popup gone.
    virtual void hear(const PegMessage& message) = 0;
    virtual void languageChanged() = 0;

private:
    void restartTimeout();

    PopupSide& mSide;
    Displayable* const mFacade;
    Command* const mHidden;
    const ApplicationWatch mApplication{*this};
    const std::shared_ptr<void> mLife = std::make_shared<int>();
    int mTimeout = 0;
    bool mIsUp = false; ///< a display has it on its stack
};

} // namespace DisplayAPI
