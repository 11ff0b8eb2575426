#pragma once

#include "DisplayAPI/CallBackMainItem.h"
#include "apps/deskphone/Calls.h"

#include <ctime>
#include <functional>
#include <list>
#include <string>
#include <vector>

namespace deskphone {

struct PastCall;

/// Somebody who was called in vain, and whom the user has asked to call back.
struct CallBack {
    exchange::Party party;
    std::time_t moment; ///< at which the user has asked
    DisplayAPI::CallBackMainItem::CallBackType type;
    DisplayAPI::CallBackMainItem::CallBackState state = DisplayAPI::CallBackMainItem::WAITING;
};

/// The call-backs that the user waits for. One is ready while its party calls, and has happened when the two have
/// spoken, whoever has called. On the threads that answer the user.
class CallBacks {
public:
    explicit CallBacks(Calls& calls);

    const std::list<CallBack>& all() const { return mAll; }

    /// Whether one can be asked for: the user has called in vain, and waits for none of that party yet.
    bool canRequest(const PastCall& past) const;

    /// Puts it in front. REQUIRES: it can be asked for.
    void request(const PastCall& past);
    void cancel(const CallBack& callBack);

    /// Called after each change.
    void addListener(std::function<void()> listener) { mListeners.push_back(std::move(listener)); }

private:
    void note(const PhoneCall& call);
    void tellListeners() const;

    std::list<CallBack> mAll; ///< the latest in front
    std::vector<std::function<void()>> mListeners;
};

} // namespace deskphone
