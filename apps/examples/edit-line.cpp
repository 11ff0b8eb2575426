#include "host/widgets/edit/EditLine.h"

#include "apps/examples/Example.h"

/// A line for names: hash changes the mode, left moves the cursor.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    auto* const line = new host::EditLine;
    line->setModes({host::InputMode::CAPITALISED, host::InputMode::LOWER, host::InputMode::NUMBERS});
    line->Resize(host::rectAt(0, 10, host::widthOf(gpPresent->Area()), line->heightFor(0)));
    line->setFocus(true);
    examples::show(line);
    phone.run();
}
