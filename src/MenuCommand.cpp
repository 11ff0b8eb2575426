#include "DisplayAPI/MenuCommand.h"

namespace DisplayAPI {

namespace {

PhonebookItem::IconType iconFor(const Image* image)
{
    return image != nullptr ? PhonebookItem::ICON_IMAGE : PhonebookItem::ICON_NONE;
}

std::uint32_t shortened(unsigned long id)
{
    return static_cast<std::uint32_t>(id);
}

} // namespace

MenuCommand::MenuCommand(TranslationInfo* label, Image* image, unsigned long id)
    : Command(label, ITEM), mIconType(iconFor(image)), mImage(image), mId(shortened(id))
{
}

MenuCommand::MenuCommand(const std::string& text, Image* image, unsigned long id)
    : Command(text, ITEM), mIconType(iconFor(image)), mImage(image), mId(shortened(id))
{
}

MenuCommand::MenuCommand(TranslationInfo* label, PhonebookItem::IconType icon, unsigned long id)
    : Command(label, ITEM), mIconType(icon), mImage(nullptr), mId(shortened(id))
{
}

MenuCommand::MenuCommand(const std::string& text, PhonebookItem::IconType icon, unsigned long id)
    : Command(text, ITEM), mIconType(icon), mImage(nullptr), mId(shortened(id))
{
}

MenuCommand::MenuCommand(TranslationInfo* label, unsigned long id) : MenuCommand(label, PhonebookItem::ICON_NONE, id) {}

MenuCommand::MenuCommand(const std::string& text, unsigned long id) : MenuCommand(text, PhonebookItem::ICON_NONE, id) {}

MenuCommand::MenuCommand(const std::string& text, std::string& imagePath, unsigned long id)
    : Command(text, ITEM), mIconType(PhonebookItem::ICON_NONE), mImage(nullptr), mId(shortened(id)),
      mImagePath(imagePath)
{
}

} // namespace DisplayAPI
