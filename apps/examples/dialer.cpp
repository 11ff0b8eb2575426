#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "apps/examples/Example.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::List;
using DisplayAPI::MenuCommand;
using DisplayAPI::PopupDialer;

namespace {

/// Hears the dialer's commands. A dialer keeps its listeners, so this one is made before it.
class Choice : public CommandListener {
public:
    explicit Choice(List& people) : mPeople(people) {}

    void commandAction(Command* command, Displayable* displayable) override
    {
        auto& dialer = static_cast<PopupDialer&>(*displayable);
        if (command == &clear)
            return dialer.setLineEditText("");
        if (command != &dial)
            return;
        mPeople.setTitle("Calling " + dialer.getLineEditText());
        dialer.dismiss();
    }

    MenuCommand dial{"Dial", 1};
    MenuCommand clear{"Clear", 2};

private:
    List& mPeople;
};

} // namespace

/// A list of people, on which a digit opens the dialer. "Dial" says whom it would call.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    List people(0);
    Choice choice(people);
    PopupDialer dialer(true, 3);
    dialer.setLine1PrefixText("To:");
    dialer.addCommand(&choice.dial);
    dialer.addCommand(&choice.clear);
    dialer.addCommandListener(&choice);
    people.addDialer(&dialer);
    people.showDiallerOnInitialKeyEvent(true);

    phone.run(people, [&] {
        people.setTitle("People");
        people.append("Ada");
        people.append("Bert");
    });
}
