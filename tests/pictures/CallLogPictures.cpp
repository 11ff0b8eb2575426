#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/ListBoxText.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "pictures/StatusScreens.h"
#include "utilities/CallPartyIdentifier.h"
#include "variants/telephony/CallBackMainItemPrivate.h"
#include "variants/telephony/CallLogMainItemPrivate.h"
#include "variants/telephony/DialledItemPrivate.h"
#include "variants/telephony/ForwardedItemPrivate.h"
#include "variants/telephony/MissedItemPrivate.h"
#include "variants/telephony/ReceivedItemPrivate.h"
#include "widgets/KestrelListBox.h"

namespace {

using namespace DisplayAPI;

/// Rows of call logs, as pictures and as text.
class CallLogPictures : public StatusScreens {
protected:
    CallLogPictures() : list(showList(isTwoLines() ? "" : "Calls", {})) {}
    ~CallLogPictures() override { list.clear(); }

    void add(std::unique_ptr<ListItemPrivateIfc> row)
    {
        list.append(row->getKestrelListItem());
        mRows.push_back(std::move(row));
    }

    void addEntry(const CallPartyIdentifier& party, const std::string& when, CallLogMainItem::IconType icon, bool isNew)
    {
        CallPartyIdentifier given = party;
        if (isTwoLines())
            add(std::make_unique<CallLogMainItemPrivateWP1>(&given, when, icon, isNew, isNew));
        else
            add(std::make_unique<CallLogMainItemPrivate>(&given, when, icon, isNew, isNew));
    }

    void addCallBack(CallBackMainItem::CallBackType type, CallBackMainItem::CallBackState state)
    {
        if (isTwoLines())
            add(std::make_unique<CallBackMainItemPrivateWP1>(&ada, "10:41", type, state));
        else
            add(std::make_unique<CallBackMainItemPrivate>(&ada, "10:41", type, state));
    }

    /// The picture, and of the rows as text those that are in view.
    void expectRows(const std::string& screen, std::vector<std::vector<std::string>> rows)
    {
        expectScreen(screen);
        if (isTwoLines())
            rows.resize(2);
        std::string text = "object:\nname:KestrelListBox\n";
        text += isTwoLines() ? "" : "caption:Calls\n";
        for (const std::vector<std::string>& row : rows)
            text += asText(row);
        EXPECT_EQ(listAsText(list), text + "end:\n");
    }

    CallPartyIdentifier ada{"Ada", "4711"}, zoe{"Zoë Ångström, London", "4712"}, nobody;
    KestrelListBox& list;

private:
    /// A name, and texts.
    static std::string asText(const std::vector<std::string>& row)
    {
        std::string text = "subitem:\nname:" + row[0] + '\n';
        for (std::size_t i = 1; i < row.size(); ++i)
            text += "string" + std::to_string(i - 1) + ':' + row[i] + '\n';
        return text + "endsubitem:\n";
    }

    std::vector<std::unique_ptr<ListItemPrivateIfc>> mRows;
};

constexpr const char* ENTRY = "CallLogMainItem";
constexpr const char* CALL_BACK = "CallBackMainItem";

TEST_P(CallLogPictures, Entries)
{
    addEntry(ada, "10:41", CallLogMainItem::ICON_MISSED, true);
    addEntry(zoe, "10:40", CallLogMainItem::ICON_DIALLED, true);
    addEntry(nobody, "Sunday", CallLogMainItem::ICON_RECEIVED, false);
    addEntry({"", "030 1234567"}, "1.11.", CallLogMainItem::ICON_FORWARDED, false);
    addEntry(zoe, "", CallLogMainItem::NO_ICON, false);
    expectRows("call-log", {{ENTRY, "Ada", "10:41"},
                            {ENTRY, "Zoë Ångström, London", "10:40"},
                            {ENTRY, "Caller.Unknown.XXX", "Sunday"},
                            {ENTRY, "030 1234567", "1.11."},
                            {ENTRY, "Zoë Ångström, London"}});
}

TEST_P(CallLogPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    addEntry({"سارة", "4711"}, "10:41", CallLogMainItem::ICON_MISSED, true);
    addEntry(zoe, "10:40", CallLogMainItem::ICON_DIALLED, false);
    expectScreen("call-log-arabic");
}

TEST_P(CallLogPictures, CallBacks)
{
    using Item = CallBackMainItem;
    addCallBack(Item::BUSY, Item::REQUESTED);
    addCallBack(Item::NO_ANSWER, Item::WAITING);
    addCallBack(Item::OTHER_REASON, Item::READY);
    expectRows("call-backs", {{CALL_BACK, "Ada", "10:41"}, {CALL_BACK, "Ada", "10:41"}, {CALL_BACK, "Ada", "10:41"}});
}

INSTANTIATE_TEST_SUITE_P(Panels, CallLogPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });

/// Two lines have no room for details: they do not exist there.
using CallDetailsPictures = CallLogPictures;

TEST_P(CallDetailsPictures, Dialled)
{
    add(std::make_unique<DialledItemPrivate>(&zoe, &ada, "22.11.2026\n10:41", "01:23", true));
    expectRows("details-dialled", {{"DialledItem", "Zoë Ångström, London", "Ada", "22.11.2026", "10:41", "01:23"}});
}

TEST_P(CallDetailsPictures, NotAnsweredAndForwarded)
{
    std::string when = "22.11.2026\n10:41";
    add(std::make_unique<DialledItemPrivate>(&nobody, nullptr, "21.11.2026", "", false));
    add(std::make_unique<ForwardedItemPrivate>(&ada, &zoe, when));
    expectRows("details-forwarded", {{"DialledItem", "Caller.Unknown.XXX", "21.11.2026"},
                                     {"ForwardedItem", "Ada", "Zoë Ångström, London", "22.11.2026", "10:41"}});
}

TEST_P(CallDetailsPictures, MissedAndReceived)
{
    add(std::make_unique<MissedItemPrivate>(&ada, "22.11.2026\n10:41"));
    add(std::make_unique<ReceivedItemPrivate>(&zoe, "22.11.2026", "01:23"));
    expectRows("details-missed-received", {{"MissedItem", "Ada", "22.11.2026", "10:41"},
                                           {"ReceivedItem", "Zoë Ångström, London", "22.11.2026", "01:23"}});
}

INSTANTIATE_TEST_SUITE_P(Panels, CallDetailsPictures, testing::Values(host::Variant::PLAIN, host::Variant::NARROW),
                         [](const auto& panel) { return std::string(host::nameOf(panel.param)); });

} // namespace
