#pragma once

#include "DisplayAPI/Command.h"
#include "DisplayAPI/PhonebookItem.h"

#include <cstdint>

namespace DisplayAPI {

class Image;

/// A command shown as an entry of a menu, with an id of the application's, of which 32 bits are kept, and an icon, a
/// picture, or the path of one.
///
/// Threads and ownership as for Command; the image is not owned and may be null, the path is copied.
class DISPLAYAPI_EXPORT MenuCommand : public Command {
public:
    /// With an image the icon is PhonebookItem::ICON_IMAGE, without one there is none.
    MenuCommand(TranslationInfo* label, Image* image, unsigned long id);
    MenuCommand(const std::string& text, Image* image, unsigned long id);

    MenuCommand(TranslationInfo* label, PhonebookItem::IconType icon, unsigned long id);
    MenuCommand(const std::string& text, PhonebookItem::IconType icon, unsigned long id);

    MenuCommand(TranslationInfo* label, unsigned long id);
    MenuCommand(const std::string& text, unsigned long id);

    MenuCommand(const std::string& text, std::string& imagePath, unsigned long id);

    MenuCommand(const MenuCommand& other) = default;
    MenuCommand& operator=(const MenuCommand& other) = default;

    unsigned int getId() const { return mId; }
    PhonebookItem::IconType getIconType() const { return mIconType; }
    Image* getImage() const { return mImage; }
    std::string getImagePath() const { return mImagePath; }

private:
    PhonebookItem::IconType mIconType;
    Image* mImage;
    std::uint32_t mId;
    std::string mImagePath;
    [[maybe_unused]] bool mFlag = false;
};

} // namespace DisplayAPI
