#include "apps/deskphone/LineStatus.h"

#include "apps/deskphone/CallWords.h"
#include "apps/deskphone/Home.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"

#include <utility>

namespace deskphone {

using exchange::Line;

LineStatus::LineStatus(Telephone& telephone, Calls& calls, Home& home)
    : mTelephone(telephone), mLines(calls.lines()), mHome(home), mOutgoing(mLines.outgoing())
{
    calls.addLineListener([this](const Line&) { lineChanged(); });
    telephone.addLanguageListener([this] { refresh(); });
    refresh();
}

void LineStatus::lineChanged()
{
    DisplayAPI::kit::onGuiThread([this] { refresh(); });
    const Line outgoing = mLines.outgoing();
    const Line told = std::exchange(mOutgoing, outgoing);
    const auto say = [&](const std::string& key) {
        mTelephone.tell(words(mTelephone.languages(), key, std::to_string(outgoing.number)));
    };
    if (!outgoing.isRegistered && told.isRegistered)
        say("Call.not.registered");
    else if (outgoing.isRegistered && (outgoing.number != told.number || !told.isRegistered))
        say("Line.outgoing");
}

void LineStatus::refresh()
{
    const LineSigns signs = signsOf(mLines.all(), mLines.outgoing(), mTelephone.languages());
    if (std::exchange(mShown, signs) == signs)
        return;
    mTelephone.status().setOwnName(signs.name, signs.status);
    mHome.show(signs);
}

} // namespace deskphone
