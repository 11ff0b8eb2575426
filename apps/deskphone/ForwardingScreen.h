#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/ForwardingForm.h"
#include "apps/deskphone/Screen.h"

#include <atomic>
#include <deque>
#include <string>

namespace DisplayAPI {
class CallForwardItem;
}

namespace deskphone {

/// To whom each line's calls go on: always, when it is busy or wants no calls, and when nobody answers. Choosing a row
/// leads to a form, or ends what it says; its menu leads to the form again.
class ForwardingScreen : public Screen {
public:
    ForwardingScreen(Telephone& telephone, Place* parent, Calls& calls);

    void stopListening() override;

private:
    using Target = std::string exchange::Forwarding::*;

    struct Row {
        exchange::LineNumber line = 0;
        Target target = nullptr;
        DisplayAPI::CallForwardItem* item = nullptr; ///< the list's
        std::string number = {};                     ///< as it is shown; empty: none
        bool isRegistered = true;                    ///< as it is shown
        std::atomic<int> seconds{0};                 ///< as they are shown, to whoever looks the text up
        Text* after = nullptr;                       ///< which says them; the screen's
    };

    void build() override {}
    void chosen(int row) override;
    void menuOpens(int row) override { mMenuRow = row; }

    void addRow(const exchange::Line& line, std::size_t kind);
    void ask(std::size_t row);
    bool set(Row& row, const ForwardingForm::Values& values);
    void end(Row& row);
    void refresh();
    void show(Row& row, const exchange::Line& line);
    bool refuse(const std::string& key);

    Calls& mCalls;
    Text& mTo;
    std::deque<Row> mRows;
    std::deque<ForwardingForm> mForms; ///< of each row
    int mMenuRow = 0;
};

} // namespace deskphone
