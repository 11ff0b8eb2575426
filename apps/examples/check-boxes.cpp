#include "DisplayAPI/CheckBoxItem.h"

#include "DisplayAPI/List.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

using DisplayAPI::CheckBoxItem;
using DisplayAPI::Command;
using DisplayAPI::List;

/// A list of days: OK checks one, and unchecks it.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    List days(0);
    DisplayAPI::kit::Subscription choice(days, [&days](Command* command) {
        if (command != List::SELECT_COMMAND())
            return;
        auto& day = static_cast<CheckBoxItem&>(*days.getSelected());
        day.swapChecked();
        days.setTitle(day.getText() + (day.isChecked() ? " is chosen" : " is not"));
    });
    phone.run(days, [&days] {
        days.setTitle("Days");
        for (const char* day : {"Monday", "Tuesday", "Wednesday"})
            days.append(new CheckBoxItem(day, nullptr, false, false));
    });
}
