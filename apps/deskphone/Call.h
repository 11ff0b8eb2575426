#pragma once

#include "apps/deskphone/Screen.h"

#include <cstdint>

namespace deskphone {

class CallHistory;

/// A call, as far as this telephone has any: it is answered at once and lasts until the user goes back or hangs up.
class Call : public Screen {
public:
    Call(Telephone& telephone, CallHistory& history);

    /// Calls `party` and goes back to `from` afterwards.
    void begin(Place& from, const std::string& party, const std::string& number);

private:
    void build() override;
    void chosen(int row) override;
    void left() override;

    CallHistory& mHistory;
    std::int64_t mStart = 0;
    std::string mDuration;
    Text& mEnded;
};

} // namespace deskphone
