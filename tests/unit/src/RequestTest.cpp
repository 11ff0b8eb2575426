#include "Request.h"

#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "utilities/Threadable.h"

#include <gmock/gmock.h>

#include <memory>

using DisplayAPI::answer;
using DisplayAPI::GuiRequestEvent;
using DisplayAPI::into;
using DisplayAPI::request;
using DisplayAPI::Widget;
using test::Worker;

namespace {

using Record = std::unique_ptr<GuiRequestEvent>;

constexpr int CODE = 12;

/// The private side of the facade below.
class CounterPrivate {
public:
    void start(int value) { mValue = value; }
    int value() const { return mValue; }

private:
    int mValue = 0;
};

/// A facade written as all of them are.
class Counter : public Widget {
public:
    void start(int value)
    {
        if (isGuiThread())
            return mImplementation.start(value);
        postEventAsync(request(this, START, value));
    }

    int value()
    {
        if (isGuiThread())
            return mImplementation.value();
        int value = -1;
        postEvent(request(this, VALUE, into(value)));
        return value;
    }

    void processGuiRequest(GuiRequestEvent& request) override
    {
        handledOn = Threadable::currentThreadId();
        switch (request.getType()) {
        case START: mImplementation.start(request.intParam1); break;
        case VALUE: answer<int>(request, mImplementation.value()); break;
        }
        signalComplete(request);
    }

    unsigned int handledOn = 0;

private:
    enum { START, VALUE };

    CounterPrivate mImplementation;
};

class FacadeTest : public test::SteppedTest {
protected:
    Counter counter;
};

} // namespace

// Records

TEST(RequestTest, HasRequesterAndCode)
{
    Counter counter;
    const Record record(request(&counter, CODE));
    EXPECT_EQ(record->requesterWidget(), &counter);
    EXPECT_EQ(record->getType(), CODE);
    EXPECT_EQ(record->intParam1, -1);
    EXPECT_EQ(record->returnValue3, nullptr);
}

TEST(RequestTest, IntegersGoToTheIntegerFieldsInOrder)
{
    const Record record(request(nullptr, CODE, 7, 8, 9));
    EXPECT_EQ(record->intParam1, 7);
    EXPECT_EQ(record->intParam2, 8);
    EXPECT_EQ(record->intParam3, 9);
}

TEST(RequestTest, FlagsGoToTheFlagFieldsInOrder)
{
    const Record record(request(nullptr, CODE, false, true));
    EXPECT_FALSE(record->boolParam1);
    EXPECT_TRUE(record->boolParam2);
    EXPECT_EQ(record->intParam1, -1) << "a flag is no integer";
}

TEST(RequestTest, StringsGoToTheStringFieldsInOrder)
{
    const std::string first = "one";
    const Record record(request(nullptr, CODE, first, std::string("two"), std::string("three")));
    EXPECT_EQ(record->stringParam1, "one");
    EXPECT_EQ(record->stringParam2, "two");
    EXPECT_EQ(record->stringParam3, "three");
}

TEST(RequestTest, ALiteralIsAString)
{
    const Record record(request(nullptr, CODE, "one"));
    EXPECT_EQ(record->stringParam1, "one");
    EXPECT_EQ(record->ptrParam1, nullptr);
}

TEST(RequestTest, PointersGoToThePointerFieldsInOrder)
{
    int first = 0;
    const double second = 0;
    std::string third;
    const Record record(request(nullptr, CODE, &first, &second, &third));
    EXPECT_EQ(record->ptrParam1, &first);
    EXPECT_EQ(record->ptrParam2, &second);
    EXPECT_EQ(record->ptrParam3, &third);
}

TEST(RequestTest, EachKindIsCountedByItself)
{
    int object = 0;
    int result = 0;
    const Record record(request(nullptr, CODE, std::string("a"), 1, &object, true, 2, into(result)));
    EXPECT_EQ(record->stringParam1, "a");
    EXPECT_EQ(record->intParam1, 1);
    EXPECT_EQ(record->intParam2, 2);
    EXPECT_EQ(record->ptrParam1, &object);
    EXPECT_TRUE(record->boolParam1);
    EXPECT_EQ(record->returnValue3, &result);
}

TEST(RequestTest, AHelperRecordIsFilledTheSameWay)
{
    const Record record(DisplayAPI::helperRequest(nullptr, CODE, 7, true));
    EXPECT_EQ(record->getType(), CODE);
    EXPECT_EQ(record->intParam1, 7);
    EXPECT_TRUE(record->boolParam1);
}

TEST(RequestTest, APointerComesOutAsWhatWentIn)
{
    std::string object = "here";
    const Record record(request(nullptr, CODE, &object));
    EXPECT_EQ(DisplayAPI::pointer<std::string>(record->ptrParam1), &object);
}

TEST(RequestTest, AnAnswerIsWrittenToTheNamedVariable)
{
    std::string result = "nothing yet";
    const Record record(request(nullptr, CODE, into(result)));
    answer<std::string>(*record, "the answer");
    EXPECT_EQ(result, "the answer");
}

TEST(RequestTest, AnAnswerThatNobodyWantsIsDropped)
{
    const Record record(request(nullptr, CODE));
    answer<int>(*record, 42);
}

// A facade

TEST_F(FacadeTest, RunsDirectlyOnTheGuiThread)
{
    counter.start(5);
    EXPECT_EQ(counter.value(), 5);
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_EQ(counter.handledOn, 0u) << "no record was made";
}

TEST_F(FacadeTest, RunsDirectlyOnEveryThreadUntilAGuiThreadIsRecorded)
{
    Widget::setGuiThreadId(0);
    test::onOtherThread([&] {
        counter.start(6);
        EXPECT_EQ(counter.value(), 6);
    });
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_EQ(counter.handledOn, 0u);
}

TEST_F(FacadeTest, ACallFromElsewhereRunsOnTheGuiThreadInOrder)
{
    int seen = 0;
    Worker worker([&] {
        counter.start(7);
        seen = counter.value();
    });
    gui.waitForQueued(2);
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
    worker.join();

    EXPECT_EQ(seen, 7);
    EXPECT_EQ(counter.handledOn, Threadable::currentThreadId());
}

TEST_F(FacadeTest, ACallWithoutAResultReturnsAtOnce)
{
    test::onOtherThread([&] { counter.start(8); });
    EXPECT_EQ(counter.value(), 0);
    gui.runAll();
    EXPECT_EQ(counter.value(), 8);
}
