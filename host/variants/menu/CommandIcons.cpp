#include "host/variants/menu/CommandIcons.h"

#include "DisplayAPI/MenuCommand.h"

#include <array>
#include <cstddef>

namespace host {

namespace {

/// By type; a type that has no name in the phonebook has a symbol as well.
constexpr std::array SYMBOLS{&icons::HANDSET, &icons::HOUSE, &icons::MOBILE, &icons::LETTER, &icons::PERSON};

} // namespace

const Icon* iconOf(const DisplayAPI::MenuCommand& command)
{
    using DisplayAPI::PhonebookItem;
    const int type = command.getIconType();
    if (type == PhonebookItem::ICON_IMAGE || !command.getImagePath().empty())
        return &icons::PICTURE;
    if (type == PhonebookItem::ICON_NONE)
        return nullptr;
    const auto place = static_cast<std::size_t>(type) - 1;
    return place < SYMBOLS.size() ? SYMBOLS[place] : &icons::DOT;
}

} // namespace host
