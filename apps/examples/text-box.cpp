#include "DisplayAPI/TextBox.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "apps/examples/Example.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::TextBox;

namespace {

/// Says how much has been written, or wipes it out at its end; made before the text box, which keeps its listeners.
class Writer : public CommandListener {
public:
    void commandAction(Command* command, Displayable* shown) override
    {
        auto& box = static_cast<TextBox&>(*shown);
        if (command == TextBox::SELECT_COMMAND())
            box.setTitle(std::to_string(box.getSize()) + " characters");
        else if (command == TextBox::RIGHT_COMMAND())
            box.clear();
    }
};

} // namespace

/// A page of notes, of 200 characters at most.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    Writer writer;
    TextBox box(false);
    box.addCommandListener(&writer);
    phone.run(box, [&] {
        box.setTitle("Notes");
        box.setMaxSize(200);
        std::string text = "Milk, bread and ";
        box.setText(text, true);
    });
}
