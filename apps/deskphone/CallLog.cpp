#include "apps/deskphone/CallLog.h"

#include "apps/deskphone/Call.h"
#include "host/clock/WallClock.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

namespace deskphone {

using host::WallClock;

namespace {

/// In the formats that the display has now; on the GUI thread, whose they are.
std::string shown(std::time_t moment)
{
    const KestrelApplication& application = *KestrelApplication::getCurrentApplication();
    const bool isToday = WallClock::local(moment).tm_yday == WallClock::local(WallClock::now()).tm_yday;
    return isToday ? WallClock::time(moment, ICC::fromUNICODEtoUTF8(application.getTimeFormat()))
                   : WallClock::date(moment, ICC::fromUNICODEtoUTF8(application.getDateFormat()));
}

} // namespace

CallLog::CallLog(Telephone& telephone, Screen* parent, const std::string& title, std::vector<Entry> entries, Call& call)
    : Screen(telephone, parent, title), mEntries(std::move(entries)), mCall(call)
{
}

void CallLog::build()
{
    for (const Entry& entry : mEntries)
        append(text("Call.log.entry", {[&entry] { return shown(entry.moment); }, [&entry] { return entry.party; }}));
}

void CallLog::chosen(int row)
{
    mCall.begin(*this, mEntries.at(static_cast<std::size_t>(row)).party);
}

} // namespace deskphone
