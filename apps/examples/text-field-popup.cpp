#include "DisplayAPI/PopupTextField.h"

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "apps/examples/Example.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Display;
using DisplayAPI::Displayable;
using DisplayAPI::List;
using DisplayAPI::MenuCommand;
using DisplayAPI::PopupTextField;
using DisplayAPI::TextField;

namespace {

/// Opens the popup over the list with OK, and takes what has been typed.
class Renaming : public CommandListener {
public:
    Renaming(List& list, TextField& name) : mList(list), mPopup(&name, true)
    {
        mPopup.addCommand(&mTake);
        mPopup.addCommand(&mWipe);
        mPopup.addCommandListener(this);
    }

    void commandAction(Command* command, Displayable*) override
    {
        if (command == List::SELECT_COMMAND())
            Display::latest()->setCurrent(&mPopup);
        else if (command == &mWipe)
            mPopup.clearText();
        else if (command == &mTake)
            mPopup.dismiss();
        else if (command == PopupTextField::HIDDEN_COMMAND())
            mList.setTitle("Called " + mPopup.getText());
    }

private:
    List& mList;
    MenuCommand mTake{"Take", 1}, mWipe{"Wipe", 2};
    PopupTextField mPopup;
};

} // namespace

/// A name to change, over a list.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    List list(0);
    TextField name("Name", TextField::ICON_NONE, "Ada", TextField::NAME);
    Renaming renaming(list, name);
    list.addCommandListener(&renaming);
    phone.run(list, [&] {
        list.setTitle("Telephone");
        list.append("Rename");
    });
}
