// What a check box's row promises of each of its operations.

#include "DisplayAPI/CheckBoxItem.h"

#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

struct Rows : test::WidgetSubject<CheckBoxItem> {
    explicit Rows(bool hasSide)
    {
        facade = std::make_unique<CheckBoxItem>("Monday", nullptr, true, true);
        facade->setChecked(true);
        if (!hasSide)
            endSide(15);
    }

    TranslationInfo text{"key", nullptr};
};

const bool CHECK_BOX_ITEM_CHECKED = test::Contract<Rows>("CheckBoxItemContractTest")
                                        .posts("setText", 3, [](Rows& r) { r->setText("Tuesday"); })
                                        .record({.text1 = "Tuesday"})
                                        .posts("setTranslation", 3, [](Rows& r) { r->setText(&r.text); })
                                        .record([](Rows& r) { return Filling{.ptr1 = &r.text}; })
                                        .waits("getText", 6, "Monday", "", [](Rows& r) { return r->getText(); })
                                        .waits("isChecked", 12, true, false, [](Rows& r) { return r->isChecked(); })
                                        .waits("swapChecked", 13, [](Rows& r) { r->swapChecked(); })
                                        .waits("setChecked", 14, [](Rows& r) { r->setChecked(false); })
                                        .record({.bool1 = false})
                                        .completes({-1, 4, 5, 7, 16, 100})
                                        .check();

} // namespace
