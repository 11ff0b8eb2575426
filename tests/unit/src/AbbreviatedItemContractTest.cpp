// What a short dial entry's row promises of each of its operations: they are a list item's.

#include "DisplayAPI/AbbreviatedItem.h"

#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

struct ShortDials : test::WidgetSubject<AbbreviatedItem> {
    explicit ShortDials(bool hasSide)
    {
        facade = std::make_unique<AbbreviatedItem>(12, AbbreviatedItem::ICON_NUMBER, "Anna", true);
        if (!hasSide)
            endSide(2);
    }

    TranslationInfo text{"key", nullptr};
};

const bool ABBREVIATED_ITEM_CHECKED = test::Contract<ShortDials>("AbbreviatedItemContractTest")
                                          .posts("setText", 3, [](ShortDials& r) { r->setText("Bert"); })
                                          .record({.text1 = "Bert"})
                                          .posts("setTranslation", 3, [](ShortDials& r) { r->setText(&r.text); })
                                          .record([](ShortDials& r) { return Filling{.ptr1 = &r.text}; })
                                          .waits("getText", 6, "Anna", "", [](ShortDials& r) { return r->getText(); })
                                          .completes({-1, 4, 5, 7, 12, 100})
                                          .check();

} // namespace
