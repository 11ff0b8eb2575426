#include "apps/deskphone/Menu.h"

#include "DisplayAPI/List.h"

namespace deskphone {

void Menu::build()
{
    for (const Entry& entry : mEntries)
        append(text(entry.text));
}

void Menu::chosen(int row)
{
    mEntries.at(static_cast<std::size_t>(row)).target->open();
}

} // namespace deskphone
