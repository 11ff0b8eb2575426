// What a KVX list promises of each of its operations. The others are a list's.

#include "DisplayAPI/KVXList.h"

#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "support/FacadeContract.h"
#include "toolkit/PegThing.h"

using namespace DisplayAPI;

namespace {

/// The private side is the library's own and notes nothing: KVXListTest looks at what its widget shows.
struct KVXLists : test::WidgetSubject<KVXList> {
    static constexpr int CLEAN_UP = 1;

    explicit KVXLists(bool hasSide)
    {
        facade = std::make_unique<KVXList>();
        facade->append("first");
        facade->append("second");
        facade->getPrivateImpl()->getWidget()->Message({.wType = PM_KEY, .iData = PK_DOWN});
        if (!hasSide)
            endSide(CLEAN_UP);
    }

    /// What the recording rows note.
    static bool isArrival(const std::string&) { return false; }
};

const bool KVX_LIST_CHECKED =
    test::Contract<KVXLists>("KVXListContractTest")
        .posts("setNumDisplayLines", 42, [](KVXLists& l) { l->setNumDisplayLines(3); })
        .record({.int1 = 3})
        .posts("setDisplayColour", 43, [](KVXLists& l) { l->setDisplayColour(2); })
        .record({.int1 = 2})
        .posts("setDisplayText", 44, [](KVXLists& l) { l->setDisplayText(1, "Account"); })
        .record({.text1 = "Account", .int1 = 1})
        .posts("forgetDisplayText", 45, [](KVXLists& l) { l->setDisplayText(1, nullptr); })
        .record({.int1 = 1})
        .posts("clearDisplay", 46, [](KVXLists& l) { l->clearDisplay(); })
        .waits("selectionHasChanged", 47, true, false, [](KVXLists& l) { return l->selectionHasChanged(); })
        .completes({-1, 2, 41, 48, 99})
        .check();

} // namespace
