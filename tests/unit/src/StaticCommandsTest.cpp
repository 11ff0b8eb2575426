#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/IdleDisplay.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupConfirm.h"
#include "DisplayAPI/PopupDialer.h"
#include "DisplayAPI/PopupNotification.h"
#include "DisplayAPI/PopupPlayer.h"
#include "DisplayAPI/PopupTextField.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayAPI/TextBox.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <set>

using namespace DisplayAPI;

namespace {

std::set<Command*> commandsOfClasses()
{
    return {List::SELECT_COMMAND(),
            List::RIGHT_COMMAND(),
            List::BACK_COMMAND(),
            List::DISPLAY_CHANGED_COMMAND(),
            List::TABBAR_ACTIVE_COMMAND(),
            List::TABBAR_INACTIVE_COMMAND(),
            IdleDisplay::BACK_COMMAND(),
            TabScreen::TABFWD_COMMAND(),
            TabScreen::TABBACK_COMMAND(),
            TabScreen::OK(),
            TabScreen::BACK_COMMAND(),
            Desktop::HIDDEN_COMMAND(),
            Form::CURRENT_ITEM_CHANGED_COMMAND(),
            Form::CLIPBOARD_CHANGED_COMMAND(),
            Form::SELECTION_CHANGED_COMMAND(),
            Form::SELECTION_DISPLAY_COMMAND(),
            Form::SAVE_COMMAND(),
            Form::OK_COMMAND(),
            Form::BACK_COMMAND(),
            TextBox::SELECT_COMMAND(),
            TextBox::RIGHT_COMMAND(),
            TextBox::BACK_COMMAND(),
            PopupConfirm::HIDDEN_COMMAND(),
            PopupNotification::HIDDEN_COMMAND(),
            PopupTextField::HIDDEN_COMMAND(),
            PopupDialer::BackCommand(),
            PopupDialer::EditFieldShownCommand(),
            PopupPlayer::CALL(),
            PopupPlayer::SKIP_FORWARD(),
            PopupPlayer::FORWARD(),
            PopupPlayer::PLAY(),
            PopupPlayer::STOP(),
            PopupPlayer::PAUSE(),
            PopupPlayer::REWIND(),
            PopupPlayer::SKIP_REWIND(),
            PopupPlayer::DELETE()};
}

constexpr int NONE_LEFT = 47;

/// Ends the process with the number of those that are left when everything that was made later has gone.
[[noreturn]] void endWithCommands()
{
    static std::set<Command*> commands;
    std::atexit([] {
        int left = 0;
        for (Command* command : commands)
            left += Command::exists(command) ? 1 : 0;
        std::_Exit(left == 0 ? NONE_LEFT : left);
    });
    commands = commandsOfClasses();
    std::exit(0);
}

TEST(StaticCommandsDeathTest, CommandsOfAllClassesGoAtTheEndOfTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(endWithCommands(), testing::ExitedWithCode(NONE_LEFT), "");
}

TEST(StaticCommandsTest, EachIsAnObjectOfItsOwnAndTheSameForTheWholeProcess)
{
    const std::set<Command*> commands = commandsOfClasses();
    EXPECT_EQ(commands.size(), 36U);
    EXPECT_EQ(commandsOfClasses(), commands);
}

} // namespace
