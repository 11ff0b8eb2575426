#include "host/variants/menu/CommandIcons.h"

#include "DisplayAPI/MenuCommand.h"
#include "host/widgets/telephony/PhonebookIcons.h"

namespace host {

/// A type that has no name in the phonebook has a symbol as well.
const Icon* iconOf(const DisplayAPI::MenuCommand& command)
{
    using DisplayAPI::PhonebookItem;
    const int type = command.getIconType();
    if (!command.getImagePath().empty())
        return &icons::PICTURE;
    if (type == PhonebookItem::ICON_NONE)
        return nullptr;
    const Icon* const icon = phonebookIcon(type);
    return icon != nullptr ? icon : &icons::DOT;
}

} // namespace host
