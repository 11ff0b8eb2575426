#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "ReminderPrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a reminder, whatever the panel.
class DISPLAYAPI_EXPORT ReminderSide : public DisplayablePrivate, public ReminderPrivateIfc {
public:
    ~ReminderSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    bool hideOldWidgetOnFocusGained() override;
    std::string serialise() override;

    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void setText(const std::string& text) override;
    void setText(TranslationInfo* text) override;
    void setUrgency(Reminder::Urgency urgency) override;
    int getMinutes() override;
    void dismiss() override;

protected:
    ReminderSide(Reminder* owner, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The reminder of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT ReminderPrivate : public ReminderSide {
public:
    explicit ReminderPrivate(Reminder* owner);
};

/// The reminder of the 208 x 42 panel.
class DISPLAYAPI_EXPORT ReminderPrivateWP1 : public ReminderSide {
public:
    explicit ReminderPrivateWP1(Reminder* owner);
};

} // namespace DisplayAPI
