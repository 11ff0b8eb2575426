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
      mCalls(calls), mActions(calls, transfers), mMenu(telephone, {})
{
    using enum exchange::CallState;
    for (const exchange::CallState state : {DIALLING, PROCEEDING, RINGING_BACK, CONNECTED, HELD_BY_ME, HELD_BY_OTHER,
                                            HELD_BY_BOTH, RESUMING, TRANSFERRING, CONFERENCE})
        mWords.emplace(keyOf(state), text(keyOf(state)));
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
    if (const PhoneCall* const call = mCalls.find(mRows.at(static_cast<std::size_t>(row)).call()); call != nullptr)
        mActions.doObvious(*call);
}

void CallScreen::openMenu(int row)
{
    const PhoneCall* const call = mCalls.find(mRows.at(static_cast<std::size_t>(row)).call());
    if (call == nullptr)
        return;
    mMenuCall = call->id();
    mMenu.setActions(mActions.all(*call));
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
    removeOver();
    for (const PhoneCall* const call : mCalls.all())
        if (call->state() != exchange::CallState::INCOMING) // which has a popup
            showCall(*call);
    comeOrGo();
}

void CallScreen::removeOver()
{
    if (mCalls.find(mMenuCall) == nullptr && std::exchange(mMenuCall, exchange::NO_CALL) != exchange::NO_CALL)
        mMenu.dismiss();
    std::erase_if(mRows, [this](const CallRow& row) {
        if (mCalls.find(row.call()) != nullptr)
            return false;
        list().remove(row.item());
        delete row.item();
        return true;
    });
}

void CallScreen::showCall(const PhoneCall& call)
{
    const auto row = std::ranges::find(mRows, call.id(), &CallRow::call);
    if (row != mRows.end())
        return row->update(call);
    DisplayAPI::CallConnectedItem* const item =
        mRows.emplace_back(call, [this](exchange::CallState state) { return wordsFor(state); }).item();
    list().append(item);
    list().setSelected(item);
}

TranslationInfo* CallScreen::wordsFor(exchange::CallState state)
{
    const auto words = mWords.find(keyOf(state));
    return words != mWords.end() ? words->second.info() : nullptr;
}

/// Neither a number that is half typed is taken off the screen, nor a call that rings.
void CallScreen::comeOrGo()
{
    DisplayAPI::Displayable* const current = telephone().display().getCurrent();
    if (current == &list()) {
        mIsWanted = false;
        if (mRows.empty() && parent() != nullptr)
            parent()->open();
    } else if (mIsWanted && dynamic_cast<DisplayAPI::Dialog*>(current) == nullptr) {
        open();
    }
}

} // namespace deskphone
