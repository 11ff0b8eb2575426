#include "DisplayAPI/Command.h"

#include "CommandExecutor.h"
#include "DisplayAPI/CommandListener.h"
#include "support/Worker.h"
#include "utilities/Semaphore.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <type_traits>

using DisplayAPI::Command;
using DisplayAPI::CommandExecutor;
using test::Worker;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::has_virtual_destructor_v<Command>);

namespace {

/// "key" becomes "<key>".
class Brackets : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return "<" + key + ">"; }
};

class Listener : public DisplayAPI::CommandListener {
public:
    void commandAction(Command* command, DisplayAPI::Displayable*) override { received.push_back(command); }
    std::vector<Command*> received;
};

class CommandTest : public testing::Test {
protected:
    ~CommandTest() override { setVariant(1); }

    static void setVariant(int variant) { KestrelApplication::getCurrentApplication()->setHardwareVariant(variant); }

    TranslationInfo* newLabel() { return new TranslationInfo("Call", &translator, " 42"); }

    /// Whether a thread that does not hold the list lock gets it.
    static bool isListLockFree()
    {
        bool free = false;
        test::onOtherThread([&] {
            free = Command::commandListMutex()->take(0);
            if (free)
                Command::commandListMutex()->give();
        });
        return free;
    }

    Brackets translator;
};

/// A command that shares a translation with another one, and gives it up before it dies: both would delete it.
class SharingCommand : public Command {
public:
    using Command::Command;
    explicit SharingCommand(const Command& source) : Command(source) {}
    ~SharingCommand() override { Command::operator=(Command("", OK)); }
    using Command::operator=;
};

} // namespace

TEST_F(CommandTest, HasAPlainTextAndAType)
{
    const Command command("Call", Command::BACK);
    EXPECT_EQ(command.getText(), "Call");
    EXPECT_EQ(command.getBasicText(), "Call");
    EXPECT_EQ(command.getType(), Command::BACK);
    EXPECT_EQ(command.getTranslationInfo(), nullptr);
}

TEST_F(CommandTest, HasATranslatedLabelAndAType)
{
    TranslationInfo* const label = newLabel();
    const Command command(label, Command::RIGHT);
    EXPECT_EQ(command.getTranslationInfo(), label);
    EXPECT_EQ(command.getType(), Command::RIGHT);
}

TEST_F(CommandTest, AnyTypeTravelsThrough)
{
    const Command command("Call", static_cast<Command::Type>(4711));
    EXPECT_EQ(command.getType(), 4711);
    static_assert(sizeof(Command::Type) == 4);
}

TEST_F(CommandTest, DoesNotUseTheAlternativeDisplayAtFirst)
{
    Command command("Call", Command::OK);
    EXPECT_FALSE(command.useAlternativeDisplay());
    command.setUseAlternativeDisplay(true);
    EXPECT_TRUE(command.useAlternativeDisplay());
}

TEST_F(CommandTest, TheTextOfATranslationDependsOnTheVariant)
{
    const Command command(newLabel(), Command::OK);
    setVariant(1);
    EXPECT_EQ(command.getText(), "<Call>");
    for (const int variant : {0, 2, 8, -1}) {
        setVariant(variant);
        EXPECT_EQ(command.getText(), "<Call> 42") << "variant " << variant;
    }
}

TEST_F(CommandTest, TheBasicTextOfATranslationDoesNotDependOnTheVariant)
{
    const Command command(newLabel(), Command::OK);
    for (const int variant : {0, 1}) {
        setVariant(variant);
        EXPECT_EQ(command.getBasicText(), "<Call>");
    }
}

TEST_F(CommandTest, APlainTextDoesNotDependOnTheVariant)
{
    const Command command("Call", Command::OK);
    setVariant(0);
    EXPECT_EQ(command.getText(), "Call");
}

TEST_F(CommandTest, WithoutAnApplicationTheTextIsThatOfVariantOne)
{
    const Command command(newLabel(), Command::OK);
    setVariant(0);
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    KestrelApplication::setCurrentApplication(nullptr);
    EXPECT_EQ(command.getText(), "<Call>");
    KestrelApplication::setCurrentApplication(application);
}

TEST_F(CommandTest, ATranslationIsLookedUpEachTime)
{
    class Counting : public TranslatorIfc {
    public:
        std::string translate(const std::string& key) override { return key + std::to_string(++calls); }
        int calls = 0;
    } counting;
    const Command command(new TranslationInfo("Text", &counting), Command::OK);
    EXPECT_EQ(command.getText(), "Text1");
    EXPECT_EQ(command.getText(), "Text2");
}

// Copies

TEST_F(CommandTest, ACopyHasTheFieldsOfItsSource)
{
    Command source("Call", Command::BACK);
    source.setUseAlternativeDisplay(true);
    const Command copy(source);
    EXPECT_EQ(copy.getText(), "Call");
    EXPECT_EQ(copy.getType(), Command::BACK);
    EXPECT_TRUE(copy.useAlternativeDisplay());
}

TEST_F(CommandTest, ACopySharesTheTranslation)
{
    const Command source(newLabel(), Command::OK);
    const SharingCommand copy(source);
    EXPECT_EQ(copy.getTranslationInfo(), source.getTranslationInfo());
}

TEST_F(CommandTest, ACopyIsALiveCommandOfItsOwn)
{
    const Command source("Call", Command::OK);
    Command* const copy = new Command(source);
    EXPECT_TRUE(Command::exists(copy));
    delete copy;
    EXPECT_FALSE(Command::exists(copy));
}

TEST_F(CommandTest, AssignmentCopiesTheFieldsAndSharesTheTranslation)
{
    Command source(newLabel(), Command::BACK);
    source.setUseAlternativeDisplay(true);
    SharingCommand target("Old", Command::OK);
    target = source;
    EXPECT_EQ(target.getTranslationInfo(), source.getTranslationInfo());
    EXPECT_EQ(target.getType(), Command::BACK);
    EXPECT_TRUE(target.useAlternativeDisplay());
    EXPECT_TRUE(Command::exists(&target));
}

TEST_F(CommandTest, AssignmentOfAPlainCommandCopiesItsText)
{
    const Command source("New", Command::BACK);
    Command target("Old", Command::OK);
    target = source;
    EXPECT_EQ(target.getText(), "New");
    EXPECT_EQ(target.getTranslationInfo(), nullptr);
}

// The set of live commands

TEST_F(CommandTest, IsLiveFromItsConstructorToItsDestructor)
{
    Command* const plain = new Command("Call", Command::OK);
    Command* const translated = new Command(newLabel(), Command::OK);
    EXPECT_TRUE(Command::exists(plain));
    EXPECT_TRUE(Command::exists(translated));

    delete plain;
    EXPECT_FALSE(Command::exists(plain));
    EXPECT_TRUE(Command::exists(translated));

    delete translated;
    EXPECT_FALSE(Command::exists(translated));
}

TEST_F(CommandTest, APointerThatIsNoCommandIsNotRead)
{
    EXPECT_FALSE(Command::exists(nullptr));
    EXPECT_FALSE(Command::exists(reinterpret_cast<Command*>(0x10)));
}

TEST_F(CommandTest, ACommandCanBeTakenOutOfTheSetAndPutBack)
{
    const Command other("Other", Command::OK);
    Command command("Call", Command::OK);
    Command::removeCommand(&command);
    EXPECT_FALSE(Command::exists(&command));
    Command::addCommand(&command);
    EXPECT_TRUE(Command::exists(&command));
}

// The list lock

TEST_F(CommandTest, TheListLockIsMadeOnFirstUseAndStays)
{
    const Command command("Call", Command::OK);
    Semaphore* const lock = Command::commandListMutex();
    EXPECT_NE(lock, nullptr);
    EXPECT_EQ(Command::commandListMutex(), lock);
}

TEST_F(CommandTest, TheHolderOfTheListLockMayTakeItAgain)
{
    const Command command("Call", Command::OK);
    Semaphore* const lock = Command::commandListMutex();
    EXPECT_TRUE(lock->take(0));
    EXPECT_TRUE(lock->take(0));
    lock->give();
    EXPECT_FALSE(isListLockFree());
    lock->give();
    EXPECT_TRUE(isListLockFree());
}

TEST_F(CommandTest, TheTextIsReadUnderTheListLock)
{
    const Command command("Call", Command::OK);
    Command::commandListMutex()->take(-1);
    Worker reader([&] { EXPECT_EQ(command.getText(), "Call"); });
    EXPECT_TRUE(reader.isBlocked());
    Command::commandListMutex()->give();
}

TEST_F(CommandTest, TheBasicTextIsReadWithoutTheListLock)
{
    const Command command("Call", Command::OK);
    Command::commandListMutex()->take(-1);
    test::onOtherThread([&] { EXPECT_EQ(command.getBasicText(), "Call"); });
    Command::commandListMutex()->give();
}

TEST_F(CommandTest, LivenessIsAskedAndChangedUnderTheListLock)
{
    Command command("Call", Command::OK);
    Command::commandListMutex()->take(-1);
    Worker asker([&] { EXPECT_TRUE(Command::exists(&command)); });
    Worker maker([] { Command("Other", Command::OK); });
    EXPECT_TRUE(asker.isBlocked());
    EXPECT_TRUE(maker.isBlocked());
    Command::commandListMutex()->give();
}

TEST_F(CommandTest, DeletingACommandLeavesTheListLockFree)
{
    const Command other("Other", Command::OK);
    std::optional<Command> command(std::in_place, "Call", Command::OK);
    command.reset();
    EXPECT_TRUE(isListLockFree());
}

TEST_F(CommandTest, DeletingTheLastLiveCommandLeavesAFreshAvailableListLock)
{
    std::optional<Command> last(std::in_place, "Call", Command::OK);
    Command::commandListMutex()->take(-1);
    EXPECT_FALSE(isListLockFree());

    last.reset();

    EXPECT_TRUE(isListLockFree()) << "the lock that this thread holds is gone, the new one is free";
}

TEST_F(CommandTest, CommandsCanBeMadeAgainAfterTheLastOne)
{
    for (int round = 0; round < 3; ++round) {
        Command command("Call", Command::OK);
        EXPECT_TRUE(Command::exists(&command));
        EXPECT_EQ(command.getText(), "Call");
    }
}

// Recall

TEST_F(CommandTest, DeletingACommandRecallsItsNotificationsForEveryListener)
{
    Listener first;
    Listener second;
    Command kept("Kept", Command::OK);
    std::optional<Command> doomed(std::in_place, "Doomed", Command::OK);
    CommandExecutor::postCommand(&first, &*doomed, nullptr, false);
    CommandExecutor::postCommand(&second, &kept, nullptr, false);
    CommandExecutor::postCommand(&second, &*doomed, nullptr, false);
    CommandExecutor::postCommand(&first, &kept, nullptr, false);

    doomed.reset();
    CommandExecutor().run();

    EXPECT_THAT(first.received, ElementsAre(&kept));
    EXPECT_THAT(second.received, ElementsAre(&kept));
}

TEST_F(CommandTest, DeletingACommandDuringItsNotificationIsAllowed)
{
    class Deleting : public DisplayAPI::CommandListener {
    public:
        void commandAction(Command* command, DisplayAPI::Displayable*) override
        {
            ++calls;
            delete command;
        }
        int calls = 0;
    } listener;
    auto* const command = new Command("Once", Command::OK);
    CommandExecutor::postCommand(&listener, command, nullptr, false);
    CommandExecutor::postCommand(&listener, command, nullptr, false);

    CommandExecutor().run();

    EXPECT_EQ(listener.calls, 1) << "the second notification is recalled by the first";
}

TEST_F(CommandTest, NotificationsAreRecalledBeforeTheListLockIsTaken)
{
    Listener listener;
    const Command kept("Kept", Command::OK);
    auto doomed = std::make_unique<Command>("Doomed", Command::OK);
    CommandExecutor::postCommand(&listener, doomed.get(), nullptr, false);

    Command::commandListMutex()->take(-1);
    Worker deleter([&] { doomed.reset(); });
    EXPECT_TRUE(deleter.isBlocked());
    CommandExecutor().run();
    Command::commandListMutex()->give();

    EXPECT_THAT(listener.received, IsEmpty());
}

// The end of the process

namespace {

[[noreturn]] void endWithStaticObjects()
{
    static Command command("Static", Command::OK); // made before what it needs at its end
    static Listener listener;
    CommandExecutor::postCommand(&listener, &command, nullptr, false);
    std::exit(0);
}

} // namespace

TEST(CommandDeathTest, StaticCommandsAndListenersMayOutliveEverythingElse)
{
    EXPECT_EXIT(endWithStaticObjects(), testing::ExitedWithCode(0), "");
}
