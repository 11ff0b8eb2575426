#pragma once

#include "DisplayAPI/DisplayPrivateIfc.h"
#include "utilities/Rect.h"

#include <atomic>

namespace doubles {

/// The private side of a Display: notes every call ("display: setTimer("0:01")") and answers with what its fields say.
/// Requests travel through the real queue to the installed filter.
class DisplayPrivateDouble : public DisplayAPI::DisplayPrivateIfc {
public:
    using Displayable = DisplayAPI::Displayable;
    using Rects = std::vector<DisplayAPIUtils::Rect>;

    Displayable* current = nullptr;
    DisplayAPIUtils::Rect area{1, 2, 3, 4};
    Rects displayedRects;
    std::string clipboard;
    std::atomic<int> serialisations{0}; ///< the next answer of serialise() is the number behind this one

    ~DisplayPrivateDouble() override;

    void setCurrent(Displayable* displayable) override;
    Displayable* getCurrent() override;
    void exec() override;
    void shutdown() override;
    void show() override;
    void hide() override;
    std::string serialise() override;
    std::string serialiseByRect(const Rects& rects, bool withSystemWindow) override;
    void subscribe(DisplayAPI::DisplayEventIfc* observer) override;
    void unSubscribe() override;
    void displayChanged() override;
    void widgetDismissed(DisplayAPI::DisplayablePrivateIfc* dismissed) override;
    void localeChanged(std::string locale) override;
    void skinChanged(std::string skin) override;
    void dateFormatChanged(std::string format) override;
    void timeFormatChanged(std::string format) override;
    DisplayAPIUtils::Rect* getDisplayArea() override;
    void setMaximised(bool on) override;
    void createServerDisplay(Displayable* displayable) override;
    void setTranslator(TranslatorIfc* translator) override;
    void postEvent(DisplayAPI::DisplayRequestEvent* request) override;
    void postEventAsync(DisplayAPI::DisplayRequestEvent* request) override;
    void purgeOwnMessage(DisplayAPI::Display* display, int code, int otherCode, Displayable* displayable) override;
    Rects* getDisplayedRects() override;
    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, std::string text) override;
    void setSystemWindowTop(int top) override;
    void showTimeInSystemWindow(bool on) override;
    void setTimeInSystemWindow(int hours, int minutes, int seconds) override;
    void setTimer(std::string text) override;
    void stopTimer() override;
    void setSoftwareType(const std::string& type) override;
    void copy(const std::string& text) override;
    std::string paste() const override;
    void setStatusMessage(const std::string& text, unsigned int timeout) override;
    std::string dateFormat() const override;
    std::string timeFormat() const override;

private:
    template <typename... Args>
    void note(const char* call, const Args&... args) const;
};

} // namespace doubles
