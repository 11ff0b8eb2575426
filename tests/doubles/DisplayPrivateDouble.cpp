#include "doubles/DisplayPrivateDouble.h"

#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayEventFilter.h"
#include "DisplayPrivate.h"
#include "doubles/Recorder.h"

namespace doubles {

using DisplayAPI::DisplayEventFilter;

template <typename... Args>
void DisplayPrivateDouble::note(const char* call, const Args&... args) const
{
    Recorder::instance().note(this, std::string("display: ") + call, args...);
}

DisplayPrivateDouble::~DisplayPrivateDouble()
{
    note("die");
}

void DisplayPrivateDouble::postEvent(DisplayAPI::DisplayRequestEvent* request)
{
    note("postEvent", static_cast<int>(request->getType()));
    DisplayAPI::postEventHelper(request, DisplayEventFilter::getFilterPointer(), true);
}

void DisplayPrivateDouble::postEventAsync(DisplayAPI::DisplayRequestEvent* request)
{
    note("postEventAsync", static_cast<int>(request->getType()));
    DisplayAPI::postEventHelper(request, DisplayEventFilter::getFilterPointer(), false);
}

DisplayAPI::Displayable* DisplayPrivateDouble::getCurrent()
{
    note("getCurrent");
    return current;
}

std::string DisplayPrivateDouble::serialise()
{
    note("serialise");
    return std::to_string(++serialisations);
}

std::string DisplayPrivateDouble::serialiseByRect(const Rects& rects, bool withSystemWindow)
{
    note("serialiseByRect", static_cast<int>(rects.size()), withSystemWindow);
    return std::to_string(++serialisations);
}

DisplayAPIUtils::Rect* DisplayPrivateDouble::getDisplayArea()
{
    note("getDisplayArea");
    return &area;
}

DisplayPrivateDouble::Rects* DisplayPrivateDouble::getDisplayedRects()
{
    note("getDisplayedRects");
    return &displayedRects;
}

std::string DisplayPrivateDouble::paste() const
{
    note("paste");
    return clipboard;
}

std::string DisplayPrivateDouble::dateFormat() const
{
    return {};
}

std::string DisplayPrivateDouble::timeFormat() const
{
    return {};
}

void DisplayPrivateDouble::setCurrent(Displayable* displayable)
{
    note("setCurrent", displayable);
}

void DisplayPrivateDouble::exec()
{
    note("exec");
}

void DisplayPrivateDouble::shutdown()
{
    note("shutdown");
}

void DisplayPrivateDouble::show()
{
    note("show");
}

void DisplayPrivateDouble::hide()
{
    note("hide");
}

void DisplayPrivateDouble::subscribe(DisplayAPI::DisplayEventIfc* observer)
{
    note("subscribe", observer);
}

void DisplayPrivateDouble::unSubscribe()
{
    note("unSubscribe");
}

void DisplayPrivateDouble::displayChanged()
{
    note("displayChanged");
}

void DisplayPrivateDouble::widgetDismissed(DisplayAPI::DisplayablePrivateIfc* dismissed)
{
    note("widgetDismissed", dismissed);
}

void DisplayPrivateDouble::localeChanged(std::string locale)
{
    note("localeChanged", locale);
}

void DisplayPrivateDouble::skinChanged(std::string skin)
{
    note("skinChanged", skin);
}

void DisplayPrivateDouble::dateFormatChanged(std::string format)
{
    note("dateFormatChanged", format);
}

void DisplayPrivateDouble::timeFormatChanged(std::string format)
{
    note("timeFormatChanged", format);
}

void DisplayPrivateDouble::setMaximised(bool on)
{
    note("setMaximised", on);
}

void DisplayPrivateDouble::createServerDisplay(Displayable* displayable)
{
    note("createServerDisplay", displayable);
}

void DisplayPrivateDouble::setTranslator(TranslatorIfc* translator)
{
    note("setTranslator", translator);
}

void DisplayPrivateDouble::purgeOwnMessage(DisplayAPI::Display* display, int code, int otherCode,
                                           Displayable* displayable)
{
    note("purgeOwnMessage", display, code, otherCode, displayable);
}

void DisplayPrivateDouble::setSystemWindowSize(int lines)
{
    note("setSystemWindowSize", lines);
}

void DisplayPrivateDouble::setSystemWindowText(int line, std::string text)
{
    note("setSystemWindowText", line, text);
}

void DisplayPrivateDouble::setSystemWindowTop(int top)
{
    note("setSystemWindowTop", top);
}

void DisplayPrivateDouble::showTimeInSystemWindow(bool on)
{
    note("showTimeInSystemWindow", on);
}

void DisplayPrivateDouble::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    note("setTimeInSystemWindow", hours, minutes, seconds);
}

void DisplayPrivateDouble::setTimer(std::string text)
{
    note("setTimer", text);
}

void DisplayPrivateDouble::stopTimer()
{
    note("stopTimer");
}

void DisplayPrivateDouble::setSoftwareType(const std::string& type)
{
    note("setSoftwareType", type);
}

void DisplayPrivateDouble::copy(const std::string& text)
{
    note("copy", text);
}

void DisplayPrivateDouble::setStatusMessage(const std::string& text, unsigned int timeout)
{
    note("setStatusMessage", text, static_cast<int>(timeout));
}

} // namespace doubles
