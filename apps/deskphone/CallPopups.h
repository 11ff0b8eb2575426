#pragma once

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupCall.h"
#include "apps/deskphone/Calls.h"
#include "apps/deskphone/Ear.h"
#include "apps/deskphone/TransferQuestions.h"

#include <list>

namespace deskphone {

class Telephone;

/// A popup over whatever is on the screen for each call that rings, the latest on top, until it is answered, rejected
/// or gives up. Make and delete it on the GUI thread.
class CallPopups {
public:
    CallPopups(Telephone& telephone, Calls& calls, TransferQuestions& transfers);

    /// What the user chooses is not heard after this. Not on the GUI thread.
    void stopListening() { mChoice.stop(); }

private:
    struct Ringing {
        /// Says the line where `isOneOfSeveral`.
        Ringing(Telephone& telephone, const PhoneCall& call, bool isOneOfSeveral);

        exchange::CallId call;
        DisplayAPI::MenuCommand answer;
        DisplayAPI::MenuCommand reject;
        DisplayAPI::MenuCommand deflect;
        DisplayAPI::PopupCall popup;
    };

    void refresh();
    void ring(const PhoneCall& call);
    void bringBack();
    void chosen(const DisplayAPI::Command* command);

    Telephone& mTelephone;
    Calls& mCalls;
    TransferQuestions& mTransfers;
    Ear mChoice;
    std::list<Ringing> mRinging;
};

} // namespace deskphone
