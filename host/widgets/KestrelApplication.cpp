#include "widgets/KestrelApplication.h"

#include "host/widgets/ApplicationObservers.h"
#include "toolkit/PegMessage.h"

using host::ApplicationObservers;

namespace {

constinit std::atomic<KestrelApplication*> gCurrent{nullptr};

/// Made when the host is loaded, before main(). Never destroyed: threads may still ask it while the process ends.
[[maybe_unused]] const KestrelApplication* const gPlatformApplication = [] {
    auto* application = new KestrelApplication;
    KestrelApplication::setCurrentApplication(application);
    return application;
}();

} // namespace

KestrelApplication::KestrelApplication() = default;

KestrelApplication::~KestrelApplication()
{
    KestrelApplication* self = this;
    gCurrent.compare_exchange_strong(self, nullptr);
    ApplicationObservers::instance().remove(*this);
}

KestrelApplication* KestrelApplication::getCurrentApplication()
{
    return gCurrent;
}

void KestrelApplication::setCurrentApplication(KestrelApplication* application)
{
    gCurrent = application;
}

int KestrelApplication::getHardwareVariant(const KestrelApplication* application)
{
    return application == nullptr ? 1 : application->getHardwareVariant();
}

int KestrelApplication::getHardwareVariant() const
{
    return mHardwareVariant;
}

void KestrelApplication::setHardwareVariant(int variant)
{
    mHardwareVariant = variant;
}

int KestrelApplication::getSoftwareType() const
{
    return mSoftwareType;
}

void KestrelApplication::setSoftwareType(int type)
{
    mSoftwareType = type;
}

void KestrelApplication::setLocale(const PegString& locale)
{
    mLocale = locale;
    notifyObservers(LOCALE);
}

void KestrelApplication::setDateFormat(const PegString& format)
{
    mDateFormat = format;
    notifyObservers(FORMAT);
}

void KestrelApplication::setTimeFormat(const PegString& format)
{
    mTimeFormat = format;
    notifyObservers(FORMAT);
}

const PegString& KestrelApplication::getLocale() const
{
    return mLocale;
}

const PegString& KestrelApplication::getDateFormat() const
{
    return mDateFormat;
}

const PegString& KestrelApplication::getTimeFormat() const
{
    return mTimeFormat;
}

void KestrelApplication::addObserver(PegThing* observer)
{
    if (observer != nullptr)
        ApplicationObservers::instance().add(*this, *observer);
}

void KestrelApplication::removeObserver(PegThing* observer)
{
    if (observer != nullptr)
        ApplicationObservers::instance().remove(*observer);
}

void KestrelApplication::notifyObservers(Change change)
{
    PegMessage message;
    message.wType = PM_APPLICATION_CHANGED;
    message.iData = change;
    message.pData = &mLocale;
    ApplicationObservers::instance().tell(*this, message);
}
