#pragma once

#include "apps/deskphone/Screen.h"

#include <vector>

namespace deskphone {

/// The latest calls of one kind.
class CallLog : public Screen {
public:
    struct Call {
        std::string time;
        std::string party;
    };

    CallLog(DisplayAPI::Display& display, Screen* parent, const std::string& title, std::vector<Call> calls);

private:
    void build() override;

    /// Calling back is not for this telephone.
    void chosen(int) override {}

    std::vector<Call> mCalls;
};

} // namespace deskphone
