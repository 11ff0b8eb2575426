#include "DisplayAPI/ImageItem.h"

#include "DisplayAPI/Image.h"
#include "DisplayAPI/ItemPrivateIfc.h"

namespace DisplayAPI {

ImageItem::ImageItem(const std::string&, Image*, Image*) {}

ImageItem::~ImageItem()
{
    delete mImplementation;
}

void ImageItem::processGuiRequest(GuiRequestEvent&) {}

void ImageItem::setReadOnly(bool) {}

bool ImageItem::isReadOnly()
{
    return false;
}

ItemPrivateIfc* ImageItem::getPrivateImpl()
{
    return mImplementation;
}

void ImageItem::localeChanged(std::string) {}

void ImageItem::setAltText(const std::string&) {}

std::string ImageItem::getAltText() const
{
    return {};
}

void ImageItem::setImage(const Image*) {}

Image* ImageItem::getImage() const
{
    // Made without a request, so that no thread waits for it; never destroyed, because that would post one.
    static Image* const blank = new Image(Image::NO_SKIN_ELEMENT);
    return blank;
}

void ImageItem::setInformAppOnOk(bool) {}

void ImageItem::setContextMenuArrow(bool) {}

bool ImageItem::hasContextMenuArrow() const
{
    return false;
}

} // namespace DisplayAPI
