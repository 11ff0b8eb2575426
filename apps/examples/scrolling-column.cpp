#include "host/widgets/form/ScrollingColumn.h"

#include "apps/examples/Example.h"
#include "host/widgets/edit/EditLine.h"

/// Twenty lines to fill in: up and down go from one to the next.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    auto* const column = new host::ScrollingColumn;
    column->Resize(gpPresent->Area());
    for (int number = 1; number <= 20; ++number) {
        auto* const line = new host::EditLine;
        line->setText(examples::text(("Line " + std::to_string(number)).c_str()));
        column->append(line);
    }
    column->setFocus(true);
    examples::show(column);
    phone.run();
}
