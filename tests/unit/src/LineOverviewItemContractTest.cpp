// What a line's row promises of each of its operations.

#include "DisplayAPI/LineOverviewItem.h"

#include "DisplayAPI/LineOverviewItemPrivateIfc.h"
#include "support/FacadeContract.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelListBoxItem.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

/// A private side that notes what it is called with: the library's own is no double.
class NotingLine : public LineOverviewItemPrivateIfc {
public:
    void localeChanged(std::string locale) override { note("localeChanged", locale); }
    void releaseOwnership() override { note("releaseOwnership"); }
    KestrelListBoxItem* getKestrelListItem() override { return &mItem; }

    void setLineState(LineOverviewItem::LineState state) override { note("setLineState", static_cast<int>(state)); }
    void setDisplayHDIconStatus(bool on) override { note("setDisplayHDIconStatus", on); }
    void setLineNamePrefix(TranslationInfo* prefix) override { note("setLineNamePrefix", prefix->key()); }
    void setLineIdentity(TranslationInfo* identity) override { note("setLineIdentity", identity->key(), true); }
    void setLineIdentity(std::string identity) override { note("setLineIdentity", identity); }
    void setLineName(std::string name) override { note("setLineName", name); }
    void holdItem(int milliseconds) override { note("holdItem", milliseconds); }

private:
    template <typename... Args>
    void note(const std::string& operation, const Args&... args)
    {
        doubles::Recorder::instance().note(this, "Line::" + operation, args...);
    }

    KestrelListBoxItem mItem{ICC::fromUTF8toUNICODE("Office")};
};

class NotedLineItem : public LineOverviewItem {
public:
    NotedLineItem() : LineOverviewItem(IDLE, "Office")
    {
        destroy();
        setImplementation(new NotingLine);
    }
};

struct Lines : test::WidgetSubject<LineOverviewItem> {
    explicit Lines(bool hasSide)
    {
        facade = std::make_unique<NotedLineItem>();
        if (!hasSide)
            endSide(2);
    }

    static std::string arrival(const std::string& call) { return "Line::" + call; }
    static Filling translation(Lines& lines) { return {.ptr1 = &lines.text}; }

    TranslationInfo text{"Key", nullptr};
};

constexpr auto UNKNOWN_STATE = static_cast<LineOverviewItem::LineState>(-77);

const bool LINE_OVERVIEW_ITEM_CHECKED =
    test::Contract<Lines>("LineOverviewItemContractTest")
        .posts("setLineState", 11, [](Lines& l) { l->setLineState(UNKNOWN_STATE); })
        .record({.int1 = -77})
        .arrives("setLineState(-77)")
        .posts("setDisplayHDIconStatus", 12, [](Lines& l) { l->setDisplayHDIconStatus(true); })
        .record({.bool1 = true})
        .arrives("setDisplayHDIconStatus(true)")
        .posts("setLineNamePrefix", 13, [](Lines& l) { l->setLineNamePrefix(&l.text); })
        .record(Lines::translation)
        .arrives("setLineNamePrefix(\"Key\")")
        .posts("setLineIdentityTranslation", 14, [](Lines& l) { l->setLineIdentity(&l.text); })
        .record(Lines::translation)
        .arrives("setLineIdentity(\"Key\", true)")
        .posts("setLineIdentity", 15, [](Lines& l) { l->setLineIdentity("4711"); })
        .record({.text1 = "4711"})
        .arrives("setLineIdentity(\"4711\")")
        .posts("setLineName", 16, [](Lines& l) { l->setLineName("Lab"); })
        .record({.text1 = "Lab"})
        .arrives("setLineName(\"Lab\")")
        .posts("holdItem", 17, [](Lines& l) { l->holdItem(0); })
        .record({.int1 = 0})
        .arrives("holdItem(0)")
        .waits("getText", 6, "Office", "", [](Lines& l) { return l->getText(); })
        .completes({-1, 4, 5, 7, 9, 18, 100})
        .check();

} // namespace
