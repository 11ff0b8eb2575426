#include "apps/examples/Example.h"
#include "widgets/KestrelListBoxItem.h"

#include <deque>

namespace {

/// Says in the title which row was chosen.
class Choice : public PegThing {
public:
    explicit Choice(KestrelListBox& list) : mList(list) {}

    int Message(const PegMessage& message) override
    {
        if (message.wType == PM_CLICKED)
            mList.setTitle(mList.itemAt(mList.currentRow())->DataGet());
        return 0;
    }

private:
    KestrelListBox& mList;
};

} // namespace

/// More rows than fit: up and down go through them, OK chooses one.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    std::deque<KestrelListBoxItem> rows; // not the list's
    KestrelListBox* const list = examples::newList();
    for (const char* name : {"Ada", "Boris", "Chloé", "Dörte", "Émile", "Fadi", "Zoë"})
        list->append(&rows.emplace_back(examples::text(name)));
    list->setTitle(examples::text("Whom to call?"));
    Choice choice(*list);
    list->setMessageTarget(&choice);
    examples::show(list);
    phone.run();
}
