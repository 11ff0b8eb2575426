#pragma once

#include "DisplayAPI/CallBackMainItem.h"
#include "DisplayAPI/CallBackMainItemPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/telephony/LogRowSide.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// The GUI-thread side of a call-back's row, whatever the panel.
class DISPLAYAPI_EXPORT CallBackMainItemSide : public LogRowSide<CallBackMainItemPrivateIfc> {
protected:
    CallBackMainItemSide(const CallPartyIdentifier* party, std::string text, CallBackMainItem::CallBackType type,
                         CallBackMainItem::CallBackState state, Panel panel);
};

/// A call-back's row on the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT CallBackMainItemPrivate : public CallBackMainItemSide {
public:
    /// The party is needed while the row is made; null is an unknown one. The text is UTF-8. Type and state have one of
    /// their names.
    CallBackMainItemPrivate(CallPartyIdentifier* party, std::string text, CallBackMainItem::CallBackType type,
                            CallBackMainItem::CallBackState state);
};

/// A call-back's row on the 208 x 42 panel, made of the same.
class DISPLAYAPI_EXPORT CallBackMainItemPrivateWP1 : public CallBackMainItemSide {
public:
    CallBackMainItemPrivateWP1(CallPartyIdentifier* party, std::string text, CallBackMainItem::CallBackType type,
                               CallBackMainItem::CallBackState state);
};

} // namespace DisplayAPI
