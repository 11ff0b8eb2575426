#include "DisplayAPI/PopupPlayer.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "PopupPlayerPrivate.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/WidgetName.h"
#include "support/Worker.h"

#include <map>
#include <memory>
#include <new>

using namespace DisplayAPI;
using test::Worker;
using testing::ElementsAre;

namespace {

constexpr int CREATE = 0;
constexpr int DESTROY = 1;

/// Says when it goes.
class WatchedSide : public PopupPlayerPrivate {
public:
    explicit WatchedSide(bool& lives) : mLives(lives) { mLives = true; }
    ~WatchedSide() override { mLives = false; }

private:
    bool& mLives;
};

class PopupPlayerTest : public test::SteppedTest {
protected:
    /// A worker that nothing wakes any more: the process ends while it waits, so nobody may join it.
    static const Worker& forGood(std::function<void()> work) { return *new Worker(std::move(work)); }

    static void carryOut(PopupPlayer& player, int code)
    {
        GuiRequestEvent request(&player, code);
        player.processGuiRequest(request);
    }
};

TEST_F(PopupPlayerTest, OnTheGuiThreadItIsMadeAtOnceForEveryPanel)
{
    PopupPlayer player;
    EXPECT_NE(dynamic_cast<PopupPlayerPrivate*>(player.getPrivateImpl()), nullptr);
    EXPECT_EQ(test::WidgetName::of(player), "PopupPlayer");
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(PopupPlayerTest, DeletesTheSideThatItHasAdopted)
{
    bool lives = false;
    {
        auto* const side = new WatchedSide(lives);
        PopupPlayer player(side);
        EXPECT_EQ(player.getPrivateImpl(), static_cast<PopupPlayerPrivateIfc*>(side));
        EXPECT_EQ(test::WidgetName::of(player), "PopupPlayer");
        EXPECT_TRUE(lives);
    }
    EXPECT_FALSE(lives);
}

TEST_F(PopupPlayerTest, MayBeWithoutASide)
{
    PopupPlayer player(nullptr);
    EXPECT_EQ(player.getPrivateImpl(), nullptr);
}

TEST_F(PopupPlayerTest, RequestsMakeAndDeleteTheSideAndNoOthersDoAnything)
{
    PopupPlayer player(nullptr);
    for (const int unknown : {-1, 2, 99})
        carryOut(player, unknown);
    EXPECT_EQ(player.getPrivateImpl(), nullptr);
    carryOut(player, CREATE);
    EXPECT_NE(player.getPrivateImpl(), nullptr);
    carryOut(player, 2);
    EXPECT_NE(player.getPrivateImpl(), nullptr);
    carryOut(player, DESTROY);
    EXPECT_EQ(player.getPrivateImpl(), nullptr);
    carryOut(player, DESTROY);
}

TEST_F(PopupPlayerTest, WorkerThatMakesOneWaitsForEver)
{
    static auto* const place = new std::byte[sizeof(PopupPlayer)];
    const Worker& worker = forGood([] { new (place) PopupPlayer; });
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE));
    gui.runAll();
    EXPECT_NE(std::launder(reinterpret_cast<PopupPlayer*>(place))->getPrivateImpl(), nullptr);
    EXPECT_TRUE(worker.isBlocked());
}

TEST_F(PopupPlayerTest, WorkerThatDeletesOneWaitsForEver)
{
    bool lives = false;
    auto* const player = new PopupPlayer(new WatchedSide(lives));
    const Worker& worker = forGood([player] { delete player; });
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(DESTROY));
    gui.runAll();
    EXPECT_FALSE(lives);
    EXPECT_TRUE(worker.isBlocked());
}

TEST_F(PopupPlayerTest, WorkerWaitsForAnUnknownRequestForEver)
{
    static auto* const player = new PopupPlayer(nullptr);
    const Worker& worker = forGood([] { player->postEvent(99); });
    gui.waitForQueued(1);
    gui.runAll();
    EXPECT_TRUE(worker.isBlocked());
}

TEST_F(PopupPlayerTest, WithoutAFilterRequestsRunAtOnceOnTheCallingThread)
{
    gui.removeFilter();
    Worker worker([] {
        PopupPlayer player;
        EXPECT_NE(player.getPrivateImpl(), nullptr);
    });
    worker.join();
}

TEST_F(PopupPlayerTest, HasNoProgressAndNoListeners)
{
    testing::StrictMock<doubles::MockCommandListener> listener;
    PopupPlayer player;
    player.addCommandListener(&listener);
    player.setProgressBarStepValue(7);
    player.setProgressBarValue(50);
    EXPECT_EQ(player.getProgressBarValue(), 0);
    player.removeCommandListener(&listener);
    Worker worker([&] {
        player.setProgressBarValue(60);
        EXPECT_EQ(player.getProgressBarValue(), 0);
    });
    worker.join();
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(PopupPlayerTest, CommandsAreTheSameEachTimeWithATypeAndNoLabel)
{
    const std::map<Command* (*)(), int> types = {
        {&PopupPlayer::CALL, 11},  {&PopupPlayer::SKIP_FORWARD, 14}, {&PopupPlayer::FORWARD, 9},
        {&PopupPlayer::PLAY, 6},   {&PopupPlayer::STOP, 8},          {&PopupPlayer::PAUSE, 15},
        {&PopupPlayer::REWIND, 1}, {&PopupPlayer::SKIP_REWIND, 13},  {&PopupPlayer::DELETE, 12},
    };
    for (const auto& [command, type] : types) {
        EXPECT_EQ(command(), command());
        EXPECT_EQ(command()->getType(), type);
        EXPECT_EQ(command()->getBasicText(), "");
    }
}

} // namespace
