#pragma once

#include "DisplayAPI/CallLogMainItemPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/telephony/LogRowSide.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// What a call log's row is made of. The party is needed while the row is made; null is an unknown one.
struct CallLogEntry {
    const CallPartyIdentifier* party;
    std::string text; ///< UTF-8
    int icon;         ///< a CallLogMainItem::IconType, or any other value
    bool isNew;
    bool hasMenu;
};

/// The GUI-thread side of a call log's row, whatever the panel.
class DISPLAYAPI_EXPORT CallLogMainItemSide : public LogRowSide<CallLogMainItemPrivateIfc> {
public:
    void setbold(bool on) override;

protected:
    CallLogMainItemSide(const CallLogEntry& entry, Panel panel);
};

/// A call log's row on the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT CallLogMainItemPrivate : public CallLogMainItemSide {
public:
    CallLogMainItemPrivate(CallPartyIdentifier* party, std::string text, int icon, bool isNew, bool hasMenu);
};

/// A call log's row on the 208 x 42 panel.
class DISPLAYAPI_EXPORT CallLogMainItemPrivateWP1 : public CallLogMainItemSide {
public:
    CallLogMainItemPrivateWP1(CallPartyIdentifier* party, std::string text, int icon, bool isNew, bool hasMenu);
};

} // namespace DisplayAPI
