#include "DisplayAPI/Display.h"

#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "DisplayOperations.h"
#include "DisplayPrivate.h"
#include "GuiThread.h"
#include "toolkit/PegFunctions.h"
#include "utilities/Rect.h"
#include "utilities/Semaphore.h"

#include <atomic>
#include <cstdio>
#include <utility>

namespace DisplayAPI {

namespace {

using Request = DisplayRequestEvent;

using Ifc = DisplayPrivateIfc;

// SERIALISE, SERIALISE_BY_RECT and SET_TIME_IN_SYSTEM_WINDOW travel in ways of their own.
using Ops = DisplayOperations<
    Waits<Request::HIDE, &Ifc::hide>, Waits<Request::SHOW, &Ifc::show>, Waits<Request::SET_CURRENT, &Ifc::setCurrent>,
    Waits<Request::GET_CURRENT, &Ifc::getCurrent>, Waits<Request::SHUTDOWN, &Ifc::shutdown>,
    Waits<Request::LOCALE_CHANGED, &Ifc::localeChanged>, Waits<Request::DATE_FORMAT_CHANGED, &Ifc::dateFormatChanged>,
    Waits<Request::TIME_FORMAT_CHANGED, &Ifc::timeFormatChanged>,
    Waits<Request::CREATE_SERVER_DISPLAY, &Ifc::createServerDisplay>, Waits<Request::SET_MAXIMISED, &Ifc::setMaximised>,
    Waits<Request::GET_DISPLAYED_RECTS, &Ifc::getDisplayedRects>,
    Posts<Request::SET_SYSTEM_WINDOW_SIZE, &Ifc::setSystemWindowSize>,
    Posts<Request::SET_SYSTEM_WINDOW_TEXT, &Ifc::setSystemWindowText>,
    Waits<Request::SET_SYSTEM_WINDOW_TOP, &Ifc::setSystemWindowTop>,
    Waits<Request::SHOW_TIME_IN_SYSTEM_WINDOW, &Ifc::showTimeInSystemWindow>, Waits<Request::SET_TIMER, &Ifc::setTimer>,
    Waits<Request::STOP_TIMER, &Ifc::stopTimer>, Waits<Request::SET_SOFTWARE_TYPE, &Ifc::setSoftwareType>,
    Waits<Request::SET_STATUS_MESSAGE, &Ifc::setStatusMessage>, Waits<Request::COPY, &Ifc::copy>,
    Waits<Request::PASTE, &Ifc::paste>>;

constinit std::atomic<Display*> gLatest{nullptr};

// What a reader's mark says.
constexpr const char* AWAITED = "awaited";
constexpr const char* SERVED = "served";

/// The result's lock. The GUI thread takes it, who has read the result gives it back: nobody does for a request that no
/// reader has made.
struct ResultLock final : Semaphore {
    ResultLock() : Semaphore(AVAILABLE, 1, false) {}

    bool isHeldForReader = false; ///< the GUI thread's
};

std::string formatTime(int hours, int minutes, int seconds)
{
    char text[sizeof "-2147483648:-2147483648:-2147483648"];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", hours, minutes, seconds);
    return text;
}

/// The two digits of a time at `position`; 0 past the end.
int twoDigits(const std::string& time, std::size_t position)
{
    return position < time.size() ? PegAtoI(time.substr(position, 2).c_str()) : 0;
}

} // namespace

Display::Display(std::string hardware, PhysDefs::hardwareSubVariant, std::string softwareType, std::string locale,
                 std::string dateFormat, std::string timeFormat, bool narrow, DisplayAPIUtils::Rect* area, bool)
    : Display(std::move(hardware), std::move(softwareType), std::move(locale), std::move(dateFormat),
              std::move(timeFormat), narrow, area)
{
}

Display::Display(std::string hardware, std::string softwareType, std::string locale, std::string dateFormat,
                 std::string timeFormat, bool narrow, DisplayAPIUtils::Rect* area)
    : mHardware(std::move(hardware)), mSoftwareType(std::move(softwareType))
{
    init(new DisplayPrivate(narrow, mHardware, mSoftwareType, std::move(locale), std::move(dateFormat),
                            std::move(timeFormat), area, nullptr, nullptr, true));
}

Display::Display(std::string hardware, std::string locale, std::string dateFormat, std::string timeFormat, bool narrow,
                 DisplayAPIUtils::Rect* area)
    : Display(std::move(hardware), "softwareUnknown", std::move(locale), std::move(dateFormat), std::move(timeFormat),
              narrow, area)
{
}

Display::Display(DisplayPrivateIfc* implementation) : mSoftwareType("softwareUnknown")
{
    init(implementation);
}

void Display::init(DisplayPrivateIfc* implementation)
{
    mImplementation = implementation;
    mResultLock = new ResultLock;
    gLatest = this;
}

Display::~Display()
{
    onlyOnGuiThread("Display::~Display()");
    // Deleting the implementation stops the toolkit, and with it the tools that may still be asking this display.
    delete mImplementation;
    Display* self = this;
    gLatest.compare_exchange_strong(self, nullptr);
    if (static_cast<ResultLock*>(mResultLock)->isHeldForReader)
        mResultLock->take(-1);
    delete mResultLock;
}

Display* Display::latest()
{
    return gLatest;
}

void Display::processDisplayRequest(DisplayRequestEvent* request)
{
    onlyOnGuiThread("Display::processDisplayRequest()");
    if (!Ops::carryOut(*mImplementation, *request))
        processOddRequest(*request);
    request->requestCompleted();
}

/// Codes that nobody knows are completed without effect.
void Display::processOddRequest(DisplayRequestEvent& request)
{
    const std::string text = request.getStringParam();
    switch (request.getType()) {
    case Request::SERIALISE:
        mResultLock->take(-1);
        giveResult(request, mImplementation->serialise());
        break;
    case Request::SERIALISE_BY_RECT: serialiseRects(request); break;
    case Request::SET_TIME_IN_SYSTEM_WINDOW:
        mImplementation->setTimeInSystemWindow(twoDigits(text, 0), twoDigits(text, 3), twoDigits(text, 6));
        break;
    default: break;
    }
}

void Display::serialiseRects(DisplayRequestEvent& request)
{
    mResultLock->take(-1);
    const Request::Rects* rects = request.getSerialisableRects();
    giveResult(request,
               mImplementation->serialiseByRect(rects != nullptr ? *rects : Request::Rects(), request.getBoolParam()));
}

void Display::show()
{
    Ops::call<Request::SHOW>(*this, mImplementation);
}

void Display::hide()
{
    Ops::call<Request::HIDE>(*this, mImplementation);
}

void Display::setCurrent(Displayable* displayable)
{
    Ops::call<Request::SET_CURRENT>(*this, mImplementation, displayable);
}

void Display::setCurrent(const std::vector<Displayable*>& displayables)
{
    for (Displayable* displayable : displayables)
        setCurrent(displayable);
}

Displayable* Display::getCurrent()
{
    return Ops::call<Request::GET_CURRENT>(*this, mImplementation);
}

std::vector<Displayable*> Display::getCurrentWidgets() const
{
    Displayable* const current = const_cast<Display*>(this)->getCurrent();
    return current != nullptr ? std::vector<Displayable*>{current} : std::vector<Displayable*>{};
}

void Display::exec()
{
    mImplementation->exec();
}

void Display::shutdown()
{
    Ops::call<Request::SHUTDOWN>(*this, mImplementation);
}

void Display::createServerDisplay(Displayable* displayable)
{
    Ops::call<Request::CREATE_SERVER_DISPLAY>(*this, mImplementation, displayable);
}

void Display::setMaximised(bool on)
{
    Ops::call<Request::SET_MAXIMISED>(*this, mImplementation, on);
}

std::vector<DisplayAPIUtils::Rect>* Display::getDisplayedRects()
{
    return Ops::call<Request::GET_DISPLAYED_RECTS>(*this, mImplementation);
}

/// Writes the result, whose lock the GUI thread holds, and marks in the caller's string that it has done so.
void Display::giveResult(DisplayRequestEvent& request, std::string result)
{
    mResult = std::move(result);
    std::string* const mark = request.getStringReturnValue();
    static_cast<ResultLock*>(mResultLock)->isHeldForReader = mark != nullptr && *mark == AWAITED;
    if (mark != nullptr)
        *mark = SERVED;
}

/// The caller gives the result's lock when it has read the result. A request that was lost is still awaited, and its
/// lock has not been taken.
std::string Display::requestResult(DisplayRequestEvent* request)
{
    std::string mark = AWAITED;
    request->setStringReturnValue(&mark);
    mImplementation->postEvent(request);
    if (mark != SERVED)
        return {};
    std::string result = std::move(mResult);
    mResultLock->give();
    return result;
}

std::string Display::serialise()
{
    if (Widget::isGuiThread())
        return mImplementation->serialise();
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    return requestResult(new Request(this, Request::SERIALISE, &done, false));
}

std::string Display::serialiseByRect(const std::vector<DisplayAPIUtils::Rect>& rects, bool withSystemWindow)
{
    if (Widget::isGuiThread())
        return mImplementation->serialiseByRect(rects, withSystemWindow);
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    return requestResult(new Request(this, Request::SERIALISE_BY_RECT, &done, &rects, withSystemWindow));
}

void Display::localeChanged(std::string locale)
{
    Ops::call<Request::LOCALE_CHANGED>(*this, mImplementation, std::move(locale));
}

void Display::dateFormatChanged(std::string format)
{
    Ops::call<Request::DATE_FORMAT_CHANGED>(*this, mImplementation, std::move(format));
}

void Display::timeFormatChanged(std::string format)
{
    Ops::call<Request::TIME_FORMAT_CHANGED>(*this, mImplementation, std::move(format));
}

void Display::skinChanged(std::string) {}

void Display::subscribe(DisplayEventIfc* observer)
{
    mImplementation->subscribe(observer);
}

void Display::unSubscribe()
{
    mImplementation->unSubscribe();
}

void Display::setTranslator(TranslatorIfc* translator)
{
    mImplementation->setTranslator(translator);
}

DisplayAPIUtils::Rect* Display::getDisplayArea()
{
    return mImplementation->getDisplayArea();
}

void Display::setSystemWindowSize(int lines)
{
    Ops::call<Request::SET_SYSTEM_WINDOW_SIZE>(*this, mImplementation, lines);
}

void Display::setSystemWindowText(int line, std::string text)
{
    Ops::call<Request::SET_SYSTEM_WINDOW_TEXT>(*this, mImplementation, line, std::move(text));
}

void Display::setSystemWindowTop(int top)
{
    Ops::call<Request::SET_SYSTEM_WINDOW_TOP>(*this, mImplementation, top);
}

void Display::showTimeInSystemWindow(bool on)
{
    Ops::call<Request::SHOW_TIME_IN_SYSTEM_WINDOW>(*this, mImplementation, on);
}

void Display::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    if (Widget::isGuiThread())
        return mImplementation->setTimeInSystemWindow(hours, minutes, seconds);
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    const std::string text = formatTime(hours, minutes, seconds);
    mImplementation->postEvent(new Request(this, Request::SET_TIME_IN_SYSTEM_WINDOW, &done, text));
}

void Display::setTimer(std::string text)
{
    Ops::call<Request::SET_TIMER>(*this, mImplementation, std::move(text));
}

void Display::stopTimer()
{
    Ops::call<Request::STOP_TIMER>(*this, mImplementation);
}

void Display::setSoftwareType(const std::string& type)
{
    Ops::call<Request::SET_SOFTWARE_TYPE>(*this, mImplementation, type);
}

void Display::setStatusMessage(const std::string& text, unsigned int timeout)
{
    Ops::call<Request::SET_STATUS_MESSAGE>(*this, mImplementation, text, timeout);
}

void Display::copy(const std::string& text)
{
    Ops::call<Request::COPY>(*this, mImplementation, text);
}

std::string Display::paste() const
{
    return Ops::call<Request::PASTE>(*this, mImplementation);
}

bool Display::isCurrentForKeyEvents(Displayable*)
{
    return true;
}

bool Display::isVisible()
{
    return true;
}

bool Display::hasSoftKeyBar() const
{
    return false;
}

void Display::setPopupMode(bool) {}

void Display::enableKeypadEventSending() {}

void Display::disableKeypadEventSending() {}

} // namespace DisplayAPI
