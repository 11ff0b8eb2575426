#include "support/GuiLoop.h"

#include "DisplayAPI/Widget.h"
#include "DisplayEventFilter.h"
#include "host/toolkit/Loop.h"
#include "host/toolkit/MainQueue.h"
#include "presentation/PRESCPresentationManager.h"
#include "toolkit/PegFunctions.h"
#include "utilities/Threadable.h"

#include <gtest/gtest.h>

#include <latch>
#include <pthread.h>
#include <utility>

namespace test {

using Work = std::function<void()>;

/// Carries out the work that its messages bring.
class GuiLoop::Receiver : public PegThing {
public:
    int Message(const PegMessage& message) override
    {
        const std::unique_ptr<Work> work(static_cast<Work*>(message.pData));
        (*work)();
        return 0;
    }
};

GuiLoop::GuiLoop()
{
    std::latch started(1);
    mThread = std::thread([this, &started] {
        pthread_setname_np(pthread_self(), "gui");
        pegInit();
        mReceiver = std::make_unique<Receiver>();
        post([this, &started] {
            mThreadId = Threadable::currentThreadId();
            started.count_down();
        });
        run();
    });
    started.wait();
}

GuiLoop::~GuiLoop()
{
    host::Loop::quit();
    mThread.join();
    EXPECT_EQ(gtPegMainQueue->count(), 0) << "messages left behind";
}

void GuiLoop::run()
{
    DisplayAPI::Widget::setGuiThreadId();
    {
        DisplayAPI::DisplayEventFilter filter(true);
        gpPresent->Execute("tests/support/GuiLoop");
    }
    DisplayAPI::Widget::setGuiThreadId(0);
    mReceiver.reset();
    pegCleanUp();
}

void GuiLoop::call(Work work)
{
    std::latch done(1);
    post([&] {
        work();
        done.count_down();
    });
    done.wait();
}

void GuiLoop::post(Work work)
{
    constexpr std::uint16_t WORK = 0x7000;
    auto* const job = new Work(std::move(work));
    ASSERT_TRUE(host::MainQueue::push({WORK, 0, mReceiver.get(), nullptr, nullptr, job}));
}

} // namespace test
