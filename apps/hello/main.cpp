#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "host/Phone.h"

#include <thread>

using namespace DisplayAPI;

/// Answers the row that the user chooses. Called on a thread of the library's.
class Greeter : public CommandListener {
    void commandAction(Command* command, Displayable* screen) override
    {
        auto* list = static_cast<List*>(screen);
        if (command == List::SELECT_COMMAND())
            list->setTitle("Hello, " + list->getSelected()->getText() + "!");
    }
};

int main()
{
    Widget::setGuiThreadId();
    Display display(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);

    Greeter greeter;
    List list(2);
    list.addCommandListener(&greeter);
    std::jthread builder([&list] {
        list.setTitle("Whom shall I greet?");
        for (const char* name : {"Ada", "Αλέξανδρος", "Zoë", "Мария", "日本"})
            list.append(name);
    });

    display.show();
    display.setCurrent(&list);
    display.exec();

    display.setCurrent(nullptr);
    return 0;
}
