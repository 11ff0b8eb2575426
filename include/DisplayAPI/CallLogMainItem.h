#pragma once

#include "DisplayAPI/ListItem.h"

#include <memory>
#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// A row of a call log: an icon, who the other party is, and a text that tells of the call, such as when it was.
///
/// Threads: safe from any thread. Off the GUI thread the constructor and setbold() post and return at once; the
/// destructor and getText() wait.
/// Ownership: as for every ListItem. The party is copied.
class DISPLAYAPI_EXPORT CallLogMainItem : public ListItem {
public:
    /// The icon in front of what is logged, or of a forwarding; any value travels through, and an unknown one has none.
    enum IconType : int {
        NO_ICON = 0,
        ICON_DIALLED = 1,
        ICON_MISSED = 2,
        ICON_RECEIVED = 3,
        ICON_FORWARDED = 4,
        ICON_FORWARDING_ALWAYS = 5,
        ICON_FORWARDING_BUSY = 6,
        ICON_FORWARDING_NO_ANSWER = 7
    };

    /// Null, and a party of whom nothing is known, is shown as an unknown caller in the language of the moment. The
    /// text is UTF-8 and stands at the row's end. `icon` is an IconType. A new entry is bold. `hasMenu` puts a mark at
    /// the end which tells that there is more behind the row.
    CallLogMainItem(CallPartyIdentifier* party, std::string text, int icon, bool isNew, bool hasMenu);
    CallLogMainItem(const CallLogMainItem&) = delete;
    CallLogMainItem& operator=(const CallLogMainItem&) = delete;
    ~CallLogMainItem() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// What getPrivateImplemetation() answers. GUI thread only.
    ListItemPrivateIfc* getPrivateImpl();

    /// Shows the entry in bold letters, as one that is new, or as others.
    void setbold(bool on);

private:
    struct Ops;

    void create(std::unique_ptr<CallPartyIdentifier> party, std::string text, int icon, bool isNew, bool hasMenu);
};

} // namespace DisplayAPI
