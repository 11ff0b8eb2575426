#include "apps/deskphone/ForwardingScreen.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "apps/deskphone/Calls.h"
#include "apps/deskphone/PhoneBook.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

namespace {

const std::array<std::string, 3> KEYS = {"Forwarding.always", "Forwarding.busy", "Forwarding.no.answer"};

} // namespace

ForwardingScreen::ForwardingScreen(Telephone& telephone, Place* parent, Calls& calls)
    : Screen(telephone, parent, "Settings.forwarding"), mCalls(calls), mTarget(telephone, "Forwarding.set"),
      mOff(text("Switch.off"))
{
    for (std::size_t kind = 0; kind < KINDS; ++kind)
        mTexts.at(kind) = &text(KEYS.at(kind), {[this, kind] { return shown(kind); }});
}

void ForwardingScreen::stopListening()
{
    Screen::stopListening();
    mTarget.stopListening();
}

void ForwardingScreen::build()
{
    for (std::size_t kind = 0; kind < KINDS; ++kind) {
        // The user may choose a row as soon as it is appended.
        mRows.at(kind) = new DisplayAPI::ListItem(mTexts.at(kind)->info(), false);
        list().append(mRows.at(kind));
    }
}

void ForwardingScreen::chosen(int row)
{
    const auto kind = static_cast<std::size_t>(row);
    if (number(kind).empty())
        mTarget.ask([this, kind](const std::string& target) { set(kind, target); });
    else
        set(kind, {});
}

std::string ForwardingScreen::shown(std::size_t kind)
{
    const std::string target = number(kind);
    return target.empty() ? mOff.get() : target;
}

std::string ForwardingScreen::number(std::size_t kind) const
{
    const std::lock_guard lock(mMutex);
    return mNumbers.at(kind);
}

void ForwardingScreen::set(std::size_t kind, const std::string& number)
{
    {
        const std::lock_guard lock(mMutex);
        mNumbers.at(kind) = digitsOf(number);
    }
    const exchange::Forwarding forwarding{
        .always = mNumbers[0], .whenBusy = mNumbers[1], .whenNotAnswered = mNumbers[2]};
    exchange::Telephony& telephony = mCalls.telephony();
    for (const exchange::Line& line : telephony.lines())
        telephony.setForwarding(line.number, forwarding);
    renewRow(mRows.at(kind), *mTexts.at(kind));
}

} // namespace deskphone
