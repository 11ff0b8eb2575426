// A shown context menu, and several threads that change it at once. The test's thread is the GUI thread.

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/ContextMenuPrivateIfc.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "host/Phone.h"
#include "kit/OnGuiThread.h"
#include "kit/Phone.h"
#include "support/Application.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;

namespace {

constexpr int ROUNDS = 100;

class ContextMenuLoadTest : public testing::Test {
protected:
    ~ContextMenuLoadTest() override { Widget::setGuiThreadId(0); }

    /// Runs `work` on two threads at once while the menu is on the screen, and ends the program.
    void run(const std::function<void(int)>& work, const std::function<void()>& afterwards)
    {
        phone.run(list, [&] {
            menu.show();
            test::onThreads(2, work);
            afterwards();
            phone.quit();
        });
    }

    kit::Phone phone{{.hardware = host::hardwareName(), .narrow = host::isNarrow()}};
    List list{0};
    ContextMenu menu{false};
};

TEST_F(ContextMenuLoadTest, ThreadsThatSetTheCommandsAtOnceAllReturn)
{
    std::vector<std::unique_ptr<MenuCommand>> commands;
    std::vector<MenuCommand*> all;
    for (unsigned long i = 0; i < 20; ++i)
        all.push_back(commands.emplace_back(std::make_unique<MenuCommand>("Call", i)).get());
    const auto set = [&](int) {
        for (int i = 0; i < ROUNDS; ++i)
            menu.setCommands(all);
    };
    run(set, [&] {
        menu.setCommands(all);
        menu.setDefaultCommand(all.back());
        EXPECT_EQ(menu.getSelectedIndex(), 19);
    });
}

TEST_F(ContextMenuLoadTest, CommandsMayGoWhileTheLanguageChanges)
{
    const auto change = [&](int thread) {
        for (int i = 0; i < ROUNDS; ++i) {
            if (thread == 0) {
                phone.display().localeChanged(i % 2 == 0 ? "de" : "en");
                continue;
            }
            Command goes(new TranslationInfo("Goes", nullptr), Command::ITEM);
            menu.addCommand(&goes, nullptr, false);
        }
    };
    run(change, [&] {
        EXPECT_EQ(menu.getSelectedIndex(), 0);
        EXPECT_EQ(menu.getSelectedCommand(), nullptr);
    });
}

} // namespace
