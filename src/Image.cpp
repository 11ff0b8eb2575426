#include "DisplayAPI/Image.h"

#include "ImagePrivate.h"
#include "Operations.h"

namespace DisplayAPI {

namespace {

enum Request { DESTROY = 1, CREATE_BLANK = 2, WIDTH = 10, HEIGHT = 11 };

} // namespace

struct Image::Ops : Operations<Waits<DESTROY, &Image::destroy>, Waits<CREATE_BLANK, &Image::createBlank>,
                               Waits<WIDTH, &Image::width>, Waits<HEIGHT, &Image::height>> {};

Image::Image() : Image(0u, 0u) {}

Image::Image(unsigned int width, unsigned int height)
{
    Ops::call<CREATE_BLANK>(*this, mImplementation, width, height);
}

Image::Image(ImageSkinElement) {}

Image::Image(const Image&) : Widget() {}

Image::Image(const std::string&) {}

Image::Image(const char*, int) {}

Image::~Image()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

/// This telephone makes no pictures.
void Image::createBlank(unsigned int, unsigned int) {}

void Image::destroy()
{
    delete mImplementation;
    mImplementation = nullptr;
}

int Image::width() const
{
    return mImplementation != nullptr ? mImplementation->width() : 0;
}

int Image::height() const
{
    return mImplementation != nullptr ? mImplementation->height() : 0;
}

void Image::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
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
