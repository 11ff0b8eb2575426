#include "DisplayAPI/KVXList.h"
#include "DisplayAPI/ListItem.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

using DisplayAPI::Command;
using DisplayAPI::KVXList;

/// Services under the lines of a display: OK says which one has been chosen, left takes the line away.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    KVXList services;
    DisplayAPI::kit::Subscription user(services, [&](Command* command) {
        if (command == KVXList::SELECT_COMMAND())
            services.setDisplayText(0, services.getSelected()->getText() + " started");
        else if (command == KVXList::BACK_COMMAND())
            services.setDisplayText(0, "");
    });
    phone.run(services, [&] {
        services.setDisplayText(0, "Choose a service");
        for (const char* service : {"Account", "Balance", "Calls", "Directory", "Exchange", "Forwarding", "Groups"})
            services.append(service);
    });
}
