#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/Screen.h"

#include <vector>

namespace DisplayAPI {
class CallForwardItem;
}

namespace deskphone {

/// Which lines want no calls. Choosing one has it want none, or take them again.
class DisturbScreen : public Screen {
public:
    DisturbScreen(Telephone& telephone, Place* parent, Calls& calls);

private:
    struct Row {
        exchange::LineNumber line;
        DisplayAPI::CallForwardItem* item; ///< the list's
        bool isQuiet = false;              ///< as it is shown
    };

    void build() override {}
    void chosen(int row) override;
    void refresh();

    Calls& mCalls;
    std::vector<Row> mRows;
};

} // namespace deskphone
