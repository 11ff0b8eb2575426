#pragma once

#include "apps/deskphone/Screen.h"

#include <string>

namespace deskphone {

/// Those who are called with one key. Choosing one calls him.
class ShortDials : public Screen {
public:
    ShortDials(Telephone& telephone, Place* parent, CallScreen& call);

private:
    void build() override;
    void chosen(int row) override;
    void menuOpens(int row) override { mMenuRow = row; }

    CallScreen& mCall;
    int mMenuRow = 0;
};

/// Calls what the user has typed, or who has it as his short dial.
void dial(CallScreen& call, Place& from, const std::string& typed);

} // namespace deskphone
