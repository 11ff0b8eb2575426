#include "apps/deskphone/CallLog.h"

#include "DisplayAPI/List.h"

namespace deskphone {

CallLog::CallLog(DisplayAPI::Display& display, Screen* parent, const std::string& title, std::vector<Call> calls)
    : Screen(display, parent, title), mCalls(std::move(calls))
{
}

void CallLog::build()
{
    for (const Call& call : mCalls)
        list().append(call.time + "  " + call.party);
}

} // namespace deskphone
