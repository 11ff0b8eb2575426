#include "DisplayAPI/CallConnectedItem.h"
#include "DisplayAPI/ConferenceCallItem.h"
#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"
#include "kit/WayBack.h"

using DisplayAPI::CallConnectedItem;
using DisplayAPI::Command;
using DisplayAPI::ConferenceCallItem;
using DisplayAPI::ContextMenu;
using DisplayAPI::List;
using DisplayAPI::MenuCommand;
namespace kit = DisplayAPI::kit;

/// Calls: the right key opens the menu of the first one, and the conference below it.
int main()
{
    kit::Phone phone(examples::phoneSettings());
    MenuCommand hold("Hold", 1), resume("Resume", 2), end("Hang up", 3);
    CallConnectedItem bert(CallConnectedItem::CONNECTED, "Bert", nullptr, false, false);
    CallConnectedItem cleo(CallConnectedItem::CONNECTED, "Cleo", nullptr, false, false);

    List calls(kit::listType(kit::WayBack::NOWHERE));
    auto* const ada = new CallConnectedItem(CallConnectedItem::CONNECTED, "Ada", nullptr, true, true);
    auto* const talk = new ConferenceCallItem(CallConnectedItem::CONFERENCE, "Conference", false);
    ContextMenu& menu = *ada->getContextMenu();

    const kit::Subscription choice(menu, [&](Command* command) {
        if (command == &end)
            return ada->setState(CallConnectedItem::ENDED);
        ada->setState(command == &hold ? CallConnectedItem::HELD : CallConnectedItem::CONNECTED);
        ada->setSecondLineText(command == &hold ? "Held" : "");
    });
    phone.run(calls, [&] {
        menu.setCommands({&hold, &resume, &end});
        calls.append(ada);
        talk->appendCall(&bert, true);
        talk->appendCall(&cleo, false);
        talk->setTitleSuffix("and 1 more");
        calls.append(talk);
    });
}
