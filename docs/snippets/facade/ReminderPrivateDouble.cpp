#include "ReminderPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording reminder. Its widget is a real one, so that a display can show it.
struct ReminderSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(nullptr, std::string(name) + "::" + call, args...);
    }

    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

ReminderSide::ReminderSide(Reminder* owner, Panel panel)
    : mImpl(new Impl{panel == Panel::FULL ? "ReminderPrivate" : "ReminderPrivateWP1"})
{
    doubles::Recorder::instance().note(this, mImpl->name, owner);
}

ReminderSide::~ReminderSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

ReminderPrivate::ReminderPrivate(Reminder* owner) : ReminderSide(owner, Panel::FULL) {}

ReminderPrivateWP1::ReminderPrivateWP1(Reminder* owner) : ReminderSide(owner, Panel::SMALL) {}

PegThing* ReminderSide::getWidget()
{
    return mImpl->widget;
}

void ReminderSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void ReminderSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void ReminderSide::show() {}

void ReminderSide::lostFocus() {}

bool ReminderSide::hideOldWidgetOnFocusGained()
{
    return false; // a popup leaves what is below it on screen
}

std::string ReminderSide::serialise()
{
    return {};
}

void ReminderSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void ReminderSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

void ReminderSide::setText(const std::string& text)
{
    mImpl->note("setText", text);
}

void ReminderSide::setText(TranslationInfo* text)
{
    mImpl->note("setText", text);
}

void ReminderSide::setUrgency(Reminder::Urgency urgency)
{
    mImpl->note("setUrgency", static_cast<int>(urgency));
}

int ReminderSide::getMinutes()
{
    mImpl->note("getMinutes");
    return 5;
}

void ReminderSide::dismiss()
{
    mImpl->note("dismiss");
    widgetDismissed(this);
}

} // namespace DisplayAPI
