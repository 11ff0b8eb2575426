// Serialisations of several threads at once: whose turn it is, and what observers may do meanwhile.

#include "unit/src/DisplayPrivateTest.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "doubles/DisplayPrivateDouble.h"
#include "support/Gate.h"
#include "support/GuiLoop.h"
#include "support/Worker.h"
#include "utilities/Semaphore.h"

#include <set>

using namespace DisplayAPI;
using doubles::Screen;
using test::DisplayPrivateTest;
using test::Gate;
using test::Worker;

namespace {

using Record = DisplayRequestEvent;

/// Holds callers up after their request has been carried out and before they take its result.
class HoldingDouble : public doubles::DisplayPrivateDouble {
public:
    void postEvent(Record* request) override
    {
        DisplayPrivateDouble::postEvent(request);
        ++served;
        gate.wait();
    }

    Gate gate;
    std::atomic<int> served{0};
};

class DisplayResultLockTest : public test::SteppedTest {
protected:
    void carryOut(Record::DisplayRequests code)
    {
        Record record(&display, code, nullptr, false);
        display.processDisplayRequest(&record);
    }

    /// A worker whose serialisation has been carried out and not been taken.
    std::unique_ptr<Worker> heldUp(std::string& text)
    {
        auto worker = std::make_unique<Worker>([&] { text = display.serialise(); });
        gui.waitForQueued(1);
        gui.step();
        test::waitUntil([this] { return side->served == 1; });
        return worker;
    }

    HoldingDouble* const side = new HoldingDouble;
    Display display{side};
};

} // namespace

TEST_F(DisplayResultLockTest, TheNextResultWaitsUntilTheLastOneHasBeenTaken)
{
    for (const auto code : {Record::SERIALISE, Record::SERIALISE_BY_RECT}) {
        HoldingDouble& holding = *new HoldingDouble;
        Display held(&holding);
        std::string text;
        Worker requester([&] { text = held.serialise(); });
        gui.waitForQueued(1);
        gui.step();
        test::waitUntil([&] { return holding.served == 1; });

        Record next(&held, code, nullptr, false);
        Worker guiThread([&] {
            Widget::setGuiThreadId();
            held.processDisplayRequest(&next);
        });
        EXPECT_TRUE(guiThread.isBlocked());
        EXPECT_EQ(holding.serialisations, 1) << "the lock is taken before the screen is described";
        holding.gate.open();
        guiThread.join();
        requester.join();
        Widget::setGuiThreadId();
        EXPECT_EQ(text, "1");
        EXPECT_EQ(holding.serialisations, 2);
    }
}

TEST_F(DisplayResultLockTest, TheDirectPathNeedsNoLock)
{
    std::string text;
    const auto requester = heldUp(text);
    EXPECT_EQ(display.serialise(), "2");
    EXPECT_EQ(display.serialiseByRect({}, true), "3");
    side->gate.open();
    requester->join();
    EXPECT_EQ(text, "1") << "the direct path has left the result alone";
}

TEST_F(DisplayResultLockTest, OtherRequestsNeedNoLock)
{
    std::string text;
    const auto requester = heldUp(text);
    for (int code = 0; code <= 26; ++code)
        if (code != Record::SERIALISE && code != Record::SERIALISE_BY_RECT)
            carryOut(static_cast<Record::DisplayRequests>(code));
    side->gate.open();
    requester->join();
    EXPECT_EQ(text, "1");
}

TEST_F(DisplayResultLockTest, TheRequesterGivesTheLock)
{
    side->gate.open();
    for (int round = 1; round <= 3; ++round) {
        std::string text;
        Worker requester([&] { text = round == 2 ? display.serialiseByRect({}, false) : display.serialise(); });
        gui.waitForQueued(1);
        gui.step();
        requester.join();
        EXPECT_EQ(text, std::to_string(round));
    }
}

namespace {

/// Holds callers up as HoldingDouble does, at a gate that outlives it.
class MortalDouble : public doubles::DisplayPrivateDouble {
public:
    MortalDouble(Gate& gate, std::atomic<int>& served) : mGate(gate), mServed(served) {}

    void postEvent(Record* request) override
    {
        Gate& gate = mGate;
        std::atomic<int>& served = mServed;
        DisplayPrivateDouble::postEvent(request);
        ++served;
        gate.wait();
    }

private:
    Gate& mGate;
    std::atomic<int>& mServed;
};

/// A display that ends after the requests of readers.
class DisplayEndTest : public test::SteppedTest {
protected:
    std::unique_ptr<Worker> reader()
    {
        auto worker = std::make_unique<Worker>([this] { text = display->serialise(); });
        gui.waitForQueued(1);
        gui.step();
        test::waitUntil([this] { return served == 1; });
        return worker;
    }

    void carryOut(std::string* mark)
    {
        Record record(display.get(), Record::SERIALISE, nullptr, false);
        record.setStringReturnValue(mark);
        display->processDisplayRequest(&record);
    }

    Gate gate;
    std::atomic<int> served{0};
    std::string text;
    std::unique_ptr<Display> display = std::make_unique<Display>(new MortalDouble(gate, served));
};

} // namespace

TEST_F(DisplayEndTest, WaitsForTheReaderWhoseResultIsThere)
{
    const auto worker = reader();
    Worker opener([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        gate.open();
    });
    display.reset();
    EXPECT_TRUE(gate.isOpen()) << "the reader had not read yet";
    worker->join();
    EXPECT_EQ(text, "1");
}

TEST_F(DisplayEndTest, WaitsForNobodyWhoHasRead)
{
    gate.open();
    reader()->join();
    display.reset();
    EXPECT_EQ(text, "1");
}

TEST_F(DisplayEndTest, WaitsForNobodyWhereNoReaderHasAsked)
{
    std::string mark;
    carryOut(&mark);
    display.reset();
    EXPECT_NE(mark, "") << "served all the same";
}

TEST_F(DisplayEndTest, AResultThatNobodyReadsAfterOneThatWasReadHoldsNothingUp)
{
    gate.open();
    reader()->join();
    carryOut(nullptr);
    display.reset();
}

TEST_F(DisplayEndTest, WaitsForNobodyWhoseRequestWasNotCarriedOut)
{
    Worker worker([this] { text = display->serialise(); });
    gui.waitForQueued(1);
    const PegMessage message = gui.takeMessage();
    display.reset();
    gate.open();
    auto* const request = static_cast<Record*>(message.pData);
    request->requestCompleted();
    delete request;
    worker.join();
    EXPECT_EQ(text, "");
}

namespace {

/// A real display whose screens read as long texts of one letter each.
class DisplayOfManyRequestersTest : public testing::Test {
protected:
    static constexpr std::size_t LENGTH = 5000;

    DisplayOfManyRequestersTest()
    {
        gui.call([this] {
            display = std::make_unique<Display>(
                new DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true));
            display->subscribe(&observer);
            display->show();
            for (const char letter : {'a', 'b'}) {
                screens.push_back(std::make_unique<Screen>(std::string(1, letter)));
                screens.back()->getPrivateImpl()->text = std::string(LENGTH, letter);
            }
            display->setCurrent(screens[0].get());
        });
    }

    ~DisplayOfManyRequestersTest() override
    {
        gui.call([this] {
            screens.clear();
            display.reset();
        });
    }

    struct : DisplayEventIfc {
        void displayChanged(std::string) override {}
    } observer;

    test::GuiLoop gui;
    std::unique_ptr<Display> display;
    std::vector<std::unique_ptr<Screen>> screens;
};

} // namespace

TEST_F(DisplayOfManyRequestersTest, EachGetsAWholeText)
{
    constexpr int REQUESTERS = 4;
    constexpr int CALLS = 100;
    std::vector<std::set<std::string>> answers(REQUESTERS);
    {
        std::vector<std::unique_ptr<Worker>> workers;
        for (auto& own : answers)
            workers.push_back(std::make_unique<Worker>([&] {
                for (int i = 0; i < CALLS; ++i)
                    own.insert(i % 2 == 0 ? display->serialise() : display->serialiseByRect({}, true));
            }));
        for (int i = 0; i < CALLS; ++i)
            display->setCurrent(screens[static_cast<std::size_t>(i % 2)].get());
    }
    const std::set<std::string> whole{std::string(LENGTH, 'a'), std::string(LENGTH, 'b')};
    for (const auto& own : answers)
        for (const std::string& text : own)
            EXPECT_TRUE(whole.contains(text)) << text.size() << " characters";
}

TEST_F(DisplayOfManyRequestersTest, TheGuiThreadAsksInBetween)
{
    Worker worker([&] {
        for (int i = 0; i < 100; ++i)
            EXPECT_EQ(display->serialise(), std::string(LENGTH, 'a'));
    });
    for (int i = 0; i < 100; ++i)
        gui.call([&] { EXPECT_EQ(display->serialise(), std::string(LENGTH, 'a')); });
}

namespace {

/// An observer that does something when it is told of a change.
struct ActingObserver : DisplayEventIfc {
    explicit ActingObserver(std::function<void()> toDo) : act(std::move(toDo)) {}

    void displayChanged(std::string) override
    {
        ++notifications;
        act();
    }

    std::function<void()> act;
    int notifications = 0;
};

using DisplayObservationTest = DisplayPrivateTest;

} // namespace

TEST_F(DisplayObservationTest, AnObserverMayAskForTheTextWhileItIsTold)
{
    given({&menu});
    menu.getPrivateImpl()->text = "object:\nend:\n";
    std::string whole;
    std::string part;
    ActingObserver asking([&] {
        whole = display->serialise();
        part = display->serialiseByRect({DisplayAPIUtils::Rect(0, 0, 240, 128)}, true);
    });
    display->subscribe(&asking);
    display->displayChanged();
    display->unSubscribe();
    EXPECT_EQ(whole, "object:\nend:\n");
    EXPECT_EQ(part, "object:\nend:\n");
    EXPECT_EQ(asking.notifications, 1);
}

TEST_F(DisplayObservationTest, AnObserverMayUnsubscribeWhileItIsTold)
{
    ActingObserver leaving([&] { display->unSubscribe(); });
    display->subscribe(&leaving);
    display->displayChanged();
    display->displayChanged();
    EXPECT_EQ(leaving.notifications, 1);
}

TEST_F(DisplayObservationTest, AnObserverMayHandOverWhileItIsTold)
{
    ActingObserver leaving([&] { display->subscribe(&observer); });
    display->subscribe(&leaving);
    display->displayChanged();
    EXPECT_EQ(observer.notifications, 0) << "told of the next change";
    display->displayChanged();
    EXPECT_EQ(observer.notifications, 1);
    EXPECT_EQ(leaving.notifications, 1);
}

TEST_F(DisplayObservationTest, NobodyUnsubscribesOnAnotherThreadWhileAnObserverIsTold)
{
    std::unique_ptr<Worker> worker;
    ActingObserver slow([&] {
        worker = std::make_unique<Worker>([this] { display->unSubscribe(); });
        EXPECT_TRUE(worker->isBlocked());
    });
    display->subscribe(&slow);
    display->displayChanged();
    worker->join();
    display->displayChanged();
    EXPECT_EQ(slow.notifications, 1);
}
