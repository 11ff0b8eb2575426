#include "widgets/KestrelApplication.h"

#include "toolkit/PegThing.h"

#include <algorithm>
#include <vector>

namespace {

constinit std::atomic<KestrelApplication*> gCurrent{nullptr};

/// Made when the host is loaded, before main(). Never destroyed: threads may still ask it while the process ends.
[[maybe_unused]] const KestrelApplication* const gPlatformApplication = [] {
    auto* application = new KestrelApplication;
    KestrelApplication::setCurrentApplication(application);
    return application;
}();

struct Observation {
    const KestrelApplication* application;
    PegThing* observer;

    bool operator==(const Observation&) const = default;
};

/// Of all applications, in the order in which they were added. Never destroyed: a static widget leaves them as late as
/// at process exit.
std::vector<Observation>& observations()
{
    static auto* const living = new std::vector<Observation>;
    return *living;
}

bool isObserved(const Observation& wanted)
{
    return std::find(observations().begin(), observations().end(), wanted) != observations().end();
}

} // namespace

KestrelApplication::KestrelApplication() = default;

KestrelApplication::~KestrelApplication()
{
    KestrelApplication* self = this;
    gCurrent.compare_exchange_strong(self, nullptr);
    std::erase_if(observations(), [this](const Observation& one) { return one.application == this; });
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
    if (observer != nullptr && !isObserved({this, observer}))
        observations().push_back({this, observer});
}

void KestrelApplication::removeObserver(PegThing* observer)
{
    std::erase_if(observations(), [observer](const Observation& one) { return one.observer == observer; });
}

void KestrelApplication::notifyObservers(Change change)
{
    PegMessage message;
    message.wType = PM_APPLICATION_CHANGED;
    message.iData = change;
    message.pData = &mLocale;
    for (const Observation& one : std::vector<Observation>(observations())) {
        if (one.application != this || !isObserved(one))
            continue;
        message.pTarget = one.observer;
        one.observer->Message(message);
    }
}
