#pragma once

#include "unit/src/DisplayPrivateTest.h"

#include "doubles/ContentWidgetDouble.h"
#include "widgets/SystemWindow.h"

#include <unistd.h>

namespace test {

constexpr const char* FULL_PANEL = "any";
constexpr const char* SMALL_PANEL = "WP1";
constexpr const char* SIP = "Corvane SIP";
constexpr const char* KVX = "Corvane KVX";

/// Base of the tests of status lines: a display whose content widget notes what is done to its system window.
class DisplayPrivateLinesTest : public DisplayPrivateTest {
protected:
    DisplayPrivateLinesTest()
    {
        forgetFirstSize();
        start(FULL_PANEL, SIP);
    }

    void start(const char* hardware, const char* software)
    {
        display.reset();
        display = makeAnother(hardware, software);
        display->subscribe(&observer);
        forgetCalls();
    }

    static std::unique_ptr<DisplayAPI::DisplayPrivate> makeAnother(const char* hardware, const char* software)
    {
        return std::make_unique<DisplayAPI::DisplayPrivate>(false, hardware, software, "", "", "", nullptr,
                                                            new doubles::ContentWidgetDoubleFactory,
                                                            new doubles::FakeStartUp, false);
    }

    /// That a size has been set is remembered for the process: each test begins as the first one does.
    void forgetFirstSize()
    {
        const auto another = makeAnother(FULL_PANEL, SIP);
        another->show();
        another->setSystemWindowSize(0);
    }

    /// Shows the screen on a visible display with so many lines, which read "line 0", "line 1" and so on.
    void givenLines(int lines, Screen& screen)
    {
        given({&screen});
        for (int line = 0; line < lines; ++line)
            display->setSystemWindowText(line, "line " + std::to_string(line));
        display->setSystemWindowSize(lines);
        forgetCalls();
    }

    DisplayAPI::ContentWidget& content() { return *display->getContentWidget(); }
    SystemWindow& window() { return *content().getSystemWindow(); }
    bool isUp() { return window().Parent() == gpPresent; }
    int lineCount() { return content().getSWCurrentNumLines(); }

    /// The noted calls that begin so.
    static std::vector<std::string> callsTo(const std::string& start)
    {
        std::vector<std::string> texts = calls();
        std::erase_if(texts, [&](const std::string& text) { return !text.starts_with(start); });
        return texts;
    }

    static std::string process() { return "PID = " + std::to_string(getpid()); }
};

} // namespace test
