#pragma once

#include "widgets/KestrelApplication.h"

namespace host {

/// While it lives, a thing is told of changes of the locale and formats of the application that is current now.
class ApplicationWatch {
public:
    explicit ApplicationWatch(PegThing& observer) : mObserver(observer)
    {
        if (auto* application = KestrelApplication::getCurrentApplication())
            application->addObserver(&mObserver);
    }
    ApplicationWatch(const ApplicationWatch&) = delete;
    ApplicationWatch& operator=(const ApplicationWatch&) = delete;
    ~ApplicationWatch() { KestrelApplication::removeObserver(&mObserver); }

private:
    PegThing& mObserver;
};

} // namespace host
