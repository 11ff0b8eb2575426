#pragma once

#include "DisplayAPI/ListItem.h"

#include <string>

class CallPartyIdentifier;

namespace DisplayAPI {

/// A row of the list of call-backs: who is to be called back, a text that tells of it, why, and how far it is.
///
/// Threads: safe from any thread. Off the GUI thread the constructor, the destructor and getText() wait; what the row
/// keeps itself is answered on the calling thread.
/// Ownership: as for every ListItem. The party is needed by the constructor alone.
class DISPLAYAPI_EXPORT CallBackMainItem : public ListItem {
public:
    /// Why there was no call; every other value is shown as the last one.
    enum CallBackType : int { BUSY = 0, NO_ANSWER = 1, OTHER_REASON = 2 };

    /// How far the call-back is: asked for, waiting until the party is free, or free now. Every other value is shown as
    /// waiting.
    enum CallBackState : int { REQUESTED = 0, WAITING = 1, READY = 2 };

    /// Null, and a party of whom nothing is known, is shown as an unknown caller in the language of the moment. The
    /// text is UTF-8 and stands at the row's end.
    CallBackMainItem(CallPartyIdentifier* party, std::string text, CallBackType type, CallBackState state);
    CallBackMainItem(const CallBackMainItem&) = delete;
    CallBackMainItem& operator=(const CallBackMainItem&) = delete;
    ~CallBackMainItem() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// What getPrivateImplemetation() answers. GUI thread only.
    ListItemPrivateIfc* getPrivateImpl();

    // What the row has been made with: type and state as they came, the number that is to be called, and the text.
    CallBackType getCallBackType() const { return mType; }
    CallBackState getCallBackState() const { return mState; }
    const std::string& getNumber() const { return mNumber; }
    const std::string& getCallBackText() const { return mCallBackText; }

private:
    struct Ops;

    void create(CallPartyIdentifier* party, std::string text, CallBackType type, CallBackState state);

    CallBackType mType;
    CallBackState mState;
    std::string mNumber;
    std::string mCallBackText;
};

} // namespace DisplayAPI
