// What a phonebook entry's row promises of each of its operations: they are a list item's.

#include "DisplayAPI/PhonebookItem.h"

#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

struct Entries : test::WidgetSubject<PhonebookItem> {
    explicit Entries(bool hasSide)
    {
        facade = std::make_unique<PhonebookItem>(PhonebookItem::ICON_HOME, true, "Anna", true);
        if (!hasSide)
            endSide(2);
    }

    TranslationInfo text{"key", nullptr};
};

const bool PHONEBOOK_ITEM_CHECKED = test::Contract<Entries>("PhonebookItemContractTest")
                                        .posts("setText", 3, [](Entries& r) { r->setText("Bert"); })
                                        .record({.text1 = "Bert"})
                                        .posts("setTranslation", 3, [](Entries& r) { r->setText(&r.text); })
                                        .record([](Entries& r) { return Filling{.ptr1 = &r.text}; })
                                        .waits("getText", 6, "Anna", "", [](Entries& r) { return r->getText(); })
                                        .completes({-1, 4, 5, 7, 12, 100})
                                        .check();

} // namespace
