// Commands are deleted while notifications of them are queued and delivered.

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "support/Application.h"
#include "support/Recalls.h"
#include "utilities/Semaphore.h"

#include <array>
#include <mutex>
#include <optional>

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using test::Chance;

namespace {

constexpr int POSTERS = 3;
constexpr int CALLS = 600;
constexpr std::size_t COMMANDS = 400;
const std::string LABEL = "a label that is too long to be kept inside the string object";

/// Commands that are made once and never again at the same place, so that an address says which one it was.
class Commands {
public:
    Commands()
    {
        for (auto& command : mCommands)
            command.emplace(LABEL, Command::OK);
    }

    /// Posts any live command; returns whether there was one.
    bool post(CommandListener& listener, Chance& chance)
    {
        std::lock_guard lock(mMutex);
        const std::size_t any = pick(chance);
        if (mDead[any])
            return false;
        listener.postCommandAction(&*mCommands[any], nullptr);
        return true;
    }

    void deleteAny(Chance& chance)
    {
        const std::size_t victim = pick(chance);
        {
            std::lock_guard lock(mMutex);
            if (mDead[victim])
                return;
            mDead[victim] = true;
        }
        mCommands[victim].reset();
        mGone[victim] = true;
    }

    /// Notes a delivery; returns how often this command has been delivered since it was gone.
    int deliveredLate(const Command* command)
    {
        const auto index =
            static_cast<std::size_t>(reinterpret_cast<const std::optional<Command>*>(command) - mCommands.data());
        return mGone[index] ? ++mLate[index] : 0;
    }

private:
    static std::size_t pick(Chance& chance) { return static_cast<std::size_t>(chance.below(COMMANDS)); }

    std::mutex mMutex;
    std::array<std::optional<Command>, COMMANDS> mCommands;
    std::array<bool, COMMANDS> mDead{};
    std::array<std::atomic<bool>, COMMANDS> mGone{};
    std::array<std::atomic<int>, COMMANDS> mLate{};
};

/// Counts, and reads each command as far as it still lives.
class Listener : public CommandListener {
public:
    explicit Listener(std::function<void(Command*)> onCommand) : mOnCommand(std::move(onCommand)) {}

    void commandAction(Command* command, Displayable*) override
    {
        readLabel(command);
        mOnCommand(command);
        ++delivered;
    }

    std::atomic<int> delivered{0};

private:
    static void readLabel(Command* command)
    {
        Semaphore* const listLock = Command::commandListMutex();
        listLock->take(-1);
        if (Command::exists(command)) {
            EXPECT_EQ(command->getText(), LABEL);
        }
        listLock->give();
    }

    std::function<void(Command*)> mOnCommand;
};

class CommandDeletionTest : public test::SeededTest {
protected:
    void postFromManyThreads(Listener& listener, const std::function<void(Chance&)>& besides)
    {
        test::onThreads(POSTERS, [&](int thread) {
            Chance chance(seed(), thread);
            for (int call = 0; call < CALLS; ++call) {
                posted += commands.post(listener, chance) ? 1 : 0;
                besides(chance);
            }
        });
        test::waitUntil([&] { return listener.delivered + recalls.count() == posted; });
    }

    // The list lock goes with the last command, but the listener holds it for longer than the library does.
    const Command anchor{"anchor", Command::OK};
    Commands commands;
    test::Recalls recalls;
    std::atomic<int> posted{0};
};

INSTANTIATE_SEEDED(CommandDeletionTest);

} // namespace

TEST_P(CommandDeletionTest, ACommandDeletedInANotificationIsNotDeliveredAgain)
{
    Chance chance(seed(), POSTERS);
    Listener listener([&](Command* command) {
        EXPECT_EQ(commands.deliveredLate(command), 0);
        commands.deleteAny(chance);
    });
    postFromManyThreads(listener, [](Chance&) {});

    EXPECT_EQ(listener.delivered + recalls.count(), posted);
}

TEST_P(CommandDeletionTest, ACommandDeletedElsewhereIsDeliveredAtMostOnceMore)
{
    Listener listener([&](Command* command) { EXPECT_LE(commands.deliveredLate(command), 1); });
    postFromManyThreads(listener, [&](Chance& chance) {
        if (chance.oneIn(4))
            commands.deleteAny(chance);
    });

    EXPECT_EQ(listener.delivered + recalls.count(), posted);
}

TEST(CommandLifeTest, CommandsOfManyThreadsComeAndGoTogetherWithTheirListLock)
{
    test::onThreads(POSTERS, [](int) {
        for (int round = 0; round < 2000; ++round) {
            Command command("Call", Command::OK);
            ASSERT_TRUE(Command::exists(&command));
            ASSERT_EQ(command.getText(), "Call");
        }
    });
    EXPECT_TRUE(Command::commandListMutex()->take(0));
    Command::commandListMutex()->give();
}
