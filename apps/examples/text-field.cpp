#include "DisplayAPI/TextField.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/Form.h"
#include "apps/examples/Example.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::Form;
using DisplayAPI::TextField;

namespace {

/// Copies from one field to another by the form's clipboard; made before the form, which keeps its listeners.
class Clipboard : public CommandListener {
public:
    Clipboard(const Command& copy, const Command& paste) : mCopy(copy), mPaste(paste) {}

    void commandAction(Command* command, Displayable* shown) override
    {
        auto& form = static_cast<Form&>(*shown);
        auto* const field = dynamic_cast<TextField*>(form.getSelected());
        if (field == nullptr)
            return;
        if (command == &mCopy)
            form.setClipboard(field->getString());
        else if (command == &mPaste)
            field->setString(form.getClipboard());
        else if (command == Form::CLIPBOARD_CHANGED_COMMAND())
            form.setTitle("Copied");
        else if (command == Form::OK_COMMAND())
            form.setTitle("Hello " + field->getString());
    }

private:
    const Command &mCopy, &mPaste;
};

} // namespace

/// A contact to type, and soft keys that copy and paste.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    Command copy("Copy", Command::ITEM), paste("Paste", Command::ITEM);
    Clipboard clipboard(copy, paste);
    Form form(Form::SHORT_LABELS);
    form.addCommandListener(&clipboard);
    phone.run(form, [&] {
        form.setTitle("Contact");
        form.addCommand(&copy);
        form.addCommand(&paste);
        auto* const name = new TextField("Name", TextField::ICON_PERSON, "", TextField::NAME);
        name->setMaxFieldLength(20);
        name->setInformAppOnOk(true);
        form.append(name);
        form.append(new TextField("Number", TextField::ICON_HOME, "", TextField::TELEPHONE_NUMBER));
        form.append(new TextField("PIN", TextField::ICON_NONE, "", TextField::PASSWORD));
    });
}
