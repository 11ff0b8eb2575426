#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "support/From.h"
#include "support/GuiLoop.h"
#include "utilities/HardwareVersion.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace test {

inline void setHardwareVariant(int variant)
{
    KestrelApplication::getCurrentApplication()->setHardwareVariant(variant);
}

/// Base of the tests of facades: a GUI thread with its loop, and recording private sides. The test's own thread is an
/// application's.
class FacadeTest : public testing::Test {
protected:
    FacadeTest()
    {
        doubles::Answers::instance().reset();
        setHardwareVariant(1);
        HardwareVersion::setHWSubVariant(0);
    }

    ~FacadeTest() override { setHardwareVariant(1); }

    /// Runs `work` there, and waits until everything that it has posted is done.
    void run(From from, const std::function<void()>& work)
    {
        if (from == From::GUI_THREAD)
            gui.call(work);
        else
            work();
        gui.settle();
    }

    /// Has a record carried out as the given thread would have it: posted, or at once.
    void carryOut(
        From from, DisplayAPI::Widget& widget, int code,
        const std::function<void(DisplayAPI::GuiRequestEvent&)>& fill = [](auto&) {})
    {
        auto* const record = new DisplayAPI::GuiRequestEvent(&widget, code);
        fill(*record);
        if (from == From::WORKER)
            return widget.postEvent(record);
        gui.call([&] { widget.processGuiRequest(*record); });
        delete record;
    }

    /// What the private sides have been called with since the last time.
    std::vector<std::string> reached()
    {
        std::vector<std::string> texts = recorder.texts();
        recorder.clear();
        return texts;
    }

    /// Nothing has run on another thread than the GUI thread.
    void expectAllOnGuiThread()
    {
        for (const doubles::Call& call : recorder.calls())
            EXPECT_EQ(call.thread, gui.threadId()) << call.text;
    }

    doubles::Recorder& recorder = cleared();
    GuiLoop gui;

private:
    static doubles::Recorder& cleared()
    {
        doubles::Recorder::instance().clear();
        return doubles::Recorder::instance();
    }
};

} // namespace test

#define INSTANTIATE_FROM_BOTH_THREADS(suite)                                                                           \
    INSTANTIATE_TEST_SUITE_P(CalledFrom, suite, testing::Values(test::From::GUI_THREAD, test::From::WORKER),           \
                             [](const auto& tested) { return test::nameOf(tested.param); })
