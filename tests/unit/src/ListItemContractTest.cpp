// What a row promises of each of its operations.

#include "DisplayAPI/ListItem.h"

#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

struct Rows : test::WidgetSubject<ListItem> {
    explicit Rows(bool hasSide)
    {
        facade = hasSide ? std::make_unique<ListItem>("Anna", true) : std::make_unique<ListItem>(nullptr);
    }

    TranslationInfo text{"key", nullptr};
};

const bool LIST_ITEM_CHECKED = test::Contract<Rows>("ListItemContractTest")
                                   .posts("setText", 3, [](Rows& r) { r->setText("Bert"); })
                                   .record({.text1 = "Bert"})
                                   .posts("setTranslation", 3, [](Rows& r) { r->setText(&r.text); })
                                   .record([](Rows& r) { return Filling{.ptr1 = &r.text}; })
                                   .waits("getText", 6, "Anna", "", [](Rows& r) { return r->getText(); })
                                   .completes({-1, 4, 5, 7, 10, 100})
                                   .check();

} // namespace
