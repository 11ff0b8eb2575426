#pragma once

#include "ContentWidget.h"
#include "ContentWidgetFactory.h"
#include "doubles/Recorder.h"

namespace doubles {

/// A real content widget that notes what is done to its system window: "content: setSystemWindowText(0, "noon")".
class ContentWidgetDouble : public DisplayAPI::ContentWidget {
public:
    void setSystemWindowSize(int lines) override
    {
        note("setSystemWindowSize", lines);
        ContentWidget::setSystemWindowSize(lines);
    }

    void setSystemWindowText(int line, std::string text) override
    {
        note("setSystemWindowText", line, text);
        ContentWidget::setSystemWindowText(line, std::move(text));
    }

    void setSystemWindowTop(int top, bool separator, bool redraw) override
    {
        note("setSystemWindowTop", top, separator, redraw);
        ContentWidget::setSystemWindowTop(top, separator, redraw);
    }

    void showTimeInSystemWindow(bool on) override
    {
        note("showTimeInSystemWindow", on);
        ContentWidget::showTimeInSystemWindow(on);
    }

    void setTimeInSystemWindow(int hours, int minutes, int seconds) override
    {
        note("setTimeInSystemWindow", hours, minutes, seconds);
        ContentWidget::setTimeInSystemWindow(hours, minutes, seconds);
    }

    void setTimer(std::string text) override
    {
        note("setTimer", text);
        ContentWidget::setTimer(std::move(text));
    }

    void stopTimer() override
    {
        note("stopTimer");
        ContentWidget::stopTimer();
    }

private:
    template <typename... Args>
    void note(const char* call, const Args&... args)
    {
        Recorder::instance().note(this, std::string("content: ") + call, args...);
    }
};

class ContentWidgetDoubleFactory : public DisplayAPI::ContentWidgetFactoryIfc {
public:
    DisplayAPI::ContentWidget* createContentWidget() override { return new ContentWidgetDouble; }
};

} // namespace doubles
