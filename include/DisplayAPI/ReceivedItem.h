#pragma once

#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/Widget.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

class ReceivedItemPrivateIfc;

/// The details of a call that was answered: who called, when, and how long it took, each on a line of its own. Rows of
/// lists show them (kit/DetailsRow.h), on the full panel alone.
///
/// Threads: safe from any thread. Off the GUI thread the constructor and the destructor wait.
/// Ownership: it owns its GUI-thread side. Parties are needed by the constructor alone.
class DISPLAYAPI_EXPORT ReceivedItem : public Widget {
public:
    /// Null, and a party of whom nothing is known, is shown as an unknown caller in the language of the moment. The
    /// texts are UTF-8; where `when` has several lines, so has the row.
    ReceivedItem(CallPartyIdentifier* caller, std::string when, std::string duration);
    ReceivedItem(const ReceivedItem&) = delete;
    ReceivedItem& operator=(const ReceivedItem&) = delete;
    ~ReceivedItem() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// The GUI-thread side, which a row of a list shows; null on any panel but the full one.
    ReceivedItemPrivateIfc* getPrivateImpl() const { return mImplementation; }

    /// No icon.
    CallLogMainItem::IconType iconType() const { return CallLogMainItem::NO_ICON; }

    /// The list that shows it says that to the GUI-thread side: does nothing.
    void localeChanged(std::string locale);

private:
    struct Ops;

    void create(CallPartyIdentifier* caller, std::string when, std::string duration);
    void destroy();

    ReceivedItemPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
