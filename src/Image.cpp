#include "DisplayAPI/Image.h"

#include "ImagePrivate.h"
#include "Request.h"

namespace DisplayAPI {

namespace {

enum Request { DESTROY = 1, CREATE_BLANK = 2, WIDTH = 10, HEIGHT = 11 };

} // namespace

Image::Image()
{
    createBlank(0, 0);
}

Image::Image(unsigned int width, unsigned int height)
{
    createBlank(width, height);
}

Image::Image(ImageSkinElement) {}

Image::Image(const Image&) : Widget() {}

Image::Image(const std::string&) {}

Image::Image(const char*, int) {}

Image::~Image()
{
    if (isGuiThread())
        destroy();
    else
        postEvent(DESTROY);
}

void Image::createBlank(unsigned int width, unsigned int height)
{
    if (!isGuiThread())
        postEvent(request(this, CREATE_BLANK, static_cast<int>(width), static_cast<int>(height)));
}

void Image::destroy()
{
    delete mImplementation;
    mImplementation = nullptr;
}

void Image::processGuiRequest(GuiRequestEvent& request)
{
    switch (request.getType()) {
    case DESTROY: destroy(); break;
    case WIDTH: answer<int>(request, mImplementation != nullptr ? mImplementation->width() : 0); break;
    case HEIGHT: answer<int>(request, mImplementation != nullptr ? mImplementation->height() : 0); break;
    default: break;
    }
    signalComplete(request);
}

Image::ImageSkinElement Image::getSkinElement() const
{
    return NO_SKIN_ELEMENT;
}

void Image::setSkinElement(ImageSkinElement) {}

std::string Image::getLocation() const
{
    return {};
}

void Image::setLocation(const std::string&) {}

unsigned int Image::getWidth() const
{
    return 0;
}

unsigned int Image::getHeight() const
{
    return 0;
}

unsigned int Image::getPixelColour(int, int) const
{
    return 0;
}

ImagePrivate* Image::getPrivateImpl() const
{
    return mImplementation;
}

} // namespace DisplayAPI
