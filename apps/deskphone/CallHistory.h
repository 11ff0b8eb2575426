#pragma once

#include "apps/deskphone/PastCall.h"

#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace deskphone {

class CallStore;

/// The calls of the last days, the latest first. On the threads that answer the user, of which one runs at a time, and
/// before them on the GUI thread.
class CallHistory {
public:
    explicit CallHistory(std::deque<PastCall> calls);

    /// Those that the store has, which keeps what becomes of them.
    explicit CallHistory(std::unique_ptr<CallStore> store);
    ~CallHistory();

    /// Each stays where it is as long as the history lives.
    std::deque<PastCall>& calls() { return mCalls; }

    void add(PastCall call);
    void forget(PastCall& call);

    /// The user has looked at them.
    void see();

    /// `added` and `forgotten` are called for each call that comes and goes.
    void addListener(std::function<void(PastCall&)> added, std::function<void(PastCall&)> forgotten);

    /// `listener` is called with the number of missed calls that the user has not seen: now, and with each change.
    void addMissedListener(std::function<void(int)> listener);

private:
    int missed() const;
    void tellMissed() const;

    struct Listener {
        std::function<void(PastCall&)> added;
        std::function<void(PastCall&)> forgotten;
    };

    std::unique_ptr<CallStore> mStore; ///< null where nothing is kept
    std::deque<PastCall> mCalls;
    std::vector<Listener> mListeners;
    std::vector<std::function<void(int)>> mMissedListeners;
};

} // namespace deskphone
