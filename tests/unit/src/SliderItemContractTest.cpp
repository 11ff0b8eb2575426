// What a slider promises of each of its operations.

#include "DisplayAPI/SliderItem.h"

#include "support/FacadeContract.h"
#include "support/HardwareVariant.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 3;

struct Sliders : test::WidgetSubject<SliderItem> {
    explicit Sliders(bool hasSide)
    {
        facade = std::make_unique<SliderItem>(&label);
        if (!hasSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call) { return test::sideName("SliderItemPrivate") + "::" + call; }

    test::HardwareVariant production{test::sideName("") == "WP1" ? 8 : 2};
    TranslationInfo label{"Volume", nullptr};
};

const bool SLIDER_ITEM_CHECKED = test::Contract<Sliders>("SliderItemContractTest")
                                     .waits("getMaxValue", 4, "max", "", [](Sliders& s) { return s->getMaxValue(); })
                                     .arrives("getMaxValue()")
                                     .waits("setMaxValue", 5, [](Sliders& s) { s->setMaxValue("10.5"); })
                                     .record({.text1 = "10.5"})
                                     .arrives("setMaxValue(\"10.5\")")
                                     .waits("setMinValue", 6, [](Sliders& s) { s->setMinValue("-3"); })
                                     .record({.text1 = "-3"})
                                     .arrives("setMinValue(\"-3\")")
                                     .waits("getValue", 7, "value", "", [](Sliders& s) { return s->getValue(); })
                                     .arrives("getValue()")
                                     .waits("setValue", 8, [](Sliders& s) { s->setValue("5"); })
                                     .record({.text1 = "5"})
                                     .arrives("setValue(\"5\")")
                                     .waits("setLabel", 9, [](Sliders& s) { s->setLabel("Tone"); })
                                     .record({.text1 = "Tone"})
                                     .arrives("setLabel(\"Tone\")")
                                     .waits("setTranslatedLabel", 10, [](Sliders& s) { s->setLabel(&s.label); })
                                     .record([](Sliders& s) { return Filling{.ptr1 = &s.label}; })
                                     .arrives([](Sliders& s) { return callText("setLabel", &s.label); })
                                     .waits("setInterval", 11, [](Sliders& s) { s->setInterval("0.5"); })
                                     .record({.text1 = "0.5"})
                                     .arrives("setInterval(\"0.5\")")
                                     .waits("setReadOnly", 12, [](Sliders& s) { s->setReadOnly(true); })
                                     .record({.bool1 = true})
                                     .arrives("setReadOnly(true)")
                                     .waits("isReadOnly", 13, true, false, [](Sliders& s) { return s->isReadOnly(); })
                                     .through(&GuiRequestEvent::returnValue4)
                                     .arrives("isReadOnly()")
                                     .completes({-1, 0, 14, 99})
                                     .check();

} // namespace
