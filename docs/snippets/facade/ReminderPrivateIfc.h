#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "Reminder.h"

namespace DisplayAPI {

/// The GUI-thread side of a reminder. GUI thread only. Deleted by Displayable::deletePrivateSide() alone.
class DISPLAYAPI_EXPORT ReminderPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~ReminderPrivateIfc() = default;

public:
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;

    /// UTF-8.
    virtual void setText(const std::string& text) = 0;

    /// Not owned; looked up again when the language changes.
    virtual void setText(TranslationInfo* text) = 0;

    virtual void setUrgency(Reminder::Urgency urgency) = 0;

    /// -1 as long as the user has not chosen.
    virtual int getMinutes() = 0;

    virtual void dismiss() = 0;
};

} // namespace DisplayAPI
