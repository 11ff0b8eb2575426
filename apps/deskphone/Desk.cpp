#include "apps/deskphone/Desk.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Memory.h"
#include "apps/deskphone/Panel.h"
#include "host/clock/Clock.h"
#include "kit/Fence.h"
#include "kit/OffGuiThread.h"

namespace deskphone {

Desk::Desk(DisplayAPI::Display& display, exchange::Telephony& telephony, const std::string& language, Memory& memory)
    : mTelephone(display), mComplaint(beginInLanguage(mTelephone, memory.preferences(), language)),
      mNewsText(&mTelephone.languages(), "News.ticker"), mNews(mNewsText.get()), mHistory(memory.history()),
      mCalls(telephony), mRecorder(mTelephone, mCalls, mHistory), mCallBacks(mCalls),
      mStatus(mTelephone, mCalls, [this] { return mCall.showsCallsOrPopup(); }), mTransfers(mTelephone, mCalls),
      mPopups(mTelephone, mCalls, mTransfers), mCall(mTelephone, mCalls, mTransfers),
      mHandset(mTelephone, mCalls, mCall), mDetails(mTelephone, mCall), mHome(mTelephone, mCall, mHistory),
      mLineStatus(mTelephone, mCalls, mHome), mCallLogs(mTelephone, mHome, mHistory, mCallBacks, mCall, mDetails),
      mContactForm(mTelephone, memory.contacts()),
      mNewContact(mContactForm, mHome), mContactDeeds{mTelephone, mCall, memory.contacts(), mContactForm},
      mContacts(mContactDeeds, &mHome), mContactSearch(mContactDeeds, mHome), mLines(mTelephone, &mHome, mCalls, mCall),
      mShortDials(mTelephone, &mHome, mCall), mSettings(mTelephone, mHome, memory.preferences()),
      mDisturb(mTelephone, &mHome, mCalls), mForwarding(mTelephone, &mHome, mCalls),
      mNetwork(mTelephone, mHome, memory.preferences()), mNotes(mTelephone, mHome, memory.preferences()),
      mServices(mTelephone, &mHome, mCall), mAbout(mTelephone, &mHome)
{
    mCalls.setNames([&memory](const std::string& number) {
        const std::optional<Contact> known = memory.contacts().withNumber(number);
        return known ? known->name : std::string();
    });
    mHome.setMenu({{"Menu.call.log", "Key.call.log", &mCallLogs},
                   {"Menu.contacts", "Key.contacts", &mContacts},
                   {"Menu.settings", "Key.settings", &mSettings},
                   {"Menu.services", "Key.services", &mServices},
                   {"Menu.lines", "Key.lines", &mLines},
                   {"Menu.short.dials", "Key.short.dials", &mShortDials},
                   {"Menu.new.contact", "Key.new.contact", &mNewContact},
                   {"Menu.find.contact", "Key.find.contact", &mContactSearch},
                   {"Menu.about", "Key.about", &mAbout},
                   {"Menu.disturb", "Key.disturb", &mDisturb},
                   {"Menu.forwarding", "Key.forwarding", &mForwarding},
                   {"Menu.network", "Key.network", &mNetwork},
                   {"Menu.notes", "Key.notes", &mNotes}});
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
    return {&mHome,     &mCallLogs,        &mContacts,      &mContactForm,          &mLines,   &mShortDials,
            &mSettings, &mContacts.card(), &mContactSearch, &mContactSearch.card(), &mAbout,   &mCall,
            &mDetails,  &mServices,        &mDisturb,       &mForwarding,           &mNetwork, &mNotes};
}

} // namespace deskphone
