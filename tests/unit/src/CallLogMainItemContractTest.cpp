// What a call log's row promises of each of its operations.

#include "DisplayAPI/CallLogMainItem.h"

#include "unit/src/LogRowSubject.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

struct LogEntries : test::LogRowSubject<CallLogMainItem> {
    explicit LogEntries(bool hasSide) : LogRowSubject("CallLogMainItemPrivate")
    {
        facade = std::make_unique<CallLogMainItem>(&ada, "10:41", CallLogMainItem::ICON_MISSED, true, false);
        if (!hasSide)
            endSide(2);
    }

    TranslationInfo text{"key", nullptr};
};

const bool CALL_LOG_MAIN_ITEM_CHECKED = test::Contract<LogEntries>("CallLogMainItemContractTest")
                                            .posts("setbold", 12, [](LogEntries& r) { r->setbold(true); })
                                            .record({.bool1 = true})
                                            .arrives("setbold(true)")
                                            .posts("setText", 3, [](LogEntries& r) { r->setText("Bert"); })
                                            .record({.text1 = "Bert"})
                                            .posts("setTranslation", 3, [](LogEntries& r) { r->setText(&r.text); })
                                            .record([](LogEntries& r) { return Filling{.ptr1 = &r.text}; })
                                            .waits("getText", 6, "Ada", "", [](LogEntries& r) { return r->getText(); })
                                            .completes({-1, 4, 5, 7, 9, 11, 13, 99})
                                            .check();

} // namespace
