#include "DisplayAPI/Form.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/SelectionField.h"
#include "DisplayAPI/SliderItem.h"
#include "apps/examples/Example.h"

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::Form;
using DisplayAPI::MenuCommand;
using DisplayAPI::SelectionField;
using DisplayAPI::SliderItem;

namespace {

/// Hears of what the user does on a form, which keeps its listeners: this one is made before it.
class Keeper : public CommandListener {
public:
    explicit Keeper(const Command& save) : mSave(save) {}

    void commandAction(Command* command, Displayable* shown) override
    {
        auto& form = static_cast<Form&>(*shown);
        if (command == &mSave)
            form.setTitle("Saved");
        else if (command == Form::SELECTION_CHANGED_COMMAND())
            form.setTitle("Changed");
    }

private:
    const Command& mSave;
};

} // namespace

/// A tone to choose and loudnesses to set, and a soft key that keeps them.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    Command save("Save", Command::SAVE);
    MenuCommand bells("Bells", 1), birds("Birds", 2);
    Keeper keeper(save);
    Form form(Form::HALF_AND_HALF);
    form.addCommandListener(&keeper);
    phone.run(form, [&] {
        form.setTitle("Loudness");
        form.addCommand(&save);
        auto* const tone = new SelectionField("Tone", &bells, &form, false);
        tone->appendSelection(&bells);
        tone->appendSelection(&birds);
        form.append(tone);
        for (const char* label : {"Ringing", "Keys"}) {
            auto* const slider = new SliderItem(label);
            slider->setInterval("10");
            slider->setValue("50");
            form.append(slider);
        }
    });
}
