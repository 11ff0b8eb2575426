#pragma once

#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/Widget.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

class DialledItemPrivateIfc;

/// The details of a call that was dialled: whom, who answered, when, and how long it took, each on a line of its own.
/// Rows of lists show them (kit/DetailsRow.h), on the full panel alone.
///
/// Threads: safe from any thread. Off the GUI thread the constructor and the destructor wait, and iconType() runs on
/// the calling thread.
/// Ownership: it owns its GUI-thread side. Parties are needed by the constructor alone.
class DISPLAYAPI_EXPORT DialledItem : public Widget {
public:
    /// `reached` is who has answered in place of `dialled`; null where that is nobody else. A party of whom nothing is
    /// known is shown as an unknown caller in the language of the moment, and so is null for `dialled`. The texts are
    /// UTF-8; where `when` has several lines, so has the row. A call that nobody answered has a mark.
    DialledItem(CallPartyIdentifier* dialled, CallPartyIdentifier* reached, std::string when, std::string duration,
                bool wasAnswered);
    DialledItem(const DialledItem&) = delete;
    DialledItem& operator=(const DialledItem&) = delete;
    ~DialledItem() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// The GUI-thread side, which a row of a list shows; null on any panel but the full one, and where there was no
    /// application.
    DialledItemPrivateIfc* getPrivateImpl() const { return mImplementation; }

    /// The icon that the GUI-thread side shows, and no icon where there is none. Asked for on the calling thread: it
    /// stays the same.
    CallLogMainItem::IconType iconType() const;

    /// The list that shows it says that to the GUI-thread side: does nothing.
    void localeChanged(std::string locale);

    /// The texts stay as they are: does nothing.
    void setDateTimeDuration(std::string date, std::string time, std::string duration);

    /// Deletes the GUI-thread side, as the destructor does. GUI thread only. A row that shows it has to leave its list
    /// first, and no other thread may ask for iconType() meanwhile.
    void cleanup();

private:
    struct Ops;

    void create(CallPartyIdentifier* dialled, CallPartyIdentifier* reached, std::string when, std::string duration,
                bool wasAnswered);

    DialledItemPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
