// What a call-back's row promises of each of its operations.

#include "DisplayAPI/CallBackMainItem.h"

#include "unit/src/LogRowSubject.h"

using namespace DisplayAPI;

namespace {

struct CallBacks : test::LogRowSubject<CallBackMainItem> {
    explicit CallBacks(bool hasSide) : LogRowSubject("CallBackMainItemPrivate")
    {
        facade = std::make_unique<CallBackMainItem>(&ada, "10:41", CallBackMainItem::BUSY, CallBackMainItem::READY);
        if (!hasSide)
            endSide(2);
    }
};

const bool CALL_BACK_MAIN_ITEM_CHECKED = test::Contract<CallBacks>("CallBackMainItemContractTest")
                                             .posts("setText", 3, [](CallBacks& r) { r->setText("Bert"); })
                                             .record({.text1 = "Bert"})
                                             .waits("getText", 6, "Ada", "", [](CallBacks& r) { return r->getText(); })
                                             .completes({-1, 4, 5, 7, 9, 11, 12, 99})
                                             .check();

} // namespace
