// What an exclusive list promises of each of its operations. The others are a list's.

#include "DisplayAPI/ExclusiveList.h"

#include "Variant.h"
#include "doubles/Answers.h"
#include "support/FacadeContract.h"

using namespace DisplayAPI;

namespace {

struct ExclusiveLists : test::WidgetSubject<ExclusiveList> {
    static constexpr bool CAN_BE_BARE = false;

    explicit ExclusiveLists(bool)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().selectedIndex = 2;
        doubles::Answers::instance().isSelected = true;
        facade = std::make_unique<ExclusiveList>();
    }

    static std::string box() { return isFullPanel() ? "ListBoxPrivate" : "ListBoxPrivateWP1"; }
    static std::string exclusive() { return isFullPanel() ? "ExclusiveListPrivate" : "ExclusiveListPrivateWP1"; }
};

const bool EXCLUSIVE_LIST_CHECKED =
    test::Contract<ExclusiveLists>("ExclusiveListContractTest")
        .waits("getSelectedIndex", 41, 2, -1, [](ExclusiveLists& l) { return l->getSelectedIndex(); })
        .arrives([](ExclusiveLists& l) { return l.box() + "::getSelectedIndex()"; })
        .posts("isSelected", 42, true, false, [](ExclusiveLists& l) { return l->isSelected(6); })
        .record({.int1 = 6})
        .arrives([](ExclusiveLists& l) { return l.exclusive() + "::isSelected(6)"; })
        .waits("setSelectedIndex", 45, [](ExclusiveLists& l) { l->setSelectedIndex(3); })
        .record({.int1 = 3})
        .arrives([](ExclusiveLists& l) { return l.box() + "::setSelectedIndex(3)"; })
        .posts("setTitle", 22, [](ExclusiveLists& l) { l->setTitle("Tones"); })
        .record({.text1 = "Tones"})
        .arrives([](ExclusiveLists& l) { return l.box() + "::setTitle(\"Tones\")"; })
        .completes({-1, 43, 44, 46, 99})
        .check();

} // namespace
