#include "apps/examples/Example.h"
#include "host/widgets/edit/EditLine.h"
#include "host/widgets/edit/EditPage.h"
#include "host/widgets/form/ScrollingColumn.h"

#include <utility>

namespace {

using host::EditKind;

constexpr std::pair<EditKind, const char*> KINDS[] = {
    {EditKind::NAME, "Name"},         {EditKind::PHONE_NUMBER, "Telephone"}, {EditKind::NUMBER, "Number"},
    {EditKind::PASSWORD, "Password"}, {EditKind::DATE, "YYYY-MM-DD"},        {EditKind::TIME, "HH:MM"},
    {EditKind::IP_ADDRESS, "Address"}};

} // namespace

/// A line of each kind, and a page below them: hash changes the mode, star offers symbols, left moves the cursor and
/// takes characters away while it is held.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    auto* const column = new host::ScrollingColumn;
    column->Resize(gpPresent->Area());
    for (const auto& [kind, hint] : KINDS) {
        auto* const line = new host::EditLine;
        line->setKind(kind);
        line->setHint(examples::text(hint));
        column->append(line);
    }
    auto* const page = new host::EditPage;
    page->setKind(EditKind::TEXT);
    page->setHint(examples::text("Notes"));
    column->append(page);
    column->setFocus(true);
    examples::show(column);
    phone.run();
}
