#include "DisplayAPI/SearchList.h"

#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/ListItem.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

#include <array>

using DisplayAPI::Command;
using DisplayAPI::SearchList;

namespace {

constexpr std::array NAMES{"Ada", "Aladin", "Alexander", "Beatrix", "Cem", "Zoë", "Zuzana"};

/// Puts the names into the list that begin as the search text does.
class Finder : public DisplayAPI::ItemStateListener {
public:
    explicit Finder(SearchList& list) : mList(list) {}

    void itemStateChanged(DisplayAPI::Item*) override { find(); }

    void find()
    {
        const std::string wanted = mList.getSearchText();
        int matches = 0;
        mList.clear();
        for (const std::string name : NAMES) {
            if (!name.starts_with(wanted))
                continue;
            mList.append(name);
            ++matches;
        }
        mList.setSearchCountIndicator(wanted.empty() ? -1 : matches);
    }

private:
    SearchList& mList;
};

} // namespace

/// Names that are found as one types. OK on one of them has it above the list.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    SearchList list;
    Finder finder(list);
    const DisplayAPI::kit::Subscription choice(list, [&](Command* command) {
        DisplayAPI::ListItem* const chosen = list.getSelected();
        if (command != SearchList::SELECT_COMMAND() || chosen == nullptr)
            return;
        list.dismissSearchPopup();
        list.setTitle("Hello, " + chosen->getText());
    });
    phone.run(list, [&] {
        list.addItemStateListener(&finder);
        list.setTitle("Contacts");
        list.setCountIndicator(static_cast<int>(NAMES.size()));
        finder.find();
    });
}
