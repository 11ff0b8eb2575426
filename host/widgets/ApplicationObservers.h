#pragma once

#include <unordered_map>
#include <vector>

class KestrelApplication;
class PegThing;
struct PegMessage;

namespace host {

/// Who observes which application, in the order in which they began. GUI thread only.
class ApplicationObservers {
public:
    /// Those of the process. Never destroyed: a static widget leaves as late as at process exit.
    static ApplicationObservers& instance();

    ApplicationObservers() = default;
    ApplicationObservers(const ApplicationObservers&) = delete;
    ApplicationObservers& operator=(const ApplicationObservers&) = delete;

    /// An observer observes an application once.
    void add(const KestrelApplication& application, PegThing& observer);
    void remove(const PegThing& observer);
    void remove(const KestrelApplication& application);

    /// Sends the message to each observer of the application. One that leaves before its turn is not told; one that
    /// comes hears of the next change.
    void tell(const KestrelApplication& application, PegMessage message);

private:
    struct Observation {
        const KestrelApplication* application;
        PegThing* observer;
        Observation* before = nullptr;
        Observation* after = nullptr;
    };

    class Telling;
    using ByObserver = std::unordered_multimap<const PegThing*, Observation>;

    bool observes(const PegThing& observer, const KestrelApplication& application) const;
    void append(Observation& one);
    void unlink(const Observation& one);

    ByObserver mByObserver; ///< its nodes are what the others point at
    Observation* mFirst = nullptr;
    Observation* mLast = nullptr;
    std::vector<Telling*> mTellings; ///< the innermost is the last
};

} // namespace host
