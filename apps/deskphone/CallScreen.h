#pragma once

#include "apps/deskphone/CallActions.h"
#include "apps/deskphone/CallRows.h"
#include "apps/deskphone/Calls.h"
#include "apps/deskphone/Screen.h"

#include <map>
#include <string>
#include <vector>

namespace deskphone {

/// The calls that go on, one in each row, and a conference in one. Choosing one does what is obvious with it, the right
/// key offers the rest. It comes when the user calls somebody or answers, unless he types a number then, and goes with
/// the last call; left leads away from it meanwhile.
class CallScreen : public Screen {
public:
    CallScreen(Telephone& telephone, Calls& calls, TransferQuestions& transfers);

    /// Calls `party` and goes back to `from` afterwards. On the threads that answer the user.
    void begin(Place& from, const std::string& party, const std::string& number);

    /// Whether the user sees these calls, or has something over whatever he sees.
    bool showsCallsOrPopup();

    void stopListening() override;

private:
    void build() override {}
    void chosen(int row) override;
    void openMenu(int row) override;

    void note(const PhoneCall& call);
    void refresh();
    void dismissMenu();
    Text& textFor(exchange::CallState state, exchange::LineNumber line);
    TranslationInfo* wordsFor(const PhoneCall& call);
    void comeOrGo();

    Calls& mCalls;
    CallActions mActions;
    RowMenu mMenu;
    std::optional<CallRows::Chosen> mMenuRow; ///< whose menu it is
    std::map<std::pair<exchange::CallState, exchange::LineNumber>, Text&> mWords;
    CallRows mRows;
    bool mIsWanted = false; ///< a call has begun that the user has not seen
};

} // namespace deskphone
