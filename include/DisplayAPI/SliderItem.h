#pragma once

#include "DisplayAPI/Item.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class SliderItemPrivateIfc;

/// An item of a form that shows a value between two others, and moves it by an interval: left and right. 0 to 100 by 1
/// at first.
///
/// Values are numbers as text: a sign, digits, and digits behind a point, up to nine before it and six behind. The
/// value keeps the decimals that it is given, and after a step as many as it or the interval has. What is out of range
/// becomes the nearest that is in it; what is no number is ignored, with a line in the log, and so is an interval that
/// is not above 0. A minimum above the maximum counts as the maximum.
///
/// Threads: safe from any thread. Off the GUI thread everything waits. A request that nobody knows is completed without
/// effect.
/// Ownership: as for Form; an item owns its GUI-thread side. A translation is not owned and has to live while it is
/// shown; null is an empty text.
class DISPLAYAPI_EXPORT SliderItem : public Item {
public:
    /// On the GUI thread always the side of the 240 x 128 panel.
    explicit SliderItem(std::string label);
    explicit SliderItem(TranslationInfo* label);

    /// Adopts a GUI-thread side made elsewhere, or starts without one.
    explicit SliderItem(SliderItemPrivateIfc* implementation);

    SliderItem(const SliderItem&) = delete;
    SliderItem& operator=(const SliderItem&) = delete;
    ~SliderItem() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// Whether the user can only read it.
    void setReadOnly(bool readOnly) override;
    bool isReadOnly() override;

    /// GUI thread only.
    ItemPrivateIfc* getPrivateImpl() override;

    /// Does nothing: its form tells the GUI-thread side.
    void localeChanged(std::string locale) override;

    std::string getMaxValue();
    void setMaxValue(const std::string& value);
    void setMinValue(const std::string& value);

    /// Empty where nobody answers.
    std::string getValue();
    void setValue(const std::string& value);

    void setLabel(const std::string& label);
    void setLabel(TranslationInfo* label);
    void setInterval(const std::string& value);

private:
    struct Ops;

    void create(const std::string& label);
    void createTranslated(TranslationInfo* label);
    void destroy();

    SliderItemPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
