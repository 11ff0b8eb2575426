#include "apps/deskphone/CallScreen.h"

#include "DisplayAPI/Dialog.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "apps/deskphone/CallWords.h"
#include "apps/deskphone/Panel.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"
#include "kit/WayBack.h"

#include <algorithm>
#include <memory>

namespace deskphone {

using exchange::CallId;
namespace kit = DisplayAPI::kit;

CallScreen::CallScreen(Telephone& telephone, Calls& calls, TransferQuestions& transfers)
    : Screen(telephone, nullptr, isSmallPanel() ? WITHOUT_TITLE : "Call.title",
             std::make_unique<DisplayAPI::List>(kit::listType(kit::WayBack::EVERYWHERE))),
      mCalls(calls), mActions(telephone, calls, transfers), mMenu(telephone, {}),
      mRows(list(), [this](const PhoneCall& call) { return wordsFor(call); })
{
    using enum exchange::CallState;
    for (const exchange::CallState state : {DIALLING, PROCEEDING, RINGING_BACK, CONNECTED, HELD_BY_ME, HELD_BY_OTHER,
                                            HELD_BY_BOTH, RESUMING, TRANSFERRING, CONFERENCE})
        for (const exchange::Line& line : calls.telephony().lines())
            mWords.emplace(std::pair(state, line.number), textFor(state, line.number));
    setDialer(*this);
    calls.addCallListener([this](const PhoneCall& call) { note(call); });
    calls.addListener([this] { refresh(); });
    telephone.addScreenListener([this](const DisplayAPI::Displayable*) { mCalls.callListeners(); });
}

void CallScreen::begin(Place& from, const std::string& party, const std::string& number)
{
    const std::string name = party == number ? std::string() : party;
    if (mCalls.place({number, name}) != exchange::NO_CALL && &from != this)
        setParent(&from);
}

bool CallScreen::showsCallsOrPopup()
{
    using namespace DisplayAPI;
    Displayable* const current = telephone().display().getCurrent();
    return current == &list() || dynamic_cast<Dialog*>(current) != nullptr ||
           dynamic_cast<ContextMenu*>(current) != nullptr;
}

void CallScreen::stopListening()
{
    Screen::stopListening();
    mMenu.stopListening();
}

void CallScreen::chosen(int row)
{
    const auto chosen = mRows.at(row);
    if (const PhoneCall* const call = chosen ? mCalls.find(chosen->call) : nullptr; call != nullptr)
        mActions.doObvious(*call);
}

void CallScreen::openMenu(int row)
{
    mMenuRow = mRows.at(row);
    const PhoneCall* const call = mMenuRow ? mCalls.find(mMenuRow->call) : nullptr;
    if (call == nullptr)
        return;
    const PhoneCall* const partner = mCalls.find(mMenuRow->partner);
    mMenu.setActions(partner != nullptr ? mActions.ofConference(*call, *partner) : mActions.all(*call));
    mMenu.open();
}

void CallScreen::note(const PhoneCall& call)
{
    const bool isAnswered = call.talkSince == call.last.at && call.last.direction == exchange::Direction::INCOMING;
    if (isAnswered && telephone().place() != this)
        setParent(telephone().place());
    if (isAnswered || call.state() == exchange::CallState::DIALLING)
        mIsWanted = true;
    else if (!mCalls.isInCall())
        mIsWanted = false;
}

void CallScreen::refresh()
{
    dismissMenu();
    std::vector<const PhoneCall*> shown = mCalls.all();
    std::erase_if(shown, [](const PhoneCall* call) {
        return call->state() == exchange::CallState::INCOMING; // which has a popup
    });
    mRows.show(shown);
    comeOrGo();
}

/// Of a call that is over, or of a conference that is none any more.
void CallScreen::dismissMenu()
{
    if (!mMenuRow)
        return;
    const bool isConference = mMenuRow->partner != exchange::NO_CALL;
    if (mCalls.find(mMenuRow->call) != nullptr && (!isConference || mCalls.find(mMenuRow->partner) != nullptr))
        return;
    mMenuRow.reset();
    mMenu.dismiss();
}

/// The line is said where there are several.
Text& CallScreen::textFor(exchange::CallState state, exchange::LineNumber line)
{
    if (mCalls.telephony().lines().size() == 1)
        return text(keyOf(state));
    return text("Call.on.line", {[this, state] { return telephone().languages().translate(keyOf(state)); },
                                 [line] { return std::to_string(line); }});
}

TranslationInfo* CallScreen::wordsFor(const PhoneCall& call)
{
    const auto words = mWords.find({call.state(), call.last.line});
    return words != mWords.end() ? words->second.info() : nullptr;
}

/// Neither a number that is half typed is taken off the screen, nor a call that rings.
void CallScreen::comeOrGo()
{
    DisplayAPI::Displayable* const current = telephone().display().getCurrent();
    if (current == &list()) {
        mIsWanted = false;
        if (mRows.isEmpty() && parent() != nullptr)
            parent()->open();
    } else if (mIsWanted && dynamic_cast<DisplayAPI::Dialog*>(current) == nullptr) {
        open();
    }
}

} // namespace deskphone
