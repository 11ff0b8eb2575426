#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/NumberQuestion.h"
#include "apps/deskphone/Screen.h"

#include <string>
#include <vector>

namespace DisplayAPI {
class CallForwardItem;
}

namespace deskphone {

/// To whom each line's calls go on: always, when it is busy or wants no calls, and when nobody answers. Choosing a row
/// asks for a number, or ends what it says; its menu has another number asked for.
class ForwardingScreen : public Screen {
public:
    ForwardingScreen(Telephone& telephone, Place* parent, Calls& calls);

    void stopListening() override;

private:
    using Target = std::string exchange::Forwarding::*;

    struct Row {
        exchange::LineNumber line;
        Target target;
        DisplayAPI::CallForwardItem* item; ///< the list's
        std::string number = {};           ///< as it is shown; empty: none
        bool isRegistered = true;          ///< as it is shown
    };

    void build() override {}
    void chosen(int row) override;
    void menuOpens(int row) override { mMenuRow = row; }

    void ask(Row& row);
    void set(Row& row, const std::string& number);
    void refresh();
    void show(Row& row, const exchange::Line& line);
    void tell(const std::string& key);

    Calls& mCalls;
    NumberQuestion mTarget;
    Text& mTo;
    Text& mAfter;
    std::vector<Row> mRows;
    int mMenuRow = 0;
};

} // namespace deskphone
