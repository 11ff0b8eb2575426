#pragma once

#include "apps/deskphone/Calls.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace deskphone {

class Telephone;

/// Tells in the status lines of the call that the user has to do with: with whom, and for how long by now. The small
/// panel has no line to spare for it where calls are shown themselves, and below popups. On the threads that answer the
/// user.
class CallStatus {
public:
    /// `isCovered` says whether the small panel's line would cover what the user looks at.
    CallStatus(Telephone& telephone, Calls& calls, std::function<bool()> isCovered);

private:
    struct Shown {
        std::string party;
        std::optional<std::int64_t> talkSince;

        bool operator==(const Shown&) const = default;
    };

    std::optional<Shown> wanted();
    void refresh();

    Telephone& mTelephone;
    Calls& mCalls;
    std::function<bool()> mIsCovered;
    std::optional<Shown> mShown;
};

} // namespace deskphone
