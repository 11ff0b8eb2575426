#include "DisplayAPI/Display.h"

#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "DisplayPrivate.h"
#include "toolkit/PegFunctions.h"
#include "utilities/Rect.h"
#include "utilities/Semaphore.h"

#include <atomic>
#include <cstdio>
#include <utility>

namespace DisplayAPI {

namespace {

using Request = DisplayRequestEvent;

/// Posts a request and waits until it has been carried out. `prepare` fills in what the constructors do not take.
template <typename Prepare, typename... Args>
void callPrepared(DisplayPrivateIfc& implementation, Display* display, Request::DisplayRequests code, Prepare prepare,
                  Args&&... args)
{
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    auto* request = new Request(display, code, &done, std::forward<Args>(args)...);
    prepare(*request);
    implementation.postEvent(request);
}

template <typename... Args>
void call(DisplayPrivateIfc& implementation, Display* display, Request::DisplayRequests code, Args&&... args)
{
    callPrepared(
        implementation, display, code, [](Request&) {}, std::forward<Args>(args)...);
}

constinit std::atomic<Display*> gLatest{nullptr};

constexpr bool NO_FLAG = false;

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
    switch (request->getType()) {
    case Request::HIDE: mImplementation->hide(); break;
    case Request::SHOW: mImplementation->show(); break;
    case Request::SET_CURRENT: mImplementation->setCurrent(request->getDisplayable()); break;
    case Request::GET_CURRENT:
        if (Displayable** slot = request->getCurrentDisplayable())
            *slot = mImplementation->getCurrent();
        break;
    case Request::SHUTDOWN: mImplementation->shutdown(); break;
    case Request::LOCALE_CHANGED: mImplementation->localeChanged(request->getStringParam()); break;
    case Request::DATE_FORMAT_CHANGED: mImplementation->dateFormatChanged(request->getStringParam()); break;
    case Request::TIME_FORMAT_CHANGED: mImplementation->timeFormatChanged(request->getStringParam()); break;
    case Request::SERIALISE:
        mResultLock->take(-1);
        giveResult(*request, mImplementation->serialise());
        break;
    case Request::CREATE_SERVER_DISPLAY: mImplementation->createServerDisplay(request->getDisplayable()); break;
    case Request::SET_MAXIMISED: mImplementation->setMaximised(request->getBoolParam()); break;
    case Request::GET_DISPLAYED_RECTS: request->setDisplayedRects(mImplementation->getDisplayedRects()); break;
    case Request::SERIALISE_BY_RECT: serialiseRects(*request); break;
    default: processSystemWindowRequest(*request); break;
    }
    request->requestCompleted();
}

void Display::serialiseRects(DisplayRequestEvent& request)
{
    mResultLock->take(-1);
    const Request::Rects* rects = request.getSerialisableRects();
    giveResult(request,
               mImplementation->serialiseByRect(rects != nullptr ? *rects : Request::Rects(), request.getBoolParam()));
}

/// Status lines, time, messages and the clipboard. Codes that nobody knows are completed without effect.
void Display::processSystemWindowRequest(DisplayRequestEvent& request)
{
    const std::string text = request.getStringParam();
    switch (request.getType()) {
    case Request::SET_SYSTEM_WINDOW_SIZE: mImplementation->setSystemWindowSize(request.getIntParam()); break;
    case Request::SET_SYSTEM_WINDOW_TEXT: mImplementation->setSystemWindowText(request.getIntParam(), text); break;
    case Request::SET_SYSTEM_WINDOW_TOP: mImplementation->setSystemWindowTop(request.getIntParam()); break;
    case Request::SHOW_TIME_IN_SYSTEM_WINDOW: mImplementation->showTimeInSystemWindow(request.getBoolParam()); break;
    case Request::SET_TIME_IN_SYSTEM_WINDOW:
        mImplementation->setTimeInSystemWindow(twoDigits(text, 0), twoDigits(text, 3), twoDigits(text, 6));
        break;
    case Request::SET_TIMER: mImplementation->setTimer(text); break;
    case Request::STOP_TIMER: mImplementation->stopTimer(); break;
    case Request::SET_SOFTWARE_TYPE: mImplementation->setSoftwareType(text); break;
    case Request::SET_STATUS_MESSAGE:
        mImplementation->setStatusMessage(text, static_cast<unsigned int>(request.getIntParam()));
        break;
    case Request::COPY: mImplementation->copy(text); break;
    case Request::PASTE:
        if (std::string* slot = request.getStringReturnValue())
            *slot = mImplementation->paste();
        break;
    default: break;
    }
}

void Display::show()
{
    if (Widget::isGuiThread())
        return mImplementation->show();
    call(*mImplementation, this, Request::SHOW, NO_FLAG);
}

void Display::hide()
{
    if (Widget::isGuiThread())
        return mImplementation->hide();
    call(*mImplementation, this, Request::HIDE, NO_FLAG);
}

void Display::setCurrent(Displayable* displayable)
{
    if (Widget::isGuiThread())
        return mImplementation->setCurrent(displayable);
    call(*mImplementation, this, Request::SET_CURRENT, displayable);
}

void Display::setCurrent(const std::vector<Displayable*>& displayables)
{
    for (Displayable* displayable : displayables)
        setCurrent(displayable);
}

Displayable* Display::getCurrent()
{
    if (Widget::isGuiThread())
        return mImplementation->getCurrent();
    Displayable* current = nullptr;
    callPrepared(
        *mImplementation, this, Request::GET_CURRENT, [&](Request& r) { r.setCurrentDisplayable(&current); }, NO_FLAG);
    return current;
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
    if (Widget::isGuiThread())
        return mImplementation->shutdown();
    call(*mImplementation, this, Request::SHUTDOWN, NO_FLAG);
}

void Display::createServerDisplay(Displayable* displayable)
{
    if (Widget::isGuiThread())
        return mImplementation->createServerDisplay(displayable);
    call(*mImplementation, this, Request::CREATE_SERVER_DISPLAY, displayable);
}

void Display::setMaximised(bool on)
{
    if (Widget::isGuiThread())
        return mImplementation->setMaximised(on);
    call(*mImplementation, this, Request::SET_MAXIMISED, on);
}

std::vector<DisplayAPIUtils::Rect>* Display::getDisplayedRects()
{
    if (Widget::isGuiThread())
        return mImplementation->getDisplayedRects();
    std::vector<DisplayAPIUtils::Rect>* rects = nullptr;
    callPrepared(
        *mImplementation, this, Request::GET_DISPLAYED_RECTS,
        [&](Request& r) { r.setDisplayedRectsReturnValue(&rects); }, NO_FLAG);
    return rects;
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
std::string Display::takeResult(const std::string& mark)
{
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
    std::string mark = AWAITED;
    callPrepared(
        *mImplementation, this, Request::SERIALISE, [&](Request& r) { r.setStringReturnValue(&mark); }, NO_FLAG);
    return takeResult(mark);
}

std::string Display::serialiseByRect(const std::vector<DisplayAPIUtils::Rect>& rects, bool withSystemWindow)
{
    if (Widget::isGuiThread())
        return mImplementation->serialiseByRect(rects, withSystemWindow);
    std::string mark = AWAITED;
    callPrepared(
        *mImplementation, this, Request::SERIALISE_BY_RECT, [&](Request& r) { r.setStringReturnValue(&mark); }, &rects,
        withSystemWindow);
    return takeResult(mark);
}

void Display::localeChanged(std::string locale)
{
    if (Widget::isGuiThread())
        return mImplementation->localeChanged(std::move(locale));
    call(*mImplementation, this, Request::LOCALE_CHANGED, std::move(locale));
}

void Display::dateFormatChanged(std::string format)
{
    if (Widget::isGuiThread())
        return mImplementation->dateFormatChanged(std::move(format));
    call(*mImplementation, this, Request::DATE_FORMAT_CHANGED, std::move(format));
}

void Display::timeFormatChanged(std::string format)
{
    if (Widget::isGuiThread())
        return mImplementation->timeFormatChanged(std::move(format));
    call(*mImplementation, this, Request::TIME_FORMAT_CHANGED, std::move(format));
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
    if (Widget::isGuiThread())
        return mImplementation->setSystemWindowSize(lines);
    mImplementation->postEventAsync(new Request(this, Request::SET_SYSTEM_WINDOW_SIZE, nullptr, lines));
}

void Display::setSystemWindowText(int line, std::string text)
{
    if (Widget::isGuiThread())
        return mImplementation->setSystemWindowText(line, std::move(text));
    mImplementation->postEventAsync(new Request(this, Request::SET_SYSTEM_WINDOW_TEXT, nullptr, line, std::move(text)));
}

void Display::setSystemWindowTop(int top)
{
    if (Widget::isGuiThread())
        return mImplementation->setSystemWindowTop(top);
    call(*mImplementation, this, Request::SET_SYSTEM_WINDOW_TOP, top);
}

void Display::showTimeInSystemWindow(bool on)
{
    if (Widget::isGuiThread())
        return mImplementation->showTimeInSystemWindow(on);
    call(*mImplementation, this, Request::SHOW_TIME_IN_SYSTEM_WINDOW, on);
}

void Display::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    if (Widget::isGuiThread())
        return mImplementation->setTimeInSystemWindow(hours, minutes, seconds);
    call(*mImplementation, this, Request::SET_TIME_IN_SYSTEM_WINDOW, formatTime(hours, minutes, seconds));
}

void Display::setTimer(std::string text)
{
    if (Widget::isGuiThread())
        return mImplementation->setTimer(std::move(text));
    call(*mImplementation, this, Request::SET_TIMER, std::move(text));
}

void Display::stopTimer()
{
    if (Widget::isGuiThread())
        return mImplementation->stopTimer();
    call(*mImplementation, this, Request::STOP_TIMER, NO_FLAG);
}

void Display::setSoftwareType(const std::string& type)
{
    if (Widget::isGuiThread())
        return mImplementation->setSoftwareType(type);
    call(*mImplementation, this, Request::SET_SOFTWARE_TYPE, type);
}

void Display::setStatusMessage(const std::string& text, unsigned int timeout)
{
    if (Widget::isGuiThread())
        return mImplementation->setStatusMessage(text, timeout);
    call(*mImplementation, this, Request::SET_STATUS_MESSAGE, static_cast<int>(timeout), text);
}

void Display::copy(const std::string& text)
{
    if (Widget::isGuiThread())
        return mImplementation->copy(text);
    call(*mImplementation, this, Request::COPY, text);
}

std::string Display::paste() const
{
    if (Widget::isGuiThread())
        return mImplementation->paste();
    std::string text;
    callPrepared(
        *mImplementation, const_cast<Display*>(this), Request::PASTE,
        [&](Request& r) { r.setStringReturnValue(&text); }, NO_FLAG);
    return text;
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
