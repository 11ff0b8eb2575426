#include "DisplayPrivate.h"

#include "ContentWidget.h"
#include "ContentWidgetFactory.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayEventFilter.h"
#include "DisplayPrivateLog.h"
#include "PegInitAndCleanUp.h"
#include "StackEntry.h"
#include "StackWalk.h"
#include "Variant.h"
#include "toolkit/PegMessageQueue.h"
#include "utilities/ICC.h"
#include "widgets/StatusMessage.h"
#include "widgets/SystemWindow.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

constexpr const char* SOURCE_FILE = "./src/DisplayPrivate";

} // namespace

/// The displays that live now. GUI thread only.
std::vector<DisplayPrivate*>& DisplayPrivate::living()
{
    // Never destroyed: a static displayable asks as late as at process exit.
    static auto* const displays = new std::vector<DisplayPrivate*>;
    return *displays;
}

DisplayPrivate::DisplayPrivate(bool narrow, std::string hardware, std::string softwareType, std::string locale,
                               std::string dateFormat, std::string timeFormat, DisplayAPIUtils::Rect*,
                               ContentWidgetFactoryIfc* factory, PegInitAndCleanUpIfc* startUp, bool installFilter)
    : mServerDisplay(!narrow), mLocale(std::move(locale)), mDateFormat(std::move(dateFormat)),
      mTimeFormat(std::move(timeFormat)), mFactory(factory), mStartUp(startUp)
{
    setStack(mItemList);
    initialiseApplication(hardware, softwareType);
    if (mFactory == nullptr)
        mFactory = std::make_unique<ContentWidgetFactory>();
    if (mStartUp == nullptr)
        mStartUp = std::make_unique<PegInitAndCleanUp>();
    mStartUp->init();
    if (isFullPanel())
        mDisplayArea = std::make_unique<DisplayAPIUtils::Rect>(0, 0, narrow ? 168 : 240, 128);
    else
        mDisplayArea = std::make_unique<DisplayAPIUtils::Rect>(0, 0, 208, 42);
    if (installFilter)
        mFilter = std::make_unique<DisplayEventFilter>(true);
    mContentWidget.reset(mFactory->createContentWidget());
    mContentWidget->setParent(this);
    living().push_back(this);
}

DisplayPrivate::~DisplayPrivate()
{
    cleanup();
}

void DisplayPrivate::initialiseApplication(const std::string& hardware, const std::string& softwareType)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    if (application == nullptr)
        return;
    application->setHardwareVariant(hardware == "WP1" ? SMALL_PANEL : FULL_PANEL);
    setSoftwareType(softwareType);
    application->setLocale(ICC::fromUTF8toUNICODE(mLocale));
    application->setDateFormat(ICC::fromUTF8toUNICODE(mDateFormat));
    application->setTimeFormat(ICC::fromUTF8toUNICODE(mTimeFormat));
}

void DisplayPrivate::cleanup()
{
    handBackWidgets();
    std::erase(living(), this);
    mStatusWidget.reset();
    completeQueuedRequests();
    mStartUp->cleanUp();
    mContentWidget.reset();
    mFilter.reset();
}

/// The application's displayables and the content widget outlive the presentation manager: it must not take their
/// widgets with it.
void DisplayPrivate::handBackWidgets()
{
    if (mContentWidget != nullptr && isOnScreen(mContentWidget->getSystemWindow()))
        gpPresent->Remove(mContentWidget->getSystemWindow(), false);
    if (mCurrent != nullptr && std::find(mItemList.begin(), mItemList.end(), mCurrent) == mItemList.end())
        mItemList.push_back(mCurrent);
    const StackChange change(mStackChangeUnderWay);
    for (Displayable* entry : StackWalk(mItemList, mWalks)) {
        DisplayablePrivateIfc* const side = entry->getPrivateImpl();
        if (side == nullptr)
            continue;
        side->connectDisplayChangedSignal(nullptr);
        side->gainOwnership();
        if (PegThing* widget = side->getWidget(); isOnScreen(widget))
            gpPresent->Remove(widget, false);
    }
}

void DisplayPrivate::exec()
{
    if (gpPresent != nullptr)
        gpPresent->Execute(SOURCE_FILE);
    else
        gDisplayLog(LOST, 728, "qtPresent is NULL");
    mExecFinished = true;
}

void DisplayPrivate::shutdown()
{
    if (PegThing::mpMessageQueue == nullptr)
        return;
    PegMessage message;
    message.wType = PM_EXIT;
    message.pTarget = gpPresent;
    PegThing::mpMessageQueue->Push(message);
}

void DisplayPrivate::subscribe(DisplayEventIfc* observer)
{
    mListenerSection.enter();
    mDisplayChangeListener = observer;
    mListenerSection.leave();
}

void DisplayPrivate::unSubscribe()
{
    subscribe(nullptr);
}

DisplayEventIfc* DisplayPrivate::displayChangeListener()
{
    mListenerSection.enter();
    DisplayEventIfc* const observer = mDisplayChangeListener;
    mListenerSection.leave();
    return observer;
}

void DisplayPrivate::displayChanged()
{
    mListenerSection.enter();
    if (mDisplayChangeListener != nullptr)
        mDisplayChangeListener->displayChanged(std::string());
    mListenerSection.leave();
}

void DisplayPrivate::localeChanged(std::string locale)
{
    mLocale = std::move(locale);
    if (KestrelApplication* application = KestrelApplication::getCurrentApplication())
        application->setLocale(ICC::fromUTF8toUNICODE(mLocale));
}

void DisplayPrivate::skinChanged(std::string) {}

void DisplayPrivate::dateFormatChanged(std::string format)
{
    mDateFormat = std::move(format);
    if (KestrelApplication* application = KestrelApplication::getCurrentApplication())
        application->setDateFormat(ICC::fromUTF8toUNICODE(mDateFormat));
}

void DisplayPrivate::timeFormatChanged(std::string format)
{
    mTimeFormat = std::move(format);
    if (KestrelApplication* application = KestrelApplication::getCurrentApplication())
        application->setTimeFormat(ICC::fromUTF8toUNICODE(mTimeFormat));
}

DisplayAPIUtils::Rect* DisplayPrivate::getDisplayArea()
{
    return mDisplayArea.get();
}

void DisplayPrivate::setMaximised(bool on)
{
    mMaximised = on;
}

void DisplayPrivate::setTranslator(TranslatorIfc* translator)
{
    DisplayablePrivate::commonTranslator = translator;
    setSpellerLang(translator);
}

void DisplayPrivate::setSoftwareType(const std::string& type)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    if (application == nullptr)
        return;
    if (type == "Corvane SIP")
        application->setSoftwareType(SIP);
    else
        application->setSoftwareType(type == "Corvane KVX" ? KVX : UNKNOWN);
}

void DisplayPrivate::copy(const std::string& text)
{
    mClipboard = text;
}

std::string DisplayPrivate::paste() const
{
    return mClipboard;
}

std::string DisplayPrivate::dateFormat() const
{
    return mDateFormat;
}

std::string DisplayPrivate::timeFormat() const
{
    return mTimeFormat;
}

} // namespace DisplayAPI
