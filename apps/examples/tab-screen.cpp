#include "DisplayAPI/List.h"
#include "DisplayAPI/TabScreen.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::TabScreen;

/// Two lists of calls, one behind the other: up goes to the tabs, left and right change the list, down goes into it.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    List all(0), missed(0);
    TabScreen calls(TabScreen::CALLS, true);
    calls.addTab("All", &all, false);
    calls.addTab("Missed", &missed, false);

    DisplayAPI::kit::Subscription back(calls, [&](Command* command) {
        if (command == TabScreen::BACK_COMMAND())
            calls.setTitleForTabAtIndex(0, "The end");
    });
    DisplayAPI::kit::Subscription call(all, [&](Command*) { calls.setTitleForTabAtIndex(0, "Calling"); });
    phone.run(calls, [&] {
        for (const char* name : {"Ada", "Bert", "Cleo"})
            all.append(name);
        missed.append("Dora");
    });
}
