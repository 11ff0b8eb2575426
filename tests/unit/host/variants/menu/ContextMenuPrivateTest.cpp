// What a context menu shows and holds.

#include "host/variants/menu/ContextMenuImpl.h"
#include "support/Dictionary.h"
#include "support/Keys.h"
#include "unit/host/variants/menu/ContextMenuVariantTest.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ContextMenuPrivateTest : public test::ContextMenuVariantTest {
protected:
    ~ContextMenuPrivateTest() override { menu.reset(); }

    /// Ten commands, "0" to "9".
    std::vector<MenuCommand*> ten()
    {
        std::vector<MenuCommand*> commands;
        for (int i = 0; i < 10; ++i)
            commands.push_back(
                made.emplace_back(std::make_unique<MenuCommand>(std::to_string(i), static_cast<unsigned long>(i)))
                    .get());
        return commands;
    }

    const host::CommandColumn& column()
    {
        auto* const box = static_cast<host::PopupBox*>(menu->getPrivateImpl()->getWidget());
        return *static_cast<host::CommandColumn*>(box->field());
    }

    void changeLanguage(const char* language)
    {
        dictionary.language = std::string(language) + ":";
        display.localeChanged(language);
    }

    test::Dictionary dictionary;
    std::vector<std::unique_ptr<MenuCommand>> made;
};

TEST_P(ContextMenuPrivateTest, ShowsItsNameAndTheRowsInSight)
{
    menu->setCommands(ten());
    open();
    const std::string five = asText({"0", "1", "2", "3", "4"});
    EXPECT_EQ(shown(), isSmall() ? asText({"0", "1"}) : five);
    press(PK_DOWN);
    press(PK_DOWN);
    EXPECT_EQ(shown(), isSmall() ? asText({"1", "2"}) : five);
}

TEST_P(ContextMenuPrivateTest, ShowsWhatIsVisibleOfIt)
{
    menu->setCommands(ten());
    open();
    const PegRect row = column().rowArea(1);
    DisplayablePrivateIfc& side = *menu->getPrivateImpl();
    EXPECT_EQ(side.serialise(std::vector{DisplayAPIUtils::Rect(row.left, row.top, 1, 1)}), asText({"1"}));
    EXPECT_EQ(side.serialise(std::vector<DisplayAPIUtils::Rect>()), "");
}

TEST_P(ContextMenuPrivateTest, EmptyMenuIsShownAndUsesNoKey)
{
    menu->setCommands({});
    open();
    EXPECT_EQ(shown(), isSmall() ? asText({"\u2190"}) : asText({}));
    EXPECT_EQ(menu->getSelectedCommand(), nullptr);
    EXPECT_EQ(menu->getSelectedIndex(), -1);
    press(PK_DOWN);
    EXPECT_FALSE(menu->selectionHasChanged());
    press(PK_RIGHT);
    EXPECT_TRUE(isOnScreen());
}

TEST_P(ContextMenuPrivateTest, NullCommandsAndDeletedOnesAreIgnored)
{
    Command* gone = edit.get();
    edit.reset();
    menu->addCommand(nullptr, nullptr, true);
    menu->addCommandWithIcon(nullptr, nullptr, false);
    menu->addCommand(gone, nullptr, false);
    menu->setCommands({nullptr, call.get(), nullptr});
    menu->setDefaultCommand(nullptr);
    open();
    EXPECT_EQ(menu->getSelectedIndex(), 0);
    press(PK_UP);
    EXPECT_EQ(menu->getSelectedIndex(), isSmall() ? -1 : 0);
}

TEST_P(ContextMenuPrivateTest, CommandThatIsDeletedMeanwhileKeepsItsTextAndRaisesNothing)
{
    menu->setCommands({call.get(), edit.get()});
    open();
    call.reset();
    EXPECT_EQ(shown(), asText({"Call", "Edit"}));
    changeLanguage("de");
    EXPECT_EQ(shown(), asText({"Call", "Edit"}));
    EXPECT_EQ(menu->getSelectedCommand(), nullptr);
    EXPECT_EQ(menu->getSelectedIndex(), 0);
    press(PK_OK);
    EXPECT_THAT(raised, IsEmpty());
    EXPECT_FALSE(isOnScreen());
}

TEST_P(ContextMenuPrivateTest, TextsFollowTheLanguage)
{
    Command greet(new TranslationInfo("Greet", &dictionary), Command::ITEM);
    menu->addCommand(&greet, nullptr, false);
    menu->addCommand(call.get(), nullptr, false);
    open();
    EXPECT_EQ(shown(), asText({"en:Greet", "Call"}));
    changeLanguage("de");
    EXPECT_EQ(shown(), asText({"de:Greet", "Call"}));
    menu->clearCommands();
}

TEST_P(ContextMenuPrivateTest, WayBackIsTheSmallPanelsLastRow)
{
    menu->setBackTranslator(&dictionary);
    menu->setCommands({call.get()});
    open();
    const bool hasRow = isSmall();
    EXPECT_EQ(shown(), hasRow ? asText({"Call", "en:Back"}) : asText({"Call"}));
    changeLanguage("de");
    EXPECT_EQ(shown(), hasRow ? asText({"Call", "de:Back"}) : asText({"Call"}));
    menu->setBackTranslator(nullptr);
    EXPECT_EQ(shown(), hasRow ? asText({"Call", "\u2190"}) : asText({"Call"}));
}

TEST_P(ContextMenuPrivateTest, WithoutTheFlagThereIsNoRowThatGoesBack)
{
    ContextMenu plain(false);
    plain.setBackTranslator(&dictionary);
    plain.addCommand(call.get(), nullptr, false);
    display.setCurrent(&plain);
    EXPECT_EQ(plain.getPrivateImpl()->serialise(), asText({"Call"}));
    press(PK_LEFT);
    EXPECT_EQ(display.getCurrent() == &plain, isSmall());
}

TEST_P(ContextMenuPrivateTest, RowThatGoesBackIsNoSelection)
{
    menu->setCommands({call.get()});
    open();
    press(PK_UP);
    EXPECT_EQ(menu->getSelectedIndex(), isSmall() ? -1 : 0);
    EXPECT_EQ(menu->getSelectedCommand(), isSmall() ? nullptr : call.get());
}

TEST_P(ContextMenuPrivateTest, DefaultCommandIsSelectedFirst)
{
    const auto commands = ten();
    menu->setDefaultCommand(commands[7]);
    for (MenuCommand* command : commands)
        menu->addCommandWithIcon(command, nullptr, false);
    open();
    EXPECT_EQ(menu->getSelectedCommand(), commands[7]);
    EXPECT_THAT(shown(), HasSubstr("string0:7\n"));
    menu->setDefaultCommand(commands[2]);
    EXPECT_EQ(menu->getSelectedIndex(), 2);
    EXPECT_FALSE(menu->selectionHasChanged());
    menu->setDefaultCommand(nullptr);
    EXPECT_EQ(menu->getSelectedIndex(), 0);
}

TEST_P(ContextMenuPrivateTest, DefaultCommandThatIsNotInTheMenuIsTheFirst)
{
    menu->setCommands(ten());
    menu->setDefaultCommand(call.get());
    open();
    EXPECT_EQ(menu->getSelectedIndex(), 0);
}

TEST_P(ContextMenuPrivateTest, ClearingForgetsTheDefaultCommand)
{
    const auto commands = ten();
    menu->setDefaultCommand(commands[3]);
    menu->setCommands(commands);
    open();
    EXPECT_EQ(menu->getSelectedIndex(), 0);
}

TEST_P(ContextMenuPrivateTest, UsersSelectionStaysWhileCommandsCome)
{
    menu->setCommands({call.get(), edit.get()});
    open();
    EXPECT_FALSE(menu->selectionHasChanged());
    press(PK_DOWN);
    EXPECT_TRUE(menu->selectionHasChanged());
    const auto commands = ten();
    menu->setDefaultCommand(commands[0]);
    menu->addCommandWithIcon(commands[0], nullptr, false);
    EXPECT_EQ(menu->getSelectedCommand(), edit.get());
    menu->clearCommands();
    EXPECT_FALSE(menu->selectionHasChanged());
}

TEST_P(ContextMenuPrivateTest, BeginsAnewEachTimeThatItIsOpened)
{
    menu->setCommands({call.get(), edit.get()});
    menu->setDefaultCommand(edit.get());
    open();
    press(PK_UP);
    EXPECT_EQ(menu->getSelectedIndex(), 0);
    menu->dismiss();
    EXPECT_EQ(menu->getSelectedIndex(), 0);
    open();
    EXPECT_EQ(menu->getSelectedIndex(), 1);
    EXPECT_FALSE(menu->selectionHasChanged());
}

TEST_P(ContextMenuPrivateTest, IconsAndMarksStandWithTheTexts)
{
    MenuCommand house("Home", static_cast<PhonebookItem::IconType>(2), 1);
    MenuCommand unknown("Other", static_cast<PhonebookItem::IconType>(-7), 1);
    std::string path = "ada.png";
    MenuCommand picture("Ada", path, 1);
    menu->addCommand(&house, nullptr, true);
    menu->addCommand(&unknown, call.get(), false);
    menu->addCommandWithIcon(&picture, call.get(), true);
    menu->addCommand(call.get(), nullptr, false);
    const auto& rows = column();
    EXPECT_EQ(rows.at(0).icon, &host::icons::HOUSE);
    EXPECT_EQ(rows.at(0).mark, &host::icons::CHECK);
    EXPECT_EQ(rows.at(1).icon, &host::icons::DOT);
    EXPECT_EQ(rows.at(1).mark, &host::icons::SMALL_ARROW_RIGHT);
    EXPECT_EQ(rows.at(2).icon, &host::icons::PICTURE);
    EXPECT_EQ(rows.at(2).mark, nullptr);
    EXPECT_EQ(rows.at(3).icon, nullptr);
    menu->clearCommands();
}

TEST_P(ContextMenuPrivateTest, StatusLinesStayFreeAsLongAsARowHasRoom)
{
    menu->setCommands(ten());
    open();
    menu->setSysWindowSize(1);
    const PegRect one = menu->getPrivateImpl()->getWidget()->Area();
    EXPECT_GE(one.top, host::Field::lineHeight());
    menu->setSysWindowSize(99);
    EXPECT_EQ(shown(), asText({"0"}));
    menu->setSysWindowSize(-1);
    EXPECT_THAT(shown(), HasSubstr("string0:1\n"));
}

TEST_P(ContextMenuPrivateTest, MalformedTextsStayOnTheirLines)
{
    Command broken("a\xff\nend:\n\xc3", Command::ITEM);
    menu->addCommand(&broken, nullptr, false);
    open();
    const std::string text = shown();
    const std::string rows = isSmall() ? asText({"X", "\u2190"}) : asText({"X"});
    EXPECT_EQ(std::ranges::count(text, '\n'), std::ranges::count(rows, '\n'));
    EXPECT_THAT(text, HasSubstr("string0:a"));
    menu->clearCommands();
}

TEST_P(ContextMenuPrivateTest, TenThousandCommandsAreGoneThroughRoundTheEnd)
{
    std::vector<std::unique_ptr<MenuCommand>> many;
    for (unsigned long i = 0; i < 10'000; ++i)
        many.push_back(std::make_unique<MenuCommand>("Command " + std::to_string(i), i));
    open();
    for (const auto& command : many)
        menu->addCommandWithIcon(command.get(), nullptr, false);
    press(PK_UP);
    EXPECT_EQ(menu->getSelectedCommand(), isSmall() ? nullptr : many.back().get());
    menu->clearCommands();
}

INSTANTIATE_ON_PANELS(ContextMenuPrivateTest);

} // namespace
