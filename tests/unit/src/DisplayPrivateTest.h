#pragma once

#include "DisplayPrivate.h"

#include "DisplayAPI/DisplayEventIfc.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Recorder.h"
#include "doubles/Screen.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/LogLines.h"
#include "support/SteppedLoop.h"
#include "utilities/Rect.h"
#include "widgets/KestrelApplication.h"

#include <functional>
#include <memory>

namespace test {

/// Base of the tests of the display stack: a display without a filter of its own, a screen under the real presentation
/// manager, and screens that note what the display does to them.
class DisplayPrivateTest : public SteppedTest {
protected:
    using Screen = doubles::Screen;
    static constexpr auto POPUP = doubles::ScreenPrivate::POPUP;

    DisplayPrivateTest()
    {
        makeDisplay();
        forgetCalls();
    }

    ~DisplayPrivateTest() override { KestrelApplication::getCurrentApplication()->setHardwareVariant(1); }

    void makeDisplay(const char* hardware = "any", bool narrow = false)
    {
        display.reset();
        display = std::make_unique<DisplayAPI::DisplayPrivate>(narrow, hardware, "", "", "", "", nullptr, nullptr,
                                                               new doubles::FakeStartUp, false);
        display->subscribe(&observer);
    }

    /// Shows the screens in turn on a visible display, and forgets what that took.
    void given(std::initializer_list<Screen*> stack)
    {
        display->show();
        for (Screen* screen : stack)
            display->setCurrent(screen);
        forgetCalls();
    }

    void forgetCalls()
    {
        doubles::Recorder::instance().clear();
        observer.notifications = 0;
    }

    /// What the screens have noted, in order.
    static std::vector<std::string> calls() { return doubles::Recorder::instance().texts(); }

    /// The texts that `work` logs, all of them traces of the display.
    std::vector<std::string> logged(const std::function<void()>& work)
    {
        std::vector<std::string> texts;
        host::LogCapture capture;
        work();
        for (const host::LogLine& line : capture.lines()) {
            EXPECT_EQ(line.module, "DisplayAPI::DisplayPrivate") << line.text;
            EXPECT_EQ(line.file, "./src/DisplayPrivate") << line.text;
            EXPECT_EQ(line.level, 5) << line.text;
            texts.push_back(line.text);
        }
        return texts;
    }

    // How objects read in log lines.
    std::string self() const { return "this=[" + shown(display.get()) + "]"; }
    static std::string manager() { return "[" + shown(gpPresent) + "]"; }
    static std::string widget(const Screen& screen) { return "[" + shown(screen.widget()) + "]"; }
    static std::string named(Screen& screen) { return "[" + screen.getName() + "] [" + shown(&screen) + "]"; }

    static std::string priv(Screen& screen)
    {
        return "priv [" + shown(static_cast<DisplayAPI::DisplayablePrivateIfc*>(screen.getPrivateImpl())) + "]";
    }

    static bool isOnScreen(const Screen& screen) { return screen.widget()->Parent() == gpPresent; }
    static bool hasFocus(const Screen& screen) { return gpPresent->Focus() == screen.widget(); }

    struct Observer : DisplayAPI::DisplayEventIfc {
        void displayChanged(std::string text) override
        {
            EXPECT_EQ(text, "");
            ++notifications;
        }

        int notifications = 0;
    };

    Observer observer;
    std::unique_ptr<DisplayAPI::DisplayPrivate> display;
    Screen menu{"menu"};
    Screen other{"other"};
    Screen popup{"popup", POPUP};
    Screen second{"second", POPUP};
};

} // namespace test
