#include "widgets/ApplicationWatch.h"

#include "widgets/KestrelApplication.h"

ApplicationWatch::ApplicationWatch(PegThing& observer) : mObserver(observer)
{
    if (auto* application = KestrelApplication::getCurrentApplication())
        application->addObserver(&mObserver);
}

ApplicationWatch::~ApplicationWatch()
{
    KestrelApplication::removeObserver(&mObserver);
}
