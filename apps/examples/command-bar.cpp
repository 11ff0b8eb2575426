#include "host/widgets/popup/CommandBar.h"

#include "apps/examples/Example.h"

/// More commands than fit stand one at a time between arrows.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    auto* const bar = new host::CommandBar;
    bar->setCommands({examples::text("Answer"), examples::text("Forward to voicemail"), examples::text("Reject")});
    bar->Resize(host::rectAt(0, 10, host::widthOf(gpPresent->Area()), bar->heightFor(0)));
    bar->setFocus(true);
    examples::show(bar);
    phone.run();
}
