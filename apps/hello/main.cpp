#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "host/Phone.h"
#include "kit/Phone.h"
#include "kit/Subscription.h"
#include "kit/WayBack.h"

using namespace DisplayAPI;

int main()
{
    kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});

    List list(kit::listType(kit::WayBack::NOWHERE));
    const kit::Subscription greeter(list, [&list](Command* command) {
        if (command == List::SELECT_COMMAND())
            list.setTitle("Hello, " + list.getSelected()->getText() + "!");
    });

    phone.run(list, [&list] {
        list.setTitle("Whom shall I greet?");
        for (const char* name : {"Ada", "Αλέξανδρος", "Zoë", "Мария", "日本"})
            list.append(name);
    });
}
