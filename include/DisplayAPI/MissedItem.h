#pragma once

#include "DisplayAPI/Widget.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

class MissedItemPrivateIfc;

/// The details of a call that nobody answered: who called, and when, each on a line of its own. Rows of lists show them
/// (kit/DetailsRow.h), on the full panel alone.
///
/// Threads: safe from any thread. Off the GUI thread the constructor and the destructor wait.
/// Ownership: it owns its GUI-thread side. Parties are needed by the constructor alone.
class DISPLAYAPI_EXPORT MissedItem : public Widget {
public:
    /// Null, and a party of whom nothing is known, is shown as an unknown caller in the language of the moment. `when`
    /// is UTF-8; where it has several lines, so has the row.
    MissedItem(CallPartyIdentifier* caller, std::string when);
    MissedItem(const MissedItem&) = delete;
    MissedItem& operator=(const MissedItem&) = delete;
    ~MissedItem() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// The GUI-thread side, which a row of a list shows; null on any panel but the full one.
    MissedItemPrivateIfc* getPrivateImpl() const { return mImplementation; }

    /// The list that shows it says that to the GUI-thread side: does nothing.
    void localeChanged(std::string locale);

private:
    struct Ops;

    void create(CallPartyIdentifier* caller, std::string when);
    void destroy();

    MissedItemPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
