#pragma once

class PegThing;

/// While it lives, a thing is told of changes of the locale and formats of the application that was current when it
/// began. GUI thread only.
class ApplicationWatch {
public:
    /// `observer` outlives the watch. Without a current application nobody is told.
    explicit ApplicationWatch(PegThing& observer);
    ApplicationWatch(const ApplicationWatch&) = delete;
    ApplicationWatch& operator=(const ApplicationWatch&) = delete;
    ~ApplicationWatch();

private:
    PegThing& mObserver;
};
