#pragma once

#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/Widget.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

class ForwardedItemPrivateIfc;

/// The details of a call that went on to somebody else: who called, to whom it went, and when, each on a line of its
/// own. Rows of lists show them (kit/DetailsRow.h), on the full panel alone.
///
/// Threads: safe from any thread. Off the GUI thread the constructor and the destructor wait, and iconType() runs on
/// the calling thread.
/// Ownership: it owns its GUI-thread side. Parties are needed by the constructor alone.
class DISPLAYAPI_EXPORT ForwardedItem : public Widget {
public:
    /// A party of whom nothing is known is shown as an unknown caller in the language of the moment, and so is null for
    /// `caller`; null for `target` is no line. `when` is UTF-8; where it has several lines, so has the row.
    ForwardedItem(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string& when);
    ForwardedItem(const ForwardedItem&) = delete;
    ForwardedItem& operator=(const ForwardedItem&) = delete;
    ~ForwardedItem() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// The GUI-thread side, which a row of a list shows; null on any panel but the full one, and where there was no
    /// application.
    ForwardedItemPrivateIfc* getPrivateImpl() const { return mImplementation; }

    /// The icon that the GUI-thread side shows, and no icon where there is none. Asked for on the calling thread: it
    /// stays the same.
    CallLogMainItem::IconType iconType() const;

    /// The list that shows it says that to the GUI-thread side: does nothing.
    void localeChanged(std::string locale);

    /// Rows have no such arrow: does nothing.
    void enableContextMenuArrow(bool on);

    /// Deletes the GUI-thread side, as the destructor does. GUI thread only. A row that shows it has to leave its list
    /// first, and no other thread may ask for iconType() meanwhile.
    void cleanup();

private:
    struct Ops;

    void create(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string& when);

    ForwardedItemPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
