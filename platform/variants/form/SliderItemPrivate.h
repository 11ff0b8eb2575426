#pragma once

#include "DisplayAPI/SliderItemPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a slider, whatever the panel.
class DISPLAYAPI_EXPORT SliderItemSide : public SliderItemPrivateIfc {
public:
    ~SliderItemSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void localeChanged(std::string locale) override;

    std::string getMaxValue() override;
    void setMaxValue(const std::string& value) override;
    void setMinValue(const std::string& value) override;
    std::string getValue() override;
    void setValue(const std::string& value) override;
    void setLabel(const std::string& label) override;
    void setLabel(TranslationInfo* label) override;
    void setInterval(const std::string& value) override;
    void setReadOnly(bool on) override;
    bool isReadOnly() override;

protected:
    SliderItemSide(TranslatedText label, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The slider of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT SliderItemPrivate : public SliderItemSide {
public:
    explicit SliderItemPrivate(const std::string& label);
    explicit SliderItemPrivate(TranslationInfo* label);
};

/// The slider of the 208 x 42 panel.
class DISPLAYAPI_EXPORT SliderItemPrivateWP1 : public SliderItemSide {
public:
    explicit SliderItemPrivateWP1(const std::string& label);
    explicit SliderItemPrivateWP1(TranslationInfo* label);
};

} // namespace DisplayAPI
