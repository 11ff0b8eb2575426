#pragma once

#include "DisplayAPI/Dialog.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class ReminderPrivateIfc;

/// A popup that reminds of something, and asks in how many minutes to do so again.
///
/// Threads: safe from any thread. Off the GUI thread getMinutes(), removeCommandListener() and the destructor wait;
/// everything else posts and returns at once.
/// Ownership: a reminder owns its GUI-thread side. A translation is not owned and has to live while it is shown; null
/// is an empty text. Listeners are not owned: each is removed before it goes.
class DISPLAYAPI_EXPORT Reminder : public Dialog {
public:
    enum Urgency { CALM = 0, URGENT = 1 };

    Reminder();
    Reminder(const Reminder&) = delete;
    Reminder& operator=(const Reminder&) = delete;
    ~Reminder() override;

    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Raised when the user has chosen; the reminder goes off the screen then.
    static Command* CHOSEN_COMMAND();

    /// Null, and adding a listener twice, have no effect. Nothing is raised for a listener that has been removed; what
    /// was raised before may still be on its way.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// UTF-8.
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setUrgency(Urgency urgency);

    /// What the user has chosen last; -1 as long as he has not.
    int getMinutes();

    /// Takes it off the screen. Several that are queued are one.
    void dismiss();

private:
    struct Ops;

    void create();
    void destroy();

    ReminderPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
