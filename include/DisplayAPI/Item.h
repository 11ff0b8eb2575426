#pragma once

#include "DisplayAPI/Widget.h"

#include <string>

namespace DisplayAPI {

class Displayable;
class ItemPrivateIfc;

/// Base of the entries of forms: knows the displayable that it stands on, a type name and a read-only flag. Its own
/// operations run on the calling thread and are for one thread at a time.
class DISPLAYAPI_EXPORT Item : public Widget {
public:
    Item() = default;

    /// Recalls every queued change notification of this item.
    ~Item() override;

    void processGuiRequest(GuiRequestEvent& request) override = 0;

    /// Not owned, and may go before the item.
    virtual void setParent(Displayable* parent);

    /// "baseItem" unless the class has a name of its own.
    virtual std::string getType();

    /// 0 unless the class has ids.
    virtual int getID();

    /// Nothing happens, and false, unless the class can be read-only.
    virtual void setReadOnly(bool readOnly);
    virtual bool isReadOnly();

    /// The GUI-thread side; null while there is none. Owned by the item. GUI thread only.
    virtual ItemPrivateIfc* getPrivateImpl() = 0;

    /// The language has changed: look translated texts up again. GUI thread only.
    virtual void localeChanged(std::string locale) = 0;

    /// Null where it stands on none.
    Displayable* getParent() const { return mParent; }

private:
    Displayable* mParent = nullptr;
};

} // namespace DisplayAPI
