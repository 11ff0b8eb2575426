#include "apps/deskphone/Desk.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/CallStore.h"
#include "apps/deskphone/Panel.h"
#include "host/clock/Clock.h"
#include "host/clock/WallClock.h"
#include "kit/Fence.h"
#include "kit/OffGuiThread.h"

namespace deskphone {

using host::WallClock;

namespace {

using enum PastCall::Kind;

std::time_t ago(int days, int minutes)
{
    return WallClock::now() - (days * 24 * 60 + minutes) * 60;
}

std::deque<PastCall> recentCalls()
{
    return {{RECEIVED, ago(0, 10), "Zoë Ångström", "030 1000000"}, {DIALLED, ago(0, 21), "Jürgen Müller", "030 4711"},
            {MISSED, ago(0, 29), "Ελένη Ιωάννου", "030 1015838"},  {MISSED, ago(1, 54), "030 1234567", "030 1234567"},
            {RECEIVED, ago(2, 80), "Иван Орлик", "030 815"},       {RECEIVED, ago(3, 0), "佐藤 美咲", "030 2026"},
            {DIALLED, ago(7, 43), "משה כהן", "030 1031676"}};
}

CallHistory historyIn(const std::filesystem::path& state)
{
    return state.empty() ? CallHistory(recentCalls()) : CallHistory(std::make_unique<CallStore>(state));
}

} // namespace

Desk::Desk(DisplayAPI::Display& display, exchange::Telephony& telephony, const std::string& language,
           const std::filesystem::path& state)
    : mTelephone(display), mComplaint(mTelephone.useLanguage(language)),
      mNewsText(&mTelephone.languages(), "News.ticker"), mNews(mNewsText.get()), mHistory(historyIn(state)),
      mCalls(telephony), mRecorder(mTelephone, mCalls, mHistory), mCallBacks(mCalls),
      mStatus(mTelephone, mCalls, [this] { return mCall.showsCallsOrPopup(); }), mTransfers(mTelephone, mCalls),
      mPopups(mTelephone, mCalls, mTransfers), mCall(mTelephone, mCalls, mTransfers),
      mHandset(mTelephone, mCalls, mCall), mDetails(mTelephone, mCall), mHome(mTelephone, mCall, mHistory),
      mLineStatus(mTelephone, mCalls, mHome), mCallLogs(mTelephone, mHome, mHistory, mCallBacks, mCall, mDetails),
      mContacts(mTelephone, &mHome, mCall), mLines(mTelephone, &mHome, mCalls, mCall),
      mShortDials(mTelephone, &mHome, mCall), mSettings(mTelephone, mHome, mCalls),
      mServices(mTelephone, &mHome, mCall), mAbout(mTelephone, &mHome)
{
    mHome.setMenu({{"Menu.call.log", "Key.call.log", &mCallLogs},
                   {"Menu.contacts", "Key.contacts", &mContacts},
                   {"Menu.settings", "Key.settings", &mSettings},
                   {"Menu.services", "Key.services", &mServices},
                   {"Menu.lines", "Key.lines", &mLines},
                   {"Menu.short.dials", "Key.short.dials", &mShortDials},
                   {"Menu.about", "Key.about", &mAbout}});
    if (!isSmallPanel()) // which has no line to spare
        mServices.setTicker(mNews);
    mTelephone.addLanguageListener([this] { mNews.setText(mNewsText.get()); });
}

/// Nothing is shown any more when the screens go: those that hear what is shown go one by one as well. What was
/// raised at last finds its listener deaf, but there.
Desk::~Desk()
{
    DisplayAPI::kit::offGuiThread([this] { close(); });
    mTelephone.display().setCurrent(nullptr);
    DisplayAPI::kit::offGuiThread([] { DisplayAPI::kit::Fence().wait(); });
}

void Desk::open()
{
    mHome.open();
    mTelephone.status().open();
    mCalls.startListening();
    if (!mComplaint.empty())
        mTelephone.tell(mComplaint);
}

void Desk::close()
{
    mCalls.endAll(host::Clock::instance().now());
    mPopups.stopListening();
    mHandset.stopListening();
    for (Place* place : places())
        place->stopListening();
    mTransfers.stopListening();
    for (Place* place : places())
        place->stopWorking();
}

std::vector<Place*> Desk::places()
{
    std::vector<Place*> all = {&mHome,  &mCallLogs, &mContacts, &mLines,   &mShortDials, &mSettings, &mContacts.card(),
                               &mAbout, &mCall,     &mDetails,  &mServices};
    for (Choice* choice : mSettings.choices())
        all.push_back(choice);
    for (Place* place : mSettings.places())
        all.push_back(place);
    return all;
}

} // namespace deskphone
