#include "apps/deskphone/ShortDialBook.h"

#include <algorithm>

namespace deskphone {

using DisplayAPI::AbbreviatedItem;

const std::array<ShortDial, 8> SHORT_DIALS{{
    {1, AbbreviatedItem::ICON_NUMBER, "Ada Byron", "4711"},
    {2, AbbreviatedItem::ICON_NUMBER, "Frances Allen", "4716"},
    {3, AbbreviatedItem::ICON_NUMBER, "John Backus", "4717"},
    {4, AbbreviatedItem::ICON_NUMBER, "Jean Bartik", "4718"},
    {0, AbbreviatedItem::ICON_WORK, "Radia Perlman", "4720"},
    {0, AbbreviatedItem::ICON_HOME, "Donald Knuth", "4715"},
    {0, AbbreviatedItem::ICON_MOBILE, "Tony Hoare", "4721"},
    {0, AbbreviatedItem::ICON_PERSON, "Zoë Ångström", "030 1000000"},
}};

const ShortDial* shortDialOf(const std::string& number)
{
    const auto* const found = std::ranges::find_if(SHORT_DIALS, [&](const ShortDial& entry) {
        return entry.number > 0 && std::to_string(entry.number) == number;
    });
    return found != SHORT_DIALS.end() ? found : nullptr;
}

} // namespace deskphone
