#include "DisplayAPI/ConferenceCallItem.h"

#include "DisplayAPI/ConferenceCallItemPrivateIfc.h"
#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/MenuCommand.h"
#include "unit/host/variants/telephony/CallRowsTest.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;

namespace {

class ConferenceCallItemPrivateTest : public test::CallRowsTest {
protected:
    ConferenceCallItemPrivateTest()
    {
        for (const auto& [name, state] :
             {std::pair{"Ada", Call::CONNECTED}, {"Bert", Call::HELD_BY_OTHER}, {"Cleo", Call::CONNECTED}})
            members.push_back(std::make_unique<Call>(state, name, nullptr, false, true));
    }

    ~ConferenceCallItemPrivateTest() override
    {
        if (item != nullptr)
            list.remove(item.get());
    }

    ConferenceCallItem& make(bool open, int count = 3)
    {
        item = std::make_unique<ConferenceCallItem>(Call::CONFERENCE, "Conference", open);
        for (int i = 0; i < count; ++i)
            item->appendCall(&at(i), false);
        list.append(item.get());
        return *item;
    }

    Call& at(int member) { return *members[static_cast<std::size_t>(member)]; }

    /// The line of the selected member; -1 where none is selected.
    int boldLine() const
    {
        const auto& lines = lookOf(*item).lines;
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (lines[i].bold)
                return static_cast<int>(i);
        return -1;
    }

    std::vector<std::unique_ptr<Call>> members;
    std::unique_ptr<ConferenceCallItem> item;
};

TEST_P(ConferenceCallItemPrivateTest, ClosedOneShowsItsTitleMemberAndTheSuffix)
{
    ConferenceCallItem& talk = make(false, 0);
    EXPECT_THAT(linesOf(talk), ElementsAre("Conference"));
    talk.setTitleSuffix("(2)");
    EXPECT_THAT(linesOf(talk), ElementsAre("Conference (2)"));
    talk.appendCall(&at(0), false);
    talk.appendCall(&at(1), false);
    EXPECT_THAT(linesOf(talk), ElementsAre("Ada (2)"));
    talk.setTitleSuffix(&text);
    EXPECT_THAT(linesOf(talk), ElementsAre("Ada en:Key"));
    changeLanguage("de");
    EXPECT_THAT(linesOf(talk), ElementsAre("Ada de:Key"));
    talk.setTitleSuffix("");
    EXPECT_THAT(linesOf(talk), ElementsAre("Ada"));
    EXPECT_THAT(iconsOf(talk), ElementsAre(&CONFERENCE));
    EXPECT_THAT(lookOf(talk).marks, ElementsAre(&SMALL_ARROW_RIGHT));
}

TEST_P(ConferenceCallItemPrivateTest, OpenOneShowsItsMembersIndented)
{
    ConferenceCallItem& talk = make(true);
    EXPECT_EQ(linesOf(talk), fitting({"Ada", "Ada", "Bert", "Cleo"}));
    if (!isSmall()) {
        EXPECT_THAT(iconsOf(talk), ElementsAre(&CONFERENCE, &HANDSET, &HELD_BY_OTHER, &HANDSET));
    }
    EXPECT_EQ(lookOf(talk).lines[0].indent, 0);
    EXPECT_GT(lookOf(talk).lines[1].indent, 0);
    EXPECT_THAT(lookOf(talk).marks, ElementsAre(&SMALL_ARROW_DOWN));
}

TEST_P(ConferenceCallItemPrivateTest, TitleMemberIsTheFirstOrTheOneThatIsSaid)
{
    ConferenceCallItem& talk = make(false, 2);
    EXPECT_EQ(talk.getTitleMember(), &at(0));
    talk.appendCall(&at(2), true);
    EXPECT_EQ(talk.getTitleMember(), &at(2));
    EXPECT_THAT(linesOf(talk), ElementsAre("Cleo"));
    talk.removeCall(&at(2));
    EXPECT_EQ(talk.getTitleMember(), &at(0));
}

TEST_P(ConferenceCallItemPrivateTest, MembersAreFoundByTheirIndex)
{
    ConferenceCallItem& talk = make(false);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(talk.getIndexedMember(i), &at(i));
    EXPECT_EQ(talk.getIndexedMember(-1), nullptr);
    EXPECT_EQ(talk.getIndexedMember(3), nullptr);
    talk.removeCall(1);
    EXPECT_EQ(talk.getIndexedMember(1), &at(2));
    for (const int missing : {-1, 2})
        talk.removeCall(missing);
    EXPECT_EQ(talk.getIndexedMember(1), &at(2));
}

TEST_P(ConferenceCallItemPrivateTest, SelectedMemberIsBoldUntilItLeaves)
{
    ConferenceCallItem& talk = make(true);
    EXPECT_EQ(talk.getSelectedMember(), nullptr);
    EXPECT_EQ(boldLine(), -1);
    talk.setCallItem(2);
    EXPECT_EQ(talk.getSelectedMember(), &at(2));
    EXPECT_EQ(boldLine(), isSmall() ? 1 : 3);
    talk.removeCall(&at(0));
    EXPECT_EQ(talk.getSelectedMember(), &at(2));
    talk.removeCall(&at(2));
    EXPECT_EQ(talk.getSelectedMember(), nullptr);
    talk.setCallItem(0);
    talk.setCallItem(1);
    EXPECT_EQ(talk.getSelectedMember(), nullptr);
}

TEST_P(ConferenceCallItemPrivateTest, KeysOpenItGoThroughItsMembersAndCloseIt)
{
    ConferenceCallItem& talk = make(false);
    list.append("below");
    const auto selectedAfter = [&](std::initializer_list<int> keys) {
        for (const int key : keys)
            press(key);
        return talk.getSelectedMember();
    };
    EXPECT_EQ(selectedAfter({PK_RIGHT}), nullptr);
    EXPECT_EQ(linesOf(talk).size(), isSmall() ? 2u : 4u);
    EXPECT_EQ(selectedAfter({PK_DOWN}), &at(0));
    EXPECT_EQ(selectedAfter({PK_DOWN, PK_DOWN}), &at(2));
    EXPECT_EQ(selectedAfter({PK_UP}), &at(1));
    EXPECT_EQ(selectedAfter({PK_UP, PK_UP, PK_UP}), nullptr);
    EXPECT_EQ(list.getSelectedIndex(), 0);
    EXPECT_EQ(selectedAfter({PK_DOWN, PK_DOWN, PK_DOWN}), &at(2));
    EXPECT_EQ(list.getSelectedIndex(), 0);
    press(PK_DOWN);
    EXPECT_EQ(list.getSelectedIndex(), 1);
    press(PK_UP);
    press(PK_LEFT);
    EXPECT_EQ(linesOf(talk).size(), 1u);
    press(PK_DOWN);
    EXPECT_EQ(list.getSelectedIndex(), 1);
}

TEST_P(ConferenceCallItemPrivateTest, RightKeyOpensTheMenuOfTheSelectedMember)
{
    ConferenceCallItem& talk = make(true);
    EXPECT_EQ(talk.getContextMenu(), nullptr);
    ContextMenu* const menu = at(1).getContextMenu();
    MenuCommand hold("Hold", 1);
    menu->addCommand(&hold, nullptr, false);
    press(PK_RIGHT);
    EXPECT_EQ(display.getCurrent(), &list);
    talk.setCallItem(1);
    press(PK_RIGHT);
    EXPECT_EQ(display.getCurrent(), menu);
    members.erase(members.begin() + 1);
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_EQ(talk.getSelectedMember(), nullptr);
}

TEST_P(ConferenceCallItemPrivateTest, KeysOfOneThatHasLeftAndLeftOnAClosedOneAreNotUsed)
{
    ConferenceCallItem& talk = make(true);
    KestrelListBoxItem& row = *talk.getPrivateImplemetation()->getKestrelListItem();
    MenuCommand hold("Hold", 1);
    at(1).getContextMenu()->addCommand(&hold, nullptr, false);
    talk.setCallItem(1);
    talk.removeCall(1);
    EXPECT_FALSE(row.key(PK_RIGHT));
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_TRUE(row.key(PK_LEFT));
    EXPECT_FALSE(row.key(PK_LEFT));
}

TEST_P(ConferenceCallItemPrivateTest, MemberThatChangesIsShownAsItIs)
{
    ConferenceCallItem& talk = make(true);
    talk.setCallItem(0);
    at(0).setText("Ada Lovelace");
    at(0).setState(Call::HELD);
    EXPECT_EQ(linesOf(talk)[0], "Ada Lovelace");
    EXPECT_EQ(linesOf(talk)[1], "Ada Lovelace");
    EXPECT_EQ(iconsOf(talk)[1], &HOLD);
}

TEST_P(ConferenceCallItemPrivateTest, MemberThatIsDeletedLeavesFirst)
{
    ConferenceCallItem& talk = make(true);
    members.erase(members.begin());
    EXPECT_EQ(linesOf(talk), fitting({"Bert", "Bert", "Cleo"}));
    EXPECT_EQ(talk.getTitleMember(), &at(0));
    EXPECT_EQ(talk.getIndexedMember(2), nullptr);
}

TEST_P(ConferenceCallItemPrivateTest, SelectedMemberIsInViewHoweverManyThereAre)
{
    for (const char* name : {"Dora", "Emil"})
        members.push_back(std::make_unique<Call>(Call::CONNECTED, name, nullptr, false, true));
    ConferenceCallItem& talk = make(true, 5);
    EXPECT_EQ(linesOf(talk), fitting({"Ada", "Ada", "Bert", "Cleo"}));
    talk.setCallItem(4);
    EXPECT_EQ(linesOf(talk), isSmall() ? Texts({"Ada", "Emil"}) : Texts({"Ada", "Cleo", "Dora", "Emil"}));
    talk.setCallItem(1);
    EXPECT_EQ(linesOf(talk), isSmall() ? Texts({"Ada", "Bert"}) : Texts({"Ada", "Ada", "Bert", "Cleo"}));
}

TEST_P(ConferenceCallItemPrivateTest, DisabledMemberIsGrey)
{
    ConferenceCallItem& talk = make(true);
    at(0).enabled(false);
    EXPECT_TRUE(lookOf(talk).lines[1].dimmed);
    EXPECT_FALSE(lookOf(talk).lines[0].dimmed);
    EXPECT_FALSE(lookOf(talk).dimmed);
    at(0).enabled(true);
    EXPECT_FALSE(lookOf(talk).lines[1].dimmed);
}

TEST_P(ConferenceCallItemPrivateTest, MembersFollowTheLanguage)
{
    ConferenceCallItem& talk = make(true);
    at(0).setText(&text);
    changeLanguage("de");
    EXPECT_EQ(linesOf(talk)[1], "de:Key");
    talk.removeCall(0);
    EXPECT_THAT(linesOf(at(0)), ElementsAre("de:Key"));
}

TEST_P(ConferenceCallItemPrivateTest, ListThatIsClearedTakesAConferenceAlongWithItsMembersMenu)
{
    ConferenceCallItem* const talk = &make(true);
    MenuCommand hold("Hold", 1);
    at(1).getContextMenu()->addCommand(&hold, nullptr, false);
    talk->setCallItem(1);
    press(PK_RIGHT);
    ASSERT_EQ(display.getCurrent(), at(1).getContextMenu());
    item.release();
    list.clear();
    members.clear();
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_EQ(list.size(), 0);
}

TEST_P(ConferenceCallItemPrivateTest, DeletedConferenceLeavesItsMembersBehind)
{
    make(true);
    list.remove(item.get());
    item.reset();
    at(0).setText("Ada Lovelace");
    EXPECT_THAT(linesOf(at(0)), ElementsAre("Ada Lovelace"));
}

TEST_P(ConferenceCallItemPrivateTest, MemberStandsInOneConferenceAndThereOnce)
{
    ConferenceCallItem& talk = make(false, 2);
    ConferenceCallItem other(Call::CONFERENCE, "Other", false);
    other.appendCall(&at(0), false);
    EXPECT_EQ(talk.getIndexedMember(0), &at(1));
    EXPECT_EQ(talk.getTitleMember(), &at(1));
    talk.appendCall(&at(1), false);
    EXPECT_EQ(talk.getIndexedMember(1), nullptr);
    talk.removeCall(&at(0));
    EXPECT_EQ(other.getIndexedMember(0), &at(0));
}

TEST_P(ConferenceCallItemPrivateTest, WhatIsNoCallOfItsOwnIsNoMember)
{
    ConferenceCallItem& talk = make(false, 0);
    ConferenceCallItem other(Call::CONFERENCE, "Other", false);
    Call bare(static_cast<CallConnectedItemPrivateIfc*>(nullptr));
    for (Call* const call : {static_cast<Call*>(nullptr), &bare, static_cast<Call*>(&other), static_cast<Call*>(&talk)})
        talk.appendCall(call, true);
    EXPECT_EQ(talk.getIndexedMember(0), nullptr);
    EXPECT_THAT(linesOf(talk), ElementsAre("Conference"));
}

TEST_P(ConferenceCallItemPrivateTest, MadeOfATranslationItFollowsTheLanguage)
{
    ConferenceCallItem talk(Call::CONFERENCE, &text, false);
    EXPECT_THAT(linesOf(talk), ElementsAre("en:Key"));
    language = "de";
    talk.localeChanged("de");
    EXPECT_THAT(linesOf(talk), ElementsAre("de:Key"));
}

TEST_P(ConferenceCallItemPrivateTest, DurationCountsFromWhenItIsMade)
{
    ConferenceCallItem& talk = make(false);
    EXPECT_EQ(endOf(talk), "00:00");
    time.pass(65'000);
    EXPECT_EQ(endOf(talk), "01:05");
    talk.stopDurationTimer();
    time.pass(65'000);
    EXPECT_EQ(endOf(talk), "01:05");
}

TEST_P(ConferenceCallItemPrivateTest, ScreenAsTextHasTheMembers)
{
    make(true, 2).setTitleSuffix("+1");
    const std::string second = isSmall() ? "" : "string3:Bert\n";
    EXPECT_EQ(shown(), "object:\nname:KestrelListBox\n"
                       "subitem:\nname:ConferenceCallItem\nstring0:Ada +1\nstring1:00:00\nstring2:Ada\n" +
                           second + "endsubitem:\nend:\n");
}

TEST_P(ConferenceCallItemPrivateTest, MemberThatLeavesWhileItsRowIsOpenMovesWhatStandsBelow)
{
    ConferenceCallItem& talk = make(true, 2);
    list.append("below");
    auto* const box = static_cast<KestrelListBox*>(list.getPrivateImpl()->getWidget());
    const int before = box->rowArea(1).top;
    talk.removeCall(0);
    if (!isSmall()) {
        EXPECT_LT(box->rowArea(1).top, before);
    }
    EXPECT_EQ(linesOf(talk), fitting({"Bert", "Bert"}));
}

INSTANTIATE_ON_PANELS(ConferenceCallItemPrivateTest);

} // namespace
