#include "DisplayAPI/Ticker.h"

#include "DisplayAPI/TickerPrivateIfc.h"
#include "TickerPrivate.h"
#include "host/toolkit/MessagePool.h"
#include "toolkit/PegThing.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::From;
using test::Posted;

namespace {

const std::string GREETING = "Gr\xC3\xBC\xC3\x9F \xE4\xB8\xAD";

class TickerTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~TickerTest() override
    {
        gui.call([&] { ticker.reset(); });
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    void make(const std::string& text)
    {
        run([&] { ticker = std::make_unique<Ticker>(text); });
    }

    std::string text()
    {
        std::string answer;
        run([&] { answer = ticker->getText(); });
        return answer;
    }

    void carryOut(
        int code, const std::function<void(GuiRequestEvent&)>& fill = [](auto&) {})
    {
        FacadeTest::carryOut(GetParam(), *ticker, code, fill);
    }

    std::unique_ptr<Ticker> ticker;
};

} // namespace

TEST_P(TickerTest, HasItsTextAsSoonAsItIsMade)
{
    run([&] {
        ticker = std::make_unique<Ticker>(GREETING);
        EXPECT_EQ(ticker->getText(), GREETING);
    });
    EXPECT_NE(ticker->getPrivateImpl(), nullptr);
}

TEST_P(TickerTest, HasTheTextThatWasSetLast)
{
    make("abc");
    run([&] {
        ticker->setText("first");
        ticker->setText(GREETING);
        EXPECT_EQ(ticker->getText(), GREETING);
        ticker->setText("");
        EXPECT_EQ(ticker->getText(), "");
    });
}

TEST_P(TickerTest, CodeZeroMakesTheGuiThreadSide)
{
    make("abc");
    TickerPrivateIfc* const first = ticker->getPrivateImpl();
    carryOut(0, [](GuiRequestEvent& r) { r.stringParam1 = "other"; });
    EXPECT_NE(ticker->getPrivateImpl(), first);
    EXPECT_EQ(text(), "other");
    gui.call([&] { delete first; });
}

TEST_P(TickerTest, ChangesOnAnotherThreadAreSeen)
{
    make("abc");
    gui.call([&] { ticker->setText("from the GUI thread"); });
    EXPECT_EQ(text(), "from the GUI thread");
    test::onOtherThread([&] { ticker->setText("from a worker"); });
    EXPECT_EQ(text(), "from a worker");
}

TEST_P(TickerTest, HasNoTextAfterItsWidgetIsGone)
{
    make("abc");
    gui.call([&] { delete ticker->getPrivateImpl()->getWidget(); });
    run([&] {
        ticker->setText("other");
        EXPECT_EQ(ticker->getText(), "");
    });
}

INSTANTIATE_TEST_SUITE_P(Requests, TickerTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

namespace {

class TickerPostTest : public test::SteppedTest {};

} // namespace

TEST_F(TickerPostTest, EverythingWaitsButTheDestructorWhichPostsNothing)
{
    std::unique_ptr<Ticker> ticker;
    EXPECT_EQ(test::postedBy(gui, [&] { ticker = std::make_unique<Ticker>("abc"); }), (Posted{{0}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { ticker->setText("x"); }), (Posted{{1}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { ticker->getText(); }), (Posted{{2}, true}));
    const std::unique_ptr<TickerPrivateIfc> leftBehind(ticker->getPrivateImpl());
    EXPECT_EQ(test::postedBy(gui, [&] { ticker.reset(); }), (Posted{{}, false}));
    EXPECT_EQ(leftBehind->getText(), "x");
}

TEST_F(TickerPostTest, WithoutAGuiThreadSideThereIsNoText)
{
    std::unique_ptr<Ticker> ticker;
    {
        const host::MessagePool::Drained nothingLeft;
        host::MessagePool::failAllocations(1);
        test::onOtherThread([&] { ticker = std::make_unique<Ticker>("abc"); });
    }
    EXPECT_EQ(ticker->getPrivateImpl(), nullptr);
    ticker->setText("other");
    EXPECT_EQ(ticker->getText(), "");
    EXPECT_EQ(test::postedBy(gui, [&] { ticker->setText("other"); }), (Posted{{1}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { EXPECT_EQ(ticker->getText(), ""); }), (Posted{{2}, true}));
}
