#include "DisplayAPI/AbbreviatedItem.h"
#include "DisplayAPI/CallForwardItem.h"
#include "DisplayAPI/ListBoxText.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/PhonebookItem.h"
#include "pictures/StatusScreens.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelListBox.h"

namespace {

using namespace DisplayAPI;

/// The rows of short dials, of a phonebook and of forwardings, as pictures and as text.
class DirectoryPictures : public StatusScreens {
protected:
    template <typename Row, typename... Args>
    Row& add(Args... args)
    {
        auto row = std::make_unique<Row>(args...);
        Row& added = *row;
        list.append(row->getPrivateImpl()->getKestrelListItem());
        mRows.push_back(std::move(row));
        return added;
    }

    CallForwardItem& addForwarding(CallLogMainItem::IconType icon, const std::string& text, bool isChecked)
    {
        return add<CallForwardItem>(icon, text, isChecked, false);
    }

    void clear()
    {
        mRows.clear();
        list.setCurrentRow(0);
    }

    /// The picture, and of the rows as text those that are in view.
    void expectRows(const std::string& screen, const std::string& name, std::vector<std::vector<std::string>> rows)
    {
        expectScreen(screen);
        std::string text = "object:\nname:KestrelListBox\n";
        for (const std::vector<std::string>& row : rows) {
            text += "subitem:\nname:" + name + '\n';
            for (std::size_t i = 0; i < row.size(); ++i)
                text += "string" + std::to_string(i) + ':' + row[i] + '\n';
            text += "endsubitem:\n";
        }
        EXPECT_EQ(listAsText(list), text + "end:\n");
    }

    KestrelListBox& list = showList("", {});
    TranslationInfo outside{"Outside", nullptr}, inside{"Inside", nullptr}, off{"off", nullptr};

private:
    std::vector<std::unique_ptr<ListItem>> mRows;
};

} // namespace

TEST_P(DirectoryPictures, ShortDials)
{
    add<AbbreviatedItem>(3, AbbreviatedItem::ICON_NUMBER, "Ada", true);
    add<AbbreviatedItem>(12, AbbreviatedItem::ICON_NUMBER, "Zoë Ångström", true);
    std::vector<std::vector<std::string>> rows{{"3 Ada"}, {"12 Zoë Ångström"}};
    if (!isTwoLines()) {
        add<AbbreviatedItem>(13, AbbreviatedItem::ICON_MOBILE, "Bert", true);
        add<AbbreviatedItem>(14, static_cast<AbbreviatedItem::IconType>(77), "Unknown", true);
        rows.push_back({"Bert"});
        rows.push_back({"Unknown"});
    }
    expectRows("short-dials", "AbbreviatedItem", rows);
}

TEST_P(DirectoryPictures, PhonebookEntries)
{
    const std::vector<std::string> texts{"None", "Work", "Home", "Mobile", "Letter", "Person", "Picture", "Unknown"};
    const std::size_t inView = isTwoLines() ? 2 : 7;
    for (std::size_t first = 0; first + inView <= texts.size(); first += inView) {
        std::vector<std::vector<std::string>> rows;
        for (std::size_t icon = first; icon < first + inView; ++icon) {
            add<PhonebookItem>(static_cast<PhonebookItem::IconType>(icon), icon == 2, texts[icon], true);
            rows.push_back({texts[icon]});
        }
        expectRows("phonebook-" + std::to_string(first / inView + 1), "PhonebookListItem", rows);
        clear();
    }
}

TEST_P(DirectoryPictures, Forwardings)
{
    addForwarding(CallLogMainItem::ICON_FORWARDING_ALWAYS, "Always", false);
    CallForwardItem& busy = addForwarding(CallLogMainItem::ICON_FORWARDING_BUSY, "Busy", true);
    expectRows("forwardings", "CallForwardItem", {{"Always"}, {"Busy"}});
    busy.setReadonly(true, true);
    expectRows("forwardings-readonly", "CallForwardItem", {{"Always"}, {"Busy"}});
    busy.setReadonly(true, false);
    busy.setCFIconVisible(false);
    expectRows("forwardings-bare", "CallForwardItem", {{"Always"}, {"Busy"}});
}

TEST_P(DirectoryPictures, ForwardingWithBranches)
{
    CallForwardItem& row = addForwarding(CallLogMainItem::ICON_FORWARDING_NO_ANSWER, "No answer", true);
    row.setTextBranch("4711", &outside, CallForwardItem::BRANCH_LINE_1);
    row.setTextBranch(&off, &inside, CallForwardItem::BRANCH_LINE_2);
    if (isTwoLines())
        expectRows("forwarding-branches", "CallForwardItem", {{"No answer", "Outside 4711, Inside off"}});
    else
        expectRows("forwarding-branches", "CallForwardItem", {{"No answer", "Outside 4711", "Inside off"}});
}

TEST_P(DirectoryPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    add<AbbreviatedItem>(12, AbbreviatedItem::ICON_NUMBER, "سارة", true);
    addForwarding(CallLogMainItem::ICON_FORWARDING_BUSY, "مشغول", true);
    expectScreen("directory-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, DirectoryPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
