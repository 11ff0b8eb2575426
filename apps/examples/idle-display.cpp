#include "DisplayAPI/IdleDisplay.h"
#include "DisplayAPI/MenuCommand.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

using DisplayAPI::Command;
using DisplayAPI::IdleDisplay;
using DisplayAPI::MenuCommand;

/// A telephone that waits: OK opens the menu, and a digit the dialer. "Read all" and "Quiet" take away what waits.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    MenuCommand read("Read all", 1), quiet("Quiet", 2);
    IdleDisplay idle(APP_PICTURES "/logo.png");

    DisplayAPI::kit::Subscription choice(idle, [&](Command* command) {
        if (command == &read)
            idle.setMessages(0);
        if (command == &quiet)
            idle.clearSystemMessages();
    });
    phone.run(idle, [&] {
        idle.setDisplayIdUnicode("Reception");
        idle.setUseDisplayId(true);
        idle.setBrandingText("Two Peaks");
        idle.setMessages(57);
        idle.addSystemMessage("Lunch is ready");
        idle.addSystemMessage("Rain at five");
        idle.setCommands({&read, &quiet});
        idle.setDefaultMenuCommand(&quiet);
        idle.showDiallerOnInitialKeyEvent(true);
    });
}
