#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"
#include "utilities/TranslatorIfc.h"

using DisplayAPI::Command;
using DisplayAPI::ContextMenu;
using DisplayAPI::List;
using DisplayAPI::MenuCommand;
using DisplayAPI::PhonebookItem;

namespace {

constexpr int TEN_SECONDS = 10'000;

/// The text of the row that goes back, in a telephone that knows one language.
class English : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return key; }
};

} // namespace

/// A list of people: OK opens a menu of what can be done with one.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    MenuCommand call("Call", static_cast<PhonebookItem::IconType>(1), 1);
    MenuCommand write("Write", static_cast<PhonebookItem::IconType>(4), 2);
    MenuCommand remove("Delete", 3);
    English english;
    List people(0);
    ContextMenu menu(true);
    menu.setBackTranslator(&english);
    menu.setCommands({&call, &write, &remove});
    menu.setDefaultCommand(&write);
    menu.setAutoHideTimeout(TEN_SECONDS);

    DisplayAPI::kit::Subscription open(people, [&](Command*) { menu.show(); });
    DisplayAPI::kit::Subscription choice(menu, [&](Command* command) { people.setTitle(command->getText()); });
    phone.run(people, [&] {
        people.setTitle("People");
        people.append("Ada");
        people.append("Bert");
    });
}
