// What a check-box field promises of each of its operations: nothing is shown, kept or checked.

#include "DisplayAPI/CheckBoxField.h"

#include "DisplayAPI/Image.h"
#include "support/FacadeContract.h"

using namespace DisplayAPI;

namespace {

struct Boxes : test::WidgetSubject<CheckBoxField> {
    static constexpr bool CAN_BE_BARE = false;

    explicit Boxes(bool) { facade = std::make_unique<CheckBoxField>("Days", "Monday", &image); }

    Image image{Image::NO_SKIN_ELEMENT};
};

const bool CHECK_BOX_FIELD_CHECKED = test::Contract<Boxes>("CheckBoxFieldContractTest")
                                         .waits("getImage", 2, nullptr, nullptr, [](Boxes& b) { return b->getImage(); })
                                         .waits("getString", 3, "", "", [](Boxes& b) { return b->getString(); })
                                         .waits("isChecked", 4, false, false, [](Boxes& b) { return b->isChecked(); })
                                         .waits("swapChecked", 5, [](Boxes& b) { b->swapChecked(); })
                                         .waits("setChecked", 6, [](Boxes& b) { b->setChecked(true); })
                                         .record({.bool1 = true})
                                         .completes({-1, 7, 99})
                                         .check();

} // namespace
