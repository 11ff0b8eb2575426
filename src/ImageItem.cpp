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
    // Never destroyed: its destructor would wait for a GUI thread that has ended.
    static Image* const blank = new Image;
    return blank;
}

void ImageItem::setInformAppOnOk(bool) {}

void ImageItem::setContextMenuArrow(bool) {}

bool ImageItem::hasContextMenuArrow() const
{
    return false;
}

} // namespace DisplayAPI
