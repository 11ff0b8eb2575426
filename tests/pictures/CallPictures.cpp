#include "DisplayAPI/CallConnectedItem.h"
#include "DisplayAPI/ConferenceCallItem.h"
#include "DisplayAPI/ListBoxText.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "pictures/StatusScreens.h"
#include "support/VirtualTime.h"
#include "utilities/CallPartyIdentifier.h"
#include "widgets/KestrelListBox.h"

namespace {

using DisplayAPI::CallConnectedItem;
using DisplayAPI::ConferenceCallItem;

/// Rows of calls and of conferences, on every panel.
class CallPictures : public test::VirtualTime, public StatusScreens {
protected:
    ~CallPictures() override { list.clear(); }

    CallConnectedItem& add(CallConnectedItem::CallStateIcon state, const std::string& who, bool timed = true,
                           bool hasMenu = false)
    {
        calls.push_back(std::make_unique<CallConnectedItem>(state, who, nullptr, timed, hasMenu));
        return show(*calls.back());
    }

    template <typename Item>
    Item& show(Item& item)
    {
        list.append(item.getPrivateImplemetation()->getKestrelListItem());
        return item;
    }

    void expectText(const std::string& rows)
    {
        EXPECT_EQ(DisplayAPI::listAsText(list), "object:\nname:KestrelListBox\n" + caption() + rows + "end:\n");
    }

    static std::string caption() { return isTwoLines() ? "" : "caption:Calls\n"; }

    /// A row with these texts, or those of its first two lines on the panel of two lines.
    static std::string row(const std::string& kind, std::vector<std::string> texts)
    {
        if (isTwoLines() && texts.size() > 3)
            texts.resize(3);
        std::string all = "subitem:\nname:" + kind + "\n";
        for (std::size_t i = 0; i < texts.size(); ++i)
            all += "string" + std::to_string(i) + ":" + texts[i] + "\n";
        return all + "endsubitem:\n";
    }

    KestrelListBox& list = showList(isTwoLines() ? "" : "Calls", {});
    std::vector<std::unique_ptr<CallConnectedItem>> calls;
};

constexpr const char* STATES[] = {"Idle",       "Dialling",  "Proceeding", "Ringing back", "Incoming",    "Connected",
                                  "Held",       "By other",  "By both",    "Resuming",     "To transfer", "Consulted",
                                  "Conference", "Forwarded", "Ended",      "Failed",       "Unknown"};

} // namespace

TEST_P(CallPictures, EveryState)
{
    int state = 0;
    for (const char* name : STATES)
        add(static_cast<CallConnectedItem::CallStateIcon>(state++), name);
    const int page = isTwoLines() ? 2 : 6;
    for (int shown = page - 1; shown < state; shown += page) {
        press(PK_DOWN, shown - list.currentRow());
        expectScreen("calls-state-" + std::to_string(shown));
    }
    press(PK_DOWN, page);
    expectScreen("calls-state-unknown");
}

TEST_P(CallPictures, EverythingThatARowHas)
{
    CallConnectedItem& ada = add(CallConnectedItem::CONNECTED, "", true, true);
    CallPartyIdentifier meant("Reception", "4710");
    ada.setPartyDetails(CallPartyIdentifier("Zoë Ångström", "4711"), &meant, DisplayAPI::FORWARDED_NO_ANSWER,
                        "Research", nullptr);
    ada.setSecurityState(CallConnectedItem::SECURE);
    ada.setRecordingState(true);
    ada.setDisplayHDIconStatus(true);
    ada.addGPULine("Room 7");
    ada.addGPULine("Until noon");
    CallConnectedItem& held = add(CallConnectedItem::HELD, "Bert");
    held.enabled(false);
    pass(3'675'000);
    expectScreen("calls-everything");
    expectText(row("CallConnectedItem", {"Zoë Ångström", "1:01:15", "Research", "Reception", "Room 7", "Until noon"}) +
               (isTwoLines() ? "" : row("CallConnectedItem", {"Bert"})));
}

TEST_P(CallPictures, CallsReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    CallConnectedItem& sara = add(CallConnectedItem::CONNECTED, "سارة", true, true);
    sara.setSecondLineText("الاستقبال");
    sara.setSecurityState(CallConnectedItem::NOT_SECURE);
    add(CallConnectedItem::HELD_BY_BOTH, "علي");
    pass(65'000);
    expectScreen("calls-arabic");
}

TEST_P(CallPictures, ConferenceClosedAndOpen)
{
    CallConnectedItem bert(CallConnectedItem::CONNECTED, "Bert", nullptr, false, false);
    CallConnectedItem cleo(CallConnectedItem::HELD_BY_OTHER, "Cleo", nullptr, false, false);
    ConferenceCallItem talk(CallConnectedItem::CONFERENCE, "Conference", false);
    talk.appendCall(&bert, false);
    talk.appendCall(&cleo, false);
    talk.setTitleSuffix("and 1 more");
    show(talk);
    add(CallConnectedItem::INCOMING, "Dora");
    pass(65'000);
    expectScreen("conference-closed");
    const std::string dora = row("CallConnectedItem", {"Dora"});
    expectText(row("ConferenceCallItem", {"Bert and 1 more", "01:05"}) + dora);
    press(PK_RIGHT);
    press(PK_DOWN, 2);
    expectScreen("conference-open");
    const std::vector<std::string> open{"Bert and 1 more", "01:05", isTwoLines() ? "Cleo" : "Bert", "Cleo"};
    expectText(row("ConferenceCallItem", open) + (isTwoLines() ? "" : dora));
    list.clear();
}

/// Painting no more than the durations leaves the picture that painting all of it does.
TEST_P(CallPictures, DurationsThatRunAreAllThatIsPainted)
{
    for (const char* name : {"Ada", "Bert"})
        add(CallConnectedItem::CONNECTED, name).setSecurityState(CallConnectedItem::SECURE);
    host::Lcd& lcd = *host::Lcd::current();
    lcd.paint();
    for (const std::int64_t ms : {1'000, 59'000, 3'539'000, 1'000, 1'000}) {
        pass(ms);
        lcd.paint();
        const host::Picture partly = lcd.picture();
        list.Resize(list.Area());
        lcd.paint();
        EXPECT_EQ(partly.pixels, lcd.picture().pixels) << ms;
        EXPECT_EQ(partly.texts, lcd.picture().texts) << ms;
    }
}

INSTANTIATE_TEST_SUITE_P(Panels, CallPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });
