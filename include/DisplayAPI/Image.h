#pragma once

#include "DisplayAPI/Widget.h"

#include <string>

namespace DisplayAPI {

class ImagePrivate;

/// A picture as other classes accept it. This telephone shows none: it keeps nothing of what it is given, and every
/// question is answered with nothing.
///
/// Off the GUI thread Image(), Image(width, height) and the destructor wait; everything else runs on the calling
/// thread.
class DISPLAYAPI_EXPORT Image : public Widget {
public:
    /// A picture that comes with the telephone; any value travels through.
    enum ImageSkinElement : int { NO_SKIN_ELEMENT = 0 };

    Image();
    Image(unsigned int width, unsigned int height);
    explicit Image(ImageSkinElement element);
    Image(const Image& other);
    Image& operator=(const Image&) = delete;
    explicit Image(const std::string& location);
    Image(const char* data, int length);
    ~Image() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    ImageSkinElement getSkinElement() const;
    void setSkinElement(ImageSkinElement element);
    std::string getLocation() const;
    void setLocation(const std::string& location);
    unsigned int getWidth() const;
    unsigned int getHeight() const;
    unsigned int getPixelColour(int x, int y) const;

    /// Null.
    ImagePrivate* getPrivateImpl() const;

private:
    struct Ops;

    void createBlank(unsigned int width, unsigned int height);
    void destroy();
    int width() const;
    int height() const;

    ImagePrivate* mImplementation = nullptr;
};

} // namespace DisplayAPI
