#pragma once

#include "DisplayAPI/Item.h"

namespace DisplayAPI {

class Image;

/// An item that would show a picture. This telephone shows none: it ignores what it is given, owns none of it, and
/// answers with nothing. Runs on the calling thread.
class DISPLAYAPI_EXPORT ImageItem : public Item {
public:
    ImageItem(const std::string& label, Image* image, Image* alternative);
    ImageItem(const ImageItem&) = delete;
    ImageItem& operator=(const ImageItem&) = delete;
    ~ImageItem() override;

    /// Does nothing and signals nothing: post no requests to an ImageItem.
    void processGuiRequest(GuiRequestEvent& request) override;

    void setReadOnly(bool readOnly) override;
    bool isReadOnly() override;
    ItemPrivateIfc* getPrivateImpl() override;
    void localeChanged(std::string locale) override;

    void setAltText(const std::string& text);
    std::string getAltText() const;
    void setImage(const Image* image);

    /// One blank image, the same for every item of the process; not the caller's.
    Image* getImage() const;

    void setInformAppOnOk(bool on);
    void setContextMenuArrow(bool on);
    bool hasContextMenuArrow() const;

private:
    ItemPrivateIfc* mImplementation = nullptr;
    [[maybe_unused]] void* mPointer = nullptr;
};

} // namespace DisplayAPI
