#pragma once

#include "DisplayAPI/DisplayPrivateIfc.h"
#include "utilities/Rect.h"

namespace test {

/// The private side of a display that only counts how often it is told of a change.
class ChangeCounter : public DisplayAPI::DisplayPrivateIfc {
public:
    using Rects = std::vector<DisplayAPIUtils::Rect>;

    int changes = 0;

    void setCurrent(DisplayAPI::Displayable*) override {}
    DisplayAPI::Displayable* getCurrent() override { return nullptr; }
    void exec() override {}
    void shutdown() override {}
    void show() override {}
    void hide() override {}
    std::string serialise() override { return {}; }
    std::string serialiseByRect(const Rects&, bool) override { return {}; }
    void subscribe(DisplayAPI::DisplayEventIfc*) override {}
    void unSubscribe() override {}
    void displayChanged() override { ++changes; }
    void widgetDismissed(DisplayAPI::DisplayablePrivateIfc*) override {}
    void localeChanged(std::string) override {}
    void skinChanged(std::string) override {}
    void dateFormatChanged(std::string) override {}
    void timeFormatChanged(std::string) override {}
    DisplayAPIUtils::Rect* getDisplayArea() override { return nullptr; }
    void setMaximised(bool) override {}
    void createServerDisplay(DisplayAPI::Displayable*) override {}
    void setTranslator(TranslatorIfc*) override {}
    void postEvent(DisplayAPI::DisplayRequestEvent*) override {}
    void postEventAsync(DisplayAPI::DisplayRequestEvent*) override {}
    void purgeOwnMessage(DisplayAPI::Display*, int, int, DisplayAPI::Displayable*) override {}
    Rects* getDisplayedRects() override { return nullptr; }
    void setSystemWindowSize(int) override {}
    void setSystemWindowText(int, std::string) override {}
    void setSystemWindowTop(int) override {}
    void showTimeInSystemWindow(bool) override {}
    void setTimeInSystemWindow(int, int, int) override {}
    void setTimer(std::string) override {}
    void stopTimer() override {}
    void setSoftwareType(const std::string&) override {}
    void copy(const std::string&) override {}
    std::string paste() const override { return {}; }
    void setStatusMessage(const std::string&, unsigned int) override {}
    std::string dateFormat() const override { return {}; }
    std::string timeFormat() const override { return {}; }
};

} // namespace test
