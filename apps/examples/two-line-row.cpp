#include "apps/examples/TwoLineRow.h"

#include "apps/examples/Example.h"

/// Rows of two lines among rows of text: star chooses one, hash hides and shows its second line.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    KestrelListBoxItem line(examples::text("Line 1"));
    examples::TwoLineRow ada(examples::text("Ada"), examples::text("+44 20 1815"));
    examples::TwoLineRow zoe(examples::text("Zoë"), examples::text("+31 20 1995"));
    KestrelListBox* const list = examples::newList();
    for (KestrelListBoxItem* row :
         {&line, static_cast<KestrelListBoxItem*>(&ada), static_cast<KestrelListBoxItem*>(&zoe)})
        list->append(row);
    examples::show(list);
    phone.run();
}
