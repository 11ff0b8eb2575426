#include "apps/deskphone/MainMenu.h"

#include "apps/deskphone/Place.h"
#include "apps/deskphone/Telephone.h"
#include "utilities/TranslationInfo.h"

namespace deskphone {

MainMenu::Item::Item(Telephone& telephone, const Entry& entry)
    : command(new TranslationInfo(entry.text, &telephone.languages()), 0),
      shortText(&telephone.languages(), entry.shortText), target(entry.target)
{
}

MainMenu::MainMenu(Telephone& telephone, const std::vector<Entry>& entries)
{
    for (const Entry& entry : entries)
        mItems.emplace_back(telephone, entry);
}

std::vector<DisplayAPI::MenuCommand*> MainMenu::commands()
{
    std::vector<DisplayAPI::MenuCommand*> all;
    for (Item& item : mItems)
        all.push_back(&item.command);
    return all;
}

std::vector<std::string> MainMenu::shortTexts() const
{
    std::vector<std::string> all;
    for (const Item& item : mItems)
        all.push_back(item.shortText.get());
    return all;
}

void MainMenu::choose(const DisplayAPI::Command* command)
{
    for (const Item& item : mItems)
        if (&item.command == command)
            item.target->open();
}

void MainMenu::chooseAt(std::size_t index)
{
    if (index < mItems.size())
        mItems[index].target->open();
}

} // namespace deskphone
