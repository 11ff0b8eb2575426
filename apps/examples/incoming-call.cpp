#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupCall.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"
#include "utilities/CallPartyIdentifier.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::List;
using DisplayAPI::MenuCommand;
using DisplayAPI::PopupCall;

namespace {

/// Hears what is done with the call. A call popup keeps its listeners, so this one is made before it.
class Choice : public CommandListener {
public:
    void commandAction(Command* command, Displayable* displayable) override
    {
        auto& popup = static_cast<PopupCall&>(*displayable);
        if (command == &reject)
            return popup.dismiss();
        popup.setState(PopupCall::CONNECTED, PopupCall::NORMAL);
        popup.setAuxText("Connected");
        popup.setCommands({&reject});
    }

    MenuCommand answer{"Answer", 1};
    MenuCommand reject{"Hang up", 2};
};

} // namespace

/// A list of people, of whom OK makes one call.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    List people(0);
    Choice choice;
    PopupCall popup;
    popup.addCommandListener(&choice);

    DisplayAPI::kit::Subscription call(people, [&](Command*) {
        CallPartyIdentifier caller(people.getSelected()->getText(), "4711"), meant("Office", "4710");
        popup.setPopupCallDetails(caller, &meant, DisplayAPI::FORWARDED_NO_ANSWER, "", nullptr);
        popup.setState(PopupCall::INCOMING, PopupCall::URGENT);
        popup.setCommands({&choice.answer, &choice.reject});
        phone.display().setCurrent(&popup);
    });
    phone.run(people, [&] {
        people.setTitle("People");
        people.append("Ada");
        people.append("Bert");
    });
}
